#pragma once

#include <QLatin1String>
#include <QStringView>
#include <QVarLengthArray>

#include <array>
#include <cstddef>
#include <string_view>

/// The standard families of symbol names: a shape prefix, then fields separated by "x".
namespace KVCAM::UIAPI::Symbols {

/// How the family-aware rewrites treat a family.
enum class FamilyKind : int
{
    Simple,    ///< every number is a length
    Rectangle, ///< width x height [x corner [x corner list]]
    Thermal,   ///< by field, five or six of them
    Moire,     ///< by field, six of them
    Described  ///< not converted; known so that it can be described
};

/// What a field says.
enum class FieldRole : int
{
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
    Corner,    ///< one character for the kind of corner, then its length
    CornerCut, ///< a corner's length alone
    TolerancePlus,
    ToleranceMinus,
    // No lengths from here on: these are copied as text.
    CornerList,
    RingCount,
    SpokeCount,
    Angle,
    Plating
};

inline constexpr std::size_t fieldRoles = static_cast<std::size_t>(FieldRole::Plating) + 1;

constexpr bool isLength(FieldRole role) noexcept
{
    return role < FieldRole::CornerList;
}

inline constexpr std::size_t maximumFields = 8;

struct Family
{
    std::string_view prefix;
    FamilyKind kind;
    char const * shape; ///< in plain words, to be translated in the context "Symbols"
    std::size_t required;
    std::size_t fieldCount; ///< required and optional fields
    std::array<FieldRole, maximumFields> fields;
};

/// The leading characters of a name up to the first '0' to '9'.
QStringView symbolPrefix(QStringView name);

using SymbolParts = QVarLengthArray<QStringView, 12>;

/// Splits at every "x"; empty parts are kept.
SymbolParts splitParts(QStringView name);

/// The family whose prefix this is exactly, case included; null for a user's own symbol.
Family const * findFamily(QStringView prefix);
/// As findFamily(), but one trailing "x" of the prefix is forgiven for a rectangle: an empty width stands
/// before the "x" in "rectx5".
Family const * findRewriteFamily(QStringView prefix);

} // namespace KVCAM::UIAPI::Symbols
