#pragma once

#include <array>
#include <cstddef>

/// What each input kind of KVLineEdit accepts, in one table.
namespace KVCAM::UIAPI {

/// How a unit switch affects a field of the kind.
enum class UnitTracking
{
    None,   ///< the text does not change
    Number, ///< keeps the texts of both units; the other one is computed on every edit
    Symbol  ///< keeps the texts of both units; the other one is computed on demand
};

struct InputKind
{
    int kind;
    UnitTracking tracking;
    char const * pattern; ///< UTF-8, QRegExp syntax
    char const * hint;    ///< a plain explanation of valid input; translatable
};

/// The kinds 1 to 11, in order.
extern std::array<InputKind, 11> const inputKinds;

/// The translation context of the hints.
inline constexpr char const * inputHintContext = "KVCAM::UIAPI::KVLineEdit";

/// The row of a kind; null outside the table.
InputKind const * inputKind(int kind) noexcept;

} // namespace KVCAM::UIAPI
