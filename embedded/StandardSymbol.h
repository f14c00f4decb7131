#pragma once

#include <kvcam/Records.h>

#include <array>
#include <optional>
#include <string_view>

namespace KVCAM::API {

/// The families of symbols, as this engine numbers them.
enum symboltype : int
{
    symbol_user = 0,
    symbol_round,
    symbol_square,
    symbol_rectangle,
    symbol_oval,
    symbol_half_oval,
    symbol_diamond,
    symbol_octagon,
    symbol_ellipse,
    symbol_triangle,
    symbol_round_butterfly,
    symbol_square_butterfly,
    symbol_hexagon_lying,
    symbol_hexagon_standing,
    symbol_hole,
    symbol_donut_round,
    symbol_donut_square,
    symbol_donut_square_round,
    symbol_donut_oval,
    symbol_donut_rectangle,
    symbol_thermal_round,
    symbol_thermal_round_squared,
    symbol_thermal_square_round,
    symbol_thermal_square,
    symbol_thermal_square_open,
    symbol_thermal_rectangle,
    symbol_thermal_rectangle_open,
    symbol_thermal_oval,
    symbol_moire,
    symbol_families ///< number of families
};

} // namespace KVCAM::API

namespace KVCAM::Embedded {

struct StandardSymbol
{
    API::symboltype type = API::symbol_user;
    double first = 0;  ///< as in the name: mil or micrometre
    double second = 0; ///< 0 for a family with one size
    /// All numbers between the 'x', in order; 0 for the plating of a hole.
    std::array<double, 6> fields{};
    double corner = 0;        ///< size of the rounded or cut corners
    bool cut = false;         ///< cut, not rounded
    bool someCorners = false; ///< only some of the four
};

/// Parses a symbol name by the grammar of the standard families; nothing if it does not match.
std::optional<StandardSymbol> standardSymbol(std::string_view name);

} // namespace KVCAM::Embedded
