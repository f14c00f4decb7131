#include "geometry/StandardSymbol.h"

#include <algorithm>
#include <charconv>
#include <cstddef>

namespace KVCAM::Embedded {
namespace {

using UIAPI::Ext::SymbolField;
using UIAPI::Ext::SymbolGrammar;

constexpr bool fieldsFit()
{
    for (SymbolGrammar const & grammar : UIAPI::Ext::symbolGrammars) {
        if (grammar.layout.required > decltype(StandardSymbol::fields)().size()) {
            return false;
        }
    }
    return true;
}
static_assert(fieldsFit());

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

std::optional<double> takeField(std::string_view & text, SymbolField field)
{
    if (field != SymbolField::Plating) {
        return takeNumber(text, !isSymbolCount(field));
    }
    bool const plating = take(text, 'p') || take(text, 'n') || take(text, 'v');
    return plating ? std::optional(0.0) : std::nullopt;
}

// Takes a whole tail "xr<radius>[x<corners>]" or "xc<length>[x<corners>]" as the family allows it; false for
// any other text.
bool takeCorners(std::string_view text, SymbolGrammar const & grammar, StandardSymbol & symbol)
{
    if (!grammar.layout.allowsCorner() || !take(text, 'x')) {
        return false;
    }
    symbol.cut = !take(text, 'r');
    if (symbol.cut && !(grammar.allowsChamfers && take(text, 'c'))) {
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
    SymbolGrammar const * const grammar = UIAPI::Ext::findSymbolGrammar(prefix);
    if (grammar == nullptr) {
        return std::nullopt;
    }
    StandardSymbol symbol;
    symbol.family = grammar->family;
    std::string_view rest = name.substr(prefix.size());
    int sizes = 0;
    for (std::size_t i = 0; i < grammar->layout.required; ++i) {
        SymbolField const field = grammar->layout.fields[i];
        if (i != 0 && !take(rest, 'x')) {
            return std::nullopt;
        }
        std::optional<double> const value = takeField(rest, field);
        if (!value) {
            return std::nullopt;
        }
        symbol.fields.at(i) = *value;
        if (isSymbolLength(field) && sizes < 2) {
            (sizes++ == 0 ? symbol.first : symbol.second) = *value;
        }
    }
    bool const whole = rest.empty() || takeCorners(rest, *grammar, symbol);
    return whole ? std::optional(symbol) : std::nullopt;
}

} // namespace KVCAM::Embedded
