#pragma once

#include <array>
#include <cstddef>
#include <initializer_list>
#include <string_view>

/// \addtogroup symbols
namespace KVCAM::UIAPI::Ext {

/// The standard families of symbols. A job's own symbol belongs to none of them.
enum class SymbolFamily : int
{
    Round,
    Square,
    Rectangle,
    Oval,
    HalfOval,
    Diamond,
    Octagon,
    Ellipse,
    Triangle,
    RoundButterfly,
    SquareButterfly,
    LyingHexagon,
    StandingHexagon,
    Hole,
    RoundDonut,
    SquareDonut,
    SquareRoundDonut, ///< square outside, round inside
    OvalDonut,
    RectangleDonut,
    RoundThermal,
    RoundSquaredThermal, ///< round, the gaps with square ends
    SquareRoundThermal,  ///< square outside, round inside
    SquareThermal,
    SquareOpenThermal, ///< with open corners
    RectangleThermal,
    RectangleOpenThermal, ///< with open corners
    OvalThermal,
    Moire
};

/// How many families there are.
inline constexpr std::size_t symbolFamilyCount = static_cast<std::size_t>(SymbolFamily::Moire) + 1;

/// What a field of a symbol name says. Lengths are in mil or micrometres; the name does not say which.
enum class SymbolField : int
{
    ///@{
    /// A length.
    Diameter,
    Side,
    OuterSize,
    InnerSize,
    Width,
    Height,
    LineWidth,
    LineLength,
    RingWidth,
    RingGap,
    Gap,
    AirGap,
    ///@}
    Corner,         ///< one character for the kind of corner ("r" rounded, "c" chamfered), then its length
    CornerCut,      ///< the length of a corner alone
    TolerancePlus,  ///< a length
    ToleranceMinus, ///< a length
    CornerList,     ///< the corners concerned: digits out of 1234
    RingCount,      ///< a whole number
    SpokeCount,     ///< a whole number
    Angle,          ///< degrees
    Plating         ///< "p" plated, "n" not plated, "v" via
};

/// How many kinds of fields there are.
inline constexpr std::size_t symbolFieldCount = static_cast<std::size_t>(SymbolField::Plating) + 1;

/// What can stand in a field.
enum class SymbolFieldKind : int
{
    Length,     ///< a number, in the small unit of the name
    Corner,     ///< one character, then a length
    CornerList, ///< digits out of 1234, each once
    Count,      ///< a whole number
    Angle,      ///< a number of degrees
    Plating     ///< one character
};

/// What can stand in a field with this role.
constexpr SymbolFieldKind symbolFieldKind(SymbolField field) noexcept
{
    switch (field) {
    case SymbolField::Corner:
        return SymbolFieldKind::Corner;
    case SymbolField::CornerList:
        return SymbolFieldKind::CornerList;
    case SymbolField::RingCount:
    case SymbolField::SpokeCount:
        return SymbolFieldKind::Count;
    case SymbolField::Angle:
        return SymbolFieldKind::Angle;
    case SymbolField::Plating:
        return SymbolFieldKind::Plating;
    default:
        return SymbolFieldKind::Length;
    }
}

/// Whether a field holds a length, so that it depends on the unit; all others are copied as text.
constexpr bool isSymbolLength(SymbolField field) noexcept
{
    SymbolFieldKind const kind = symbolFieldKind(field);
    return kind == SymbolFieldKind::Length || kind == SymbolFieldKind::Corner;
}

/// Whether a field is a whole number.
constexpr bool isSymbolCount(SymbolField field) noexcept
{
    return symbolFieldKind(field) == SymbolFieldKind::Count;
}

/// How setSymbolUIData() and getSymbolNameByUnit() turn the names of a family into another unit.
enum class SymbolRewrite : int
{
    EveryNumber, ///< every number in the name is a length
    Rectangle,   ///< two to four fields, by field
    Thermal,     ///< by field, five or six of them
    Moire,       ///< by field, six of them
    Unchanged    ///< the name is left as it is
};

/// The fields of a name, in their order.
struct SymbolLayout
{
    std::size_t required;              ///< how many of them a name must have
    std::size_t count;                 ///< required and optional ones
    std::array<SymbolField, 8> fields; ///< only the first `count` are used

