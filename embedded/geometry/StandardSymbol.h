#pragma once

#include "support/SymbolFamilies.h"

#include <kvcam/Records.h>

#include <array>
#include <optional>
#include <string_view>

namespace KVCAM::Embedded {

using UIAPI::Ext::SymbolFamily;

/// How this engine numbers a job's own symbol.
inline constexpr auto ownSymbol = static_cast<API::symboltype>(0);

/// How this engine numbers a family.
constexpr API::symboltype symbolType(SymbolFamily family) noexcept
{
    return static_cast<API::symboltype>(static_cast<int>(family) + 1);
}

struct StandardSymbol
{
    SymbolFamily family = SymbolFamily::Round;
    double first = 0;  ///< as in the name: mil or micrometre
    double second = 0; ///< 0 for a family with one size
    /// All numbers between the 'x', in order; 0 for the plating of a hole.
    std::array<double, 6> fields{};
    double corner = 0;        ///< size of the rounded or cut corners
    bool cut = false;         ///< cut, not rounded
    bool someCorners = false; ///< only some of the four
};

/// What a well-formed name of a standard family says; nothing for any other name.
std::optional<StandardSymbol> standardSymbol(std::string_view name);

} // namespace KVCAM::Embedded
