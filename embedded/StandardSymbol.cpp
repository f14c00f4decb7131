#include "StandardSymbol.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace KVCAM::Embedded {
namespace {

// What may follow the fields: nothing, rounded corners, or rounded or chamfered corners: "xr<radius>" or
// "xc<radius>", then optionally "x" and the affected corners, out of 1234.
enum class Corners
{
    None,
    Rounded,
    RoundedOrChamfered
};

// A family: the text before its first digit, and one letter for each field between the 'x': s size, a angle,
// n whole number, p plating (p, n or v).
struct Family
{
    std::string_view prefix;
    API::symboltype type;
    std::string_view fields;
    Corners corners = Corners::None;
};

constexpr std::array families{
    Family{"r", API::symbol_round, "s"},
    Family{"s", API::symbol_square, "s"},
    Family{"rect", API::symbol_rectangle, "ss", Corners::RoundedOrChamfered},
    Family{"oval", API::symbol_oval, "ss"},
    Family{"oval_h", API::symbol_half_oval, "ss"},
    Family{"di", API::symbol_diamond, "ss"},
    Family{"oct", API::symbol_octagon, "sss"},
    Family{"el", API::symbol_ellipse, "ss"},
    Family{"tri", API::symbol_triangle, "ss"},
    Family{"bfr", API::symbol_round_butterfly, "s"},
    Family{"bfs", API::symbol_square_butterfly, "s"},
    Family{"hex_l", API::symbol_hexagon_lying, "sss"},
    Family{"hex_s", API::symbol_hexagon_standing, "sss"},
    Family{"hole", API::symbol_hole, "spss"},
    Family{"donut_r", API::symbol_donut_round, "ss"},
    Family{"donut_s", API::symbol_donut_square, "ss", Corners::Rounded},
    Family{"donut_sr", API::symbol_donut_square_round, "ss"},
    Family{"donut_o", API::symbol_donut_oval, "sss"},
    Family{"donut_rc", API::symbol_donut_rectangle, "sss", Corners::Rounded},
    Family{"thr", API::symbol_thermal_round, "ssans"},
    Family{"ths", API::symbol_thermal_round_squared, "ssans"},
    Family{"sr_ths", API::symbol_thermal_square_round, "ssans"},
    Family{"s_ths", API::symbol_thermal_square, "ssans", Corners::Rounded},
    Family{"s_tho", API::symbol_thermal_square_open, "ssans", Corners::Rounded},
    Family{"rc_ths", API::symbol_thermal_rectangle, "ssanss", Corners::Rounded},
    Family{"rc_tho", API::symbol_thermal_rectangle_open, "ssanss", Corners::Rounded},
    Family{"o_ths", API::symbol_thermal_oval, "ssanss"},
    Family{"moire", API::symbol_moire, "ssnssa"},
};
static_assert(families.size() + 1 == API::symbol_families, "every family but the user's stands in the table");

constexpr std::string_view digits = "0123456789";

// Removes leading digits from a text; with `decimals` also a point between digits.
std::optional<double> takeNumber(std::string_view & text, bool decimals)
{
    std::size_t end = std::min(text.find_first_not_of(digits), text.size());
    if (end == 0) {
        return std::nullopt;
    }
    if (decimals && end < text.size() && text[end] == '.') {
        std::size_t const last = std::min(text.find_first_not_of(digits, end + 1), text.size());
        if (last == end + 1) {
            return std::nullopt;
        }
        end = last;
    }
    double value = 0;
    if (std::from_chars(text.data(), text.data() + end, value).ec != std::errc()) {
        return std::nullopt;
    }
    text.remove_prefix(end);
    return value;
}

bool take(std::string_view & text, char c)
{
    if (text.empty() || text.front() != c) {
        return false;
    }
    text.remove_prefix(1);
    return true;
}

std::optional<double> takeField(std::string_view & text, char kind)
{
    if (kind != 'p') {
        return takeNumber(text, kind != 'n');
    }
    bool const plating = take(text, 'p') || take(text, 'n') || take(text, 'v');
    return plating ? std::optional(0.0) : std::nullopt;
}

// Consumes a whole tail "xr<radius>[x<corners>]" as the family allows it; false for any other text.
bool takeCorners(std::string_view text, Corners allowed, StandardSymbol & symbol)
{
    if (allowed == Corners::None || !take(text, 'x')) {
        return false;
    }
    symbol.cut = !take(text, 'r');
    if (symbol.cut && !(allowed == Corners::RoundedOrChamfered && take(text, 'c'))) {
        return false;
    }
    std::optional<double> const corner = takeNumber(text, true);
    if (!corner) {
        return false;
    }
    symbol.corner = *corner;
    if (text.empty()) {
        return true;
    }
    if (!take(text, 'x') || text.empty() || text.find_first_not_of("1234") != std::string_view::npos) {
        return false;
    }
    symbol.someCorners = text.size() < 4;
    return std::all_of(text.begin(), text.end(),
                       [text](char c) { return std::count(text.begin(), text.end(), c) == 1; });
}

} // namespace

std::optional<StandardSymbol> standardSymbol(std::string_view name)
{
    std::string_view const prefix = name.substr(0, name.find_first_of(digits));
    auto const family = std::find_if(families.begin(), families.end(), [prefix](Family const & candidate) {
        return candidate.prefix == prefix;
    });
    if (family == families.end()) {
        return std::nullopt;
    }
    StandardSymbol symbol;
    symbol.type = family->type;
    std::string_view rest = name.substr(prefix.size());
    int sizes = 0;
    for (std::size_t i = 0; i < family->fields.size(); ++i) {
        if (i != 0 && !take(rest, 'x')) {
            return std::nullopt;
        }
        std::optional<double> const value = takeField(rest, family->fields[i]);
        if (!value) {
            return std::nullopt;
        }
        symbol.fields.at(i) = *value;
        if (family->fields[i] == 's' && sizes < 2) {
            (sizes++ == 0 ? symbol.first : symbol.second) = *value;
        }
    }
    bool const whole = rest.empty() || takeCorners(rest, family->corners, symbol);
    return whole ? std::optional(symbol) : std::nullopt;
}

} // namespace KVCAM::Embedded