    /// Whether a Corner may follow the required ones.
    constexpr bool allowsCorner() const noexcept
    {
        return count > required && fields[required] == SymbolField::Corner;
    }
};

/// How the names of a family are written: a prefix, then fields with an "x" between them.
///
/// A well-formed name has the required fields and, where one may follow, a Corner and then a CornerList. An
/// AirGap after the required fields is converted and described, but not well-formed.
struct SymbolGrammar
{
    SymbolFamily family;         ///< the family of these names
    std::string_view prefix;     ///< everything before the first digit; case matters
    SymbolRewrite rewrite;       ///< into another unit
    SymbolLayout layout;         ///< after the prefix
    bool allowsChamfers = false; ///< whether a well-formed Corner may be "c"; "r" is allowed to all
};

/// @cond
namespace Detail {

constexpr SymbolLayout symbolLayout(std::size_t required, std::initializer_list<SymbolField> fields)
{
    SymbolLayout layout{required, 0, {}};
    for (SymbolField const field : fields) {
        layout.fields[layout.count++] = field;
    }
    return layout;
}

using Family = SymbolFamily;
using Field = SymbolField;
using Rewrite = SymbolRewrite;
inline constexpr SymbolLayout diameter = symbolLayout(1, {Field::Diameter});
inline constexpr SymbolLayout side = symbolLayout(1, {Field::Side});
inline constexpr SymbolLayout box = symbolLayout(2, {Field::Width, Field::Height});
inline constexpr SymbolLayout corneredBox =
    symbolLayout(2, {Field::Width, Field::Height, Field::Corner, Field::CornerList});
inline constexpr SymbolLayout cutBox = symbolLayout(3, {Field::Width, Field::Height, Field::CornerCut});
inline constexpr SymbolLayout hole =
    symbolLayout(4, {Field::Diameter, Field::Plating, Field::TolerancePlus, Field::ToleranceMinus});
inline constexpr SymbolLayout ring = symbolLayout(2, {Field::OuterSize, Field::InnerSize});
inline constexpr SymbolLayout corneredRing =
    symbolLayout(2, {Field::OuterSize, Field::InnerSize, Field::Corner, Field::CornerList});
inline constexpr SymbolLayout frame = symbolLayout(3, {Field::Width, Field::Height, Field::LineWidth});
inline constexpr SymbolLayout corneredFrame =
    symbolLayout(3, {Field::Width, Field::Height, Field::LineWidth, Field::Corner, Field::CornerList});
inline constexpr SymbolLayout spokes = symbolLayout(
    5, {Field::OuterSize, Field::InnerSize, Field::Angle, Field::SpokeCount, Field::Gap, Field::AirGap});
inline constexpr SymbolLayout corneredSpokes =
    symbolLayout(5, {Field::OuterSize, Field::InnerSize, Field::Angle, Field::SpokeCount, Field::Gap,
                     Field::Corner, Field::CornerList});
inline constexpr SymbolLayout boxSpokes =
    symbolLayout(6, {Field::Width, Field::Height, Field::Angle, Field::SpokeCount, Field::Gap, Field::AirGap,
                     Field::Corner, Field::CornerList});
inline constexpr SymbolLayout ovalSpokes = symbolLayout(
    6, {Field::Width, Field::Height, Field::Angle, Field::SpokeCount, Field::Gap, Field::LineWidth});
inline constexpr SymbolLayout rings = symbolLayout(6, {Field::RingWidth, Field::RingGap, Field::RingCount,
                                                       Field::LineWidth, Field::LineLength, Field::Angle});

inline constexpr std::array symbolGrammars{
    SymbolGrammar{Family::Round, "r", Rewrite::EveryNumber, diameter},
    SymbolGrammar{Family::Square, "s", Rewrite::EveryNumber, side},
    SymbolGrammar{Family::Rectangle, "rect", Rewrite::Rectangle, corneredBox, true},
    SymbolGrammar{Family::Oval, "oval", Rewrite::EveryNumber, box},
    SymbolGrammar{Family::HalfOval, "oval_h", Rewrite::EveryNumber, box},
    SymbolGrammar{Family::Diamond, "di", Rewrite::EveryNumber, box},
    SymbolGrammar{Family::Octagon, "oct", Rewrite::EveryNumber, cutBox},
    SymbolGrammar{Family::Ellipse, "el", Rewrite::EveryNumber, box},
    SymbolGrammar{Family::Triangle, "tri", Rewrite::EveryNumber, box},
    SymbolGrammar{Family::RoundButterfly, "bfr", Rewrite::EveryNumber, diameter},
    SymbolGrammar{Family::SquareButterfly, "bfs", Rewrite::EveryNumber, side},
    SymbolGrammar{Family::LyingHexagon, "hex_l", Rewrite::EveryNumber, cutBox},
    SymbolGrammar{Family::StandingHexagon, "hex_s", Rewrite::EveryNumber, cutBox},
    SymbolGrammar{Family::Hole, "hole", Rewrite::EveryNumber, hole},
    SymbolGrammar{Family::RoundDonut, "donut_r", Rewrite::EveryNumber, ring},
    SymbolGrammar{Family::SquareDonut, "donut_s", Rewrite::EveryNumber, corneredRing},
    SymbolGrammar{Family::SquareRoundDonut, "donut_sr", Rewrite::Unchanged, ring},
    SymbolGrammar{Family::OvalDonut, "donut_o", Rewrite::Unchanged, frame},
    SymbolGrammar{Family::RectangleDonut, "donut_rc", Rewrite::Unchanged, corneredFrame},
    SymbolGrammar{Family::RoundThermal, "thr", Rewrite::Thermal, spokes},
    SymbolGrammar{Family::RoundSquaredThermal, "ths", Rewrite::Thermal, spokes},
    SymbolGrammar{Family::SquareRoundThermal, "sr_ths", Rewrite::Thermal, spokes},
    SymbolGrammar{Family::SquareThermal, "s_ths", Rewrite::Thermal, corneredSpokes},
    SymbolGrammar{Family::SquareOpenThermal, "s_tho", Rewrite::Unchanged, corneredSpokes},
    SymbolGrammar{Family::RectangleThermal, "rc_ths", Rewrite::Thermal, boxSpokes},
    SymbolGrammar{Family::RectangleOpenThermal, "rc_tho", Rewrite::Unchanged, boxSpokes},
    SymbolGrammar{Family::OvalThermal, "o_ths", Rewrite::Unchanged, ovalSpokes},
    SymbolGrammar{Family::Moire, "moire", Rewrite::Moire, rings},
};

} // namespace Detail
/// @endcond

/// The names of every standard family, in the order of SymbolFamily.
inline constexpr auto const & symbolGrammars = Detail::symbolGrammars;

/// Whether a table has a row for each family, in their order: `rows[static_cast<std::size_t>(family)]` is
/// then the family's. A row has a member `family`. For a static_assert beside the table.
template <class Rows>
constexpr bool isBySymbolFamily(Rows const & rows)
{
    if (rows.size() != symbolFamilyCount) {
        return false;
    }
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i].family != static_cast<SymbolFamily>(i)) {
            return false;
        }
    }
    return true;
}
static_assert(isBySymbolFamily(symbolGrammars));

/// The family with exactly this prefix; null for any other text. Points to static data.
constexpr SymbolGrammar const * findSymbolGrammar(std::string_view prefix) noexcept
{
    for (SymbolGrammar const & grammar : symbolGrammars) {
        if (grammar.prefix == prefix) {
            return &grammar;
        }
    }
    return nullptr;
}

} // namespace KVCAM::UIAPI::Ext
