#include "units/SymbolFamilies.h"

#include "support/NumberRuns.h"

#include <QtGlobal>

#include <algorithm>
#include <initializer_list>

namespace KVCAM::UIAPI::Symbols {
namespace {

using Kind = FamilyKind;
using Role = FieldRole;

constexpr Family family(std::string_view prefix, Kind kind, char const * shape, std::size_t required,
                        std::initializer_list<Role> fields)
{
    Family result{prefix, kind, shape, required, 0, {}};
    for (Role const role : fields) {
        result.fields[result.fieldCount++] = role;
    }
    return result;
}

constexpr std::array families{
    family("r", Kind::Simple, QT_TRANSLATE_NOOP("Symbols", "round"), 1, {Role::Diameter}),
    family("s", Kind::Simple, QT_TRANSLATE_NOOP("Symbols", "square"), 1, {Role::Side}),
    family("oval", Kind::Simple, QT_TRANSLATE_NOOP("Symbols", "oval"), 2, {Role::Width, Role::Height}),
    family("di", Kind::Simple, QT_TRANSLATE_NOOP("Symbols", "diamond"), 2, {Role::Width, Role::Height}),
    family("oct", Kind::Simple, QT_TRANSLATE_NOOP("Symbols", "octagon"), 3,
           {Role::Width, Role::Height, Role::CornerCut}),
    family("donut_r", Kind::Simple, QT_TRANSLATE_NOOP("Symbols", "round donut"), 2,
           {Role::OuterSize, Role::InnerSize}),
    family("donut_s", Kind::Simple, QT_TRANSLATE_NOOP("Symbols", "square donut"), 2,
           {Role::OuterSize, Role::InnerSize, Role::Corner, Role::CornerList}),
    family("hex_l", Kind::Simple, QT_TRANSLATE_NOOP("Symbols", "horizontal hexagon"), 3,
           {Role::Width, Role::Height, Role::CornerCut}),
    family("hex_s", Kind::Simple, QT_TRANSLATE_NOOP("Symbols", "vertical hexagon"), 3,
           {Role::Width, Role::Height, Role::CornerCut}),
    family("bfr", Kind::Simple, QT_TRANSLATE_NOOP("Symbols", "round butterfly"), 1, {Role::Diameter}),
    family("bfs", Kind::Simple, QT_TRANSLATE_NOOP("Symbols", "square butterfly"), 1, {Role::Side}),
    family("tri", Kind::Simple, QT_TRANSLATE_NOOP("Symbols", "triangle"), 2, {Role::Width, Role::Height}),
    family("oval_h", Kind::Simple, QT_TRANSLATE_NOOP("Symbols", "half oval"), 2, {Role::Width, Role::Height}),
    family("el", Kind::Simple, QT_TRANSLATE_NOOP("Symbols", "ellipse"), 2, {Role::Width, Role::Height}),
    family("hole", Kind::Simple, QT_TRANSLATE_NOOP("Symbols", "hole"), 4,
           {Role::Diameter, Role::Plating, Role::TolerancePlus, Role::ToleranceMinus}),
    family("rect", Kind::Rectangle, QT_TRANSLATE_NOOP("Symbols", "rectangle"), 2,
           {Role::Width, Role::Height, Role::Corner, Role::CornerList}),
    family("thr", Kind::Thermal, QT_TRANSLATE_NOOP("Symbols", "round thermal"), 5,
           {Role::OuterSize, Role::InnerSize, Role::Angle, Role::SpokeCount, Role::Gap, Role::AirGap}),
    family("ths", Kind::Thermal, QT_TRANSLATE_NOOP("Symbols", "round thermal with square ends"), 5,
           {Role::OuterSize, Role::InnerSize, Role::Angle, Role::SpokeCount, Role::Gap, Role::AirGap}),
    family("s_ths", Kind::Thermal, QT_TRANSLATE_NOOP("Symbols", "square thermal"), 5,
           {Role::OuterSize, Role::InnerSize, Role::Angle, Role::SpokeCount, Role::Gap, Role::Corner,
            Role::CornerList}),
    family("sr_ths", Kind::Thermal, QT_TRANSLATE_NOOP("Symbols", "square thermal with a round inside"), 5,
           {Role::OuterSize, Role::InnerSize, Role::Angle, Role::SpokeCount, Role::Gap, Role::AirGap}),
    family("rc_ths", Kind::Thermal, QT_TRANSLATE_NOOP("Symbols", "rectangular thermal"), 6,
           {Role::Width, Role::Height, Role::Angle, Role::SpokeCount, Role::Gap, Role::AirGap, Role::Corner,
            Role::CornerList}),
    family("moire", Kind::Moire, QT_TRANSLATE_NOOP("Symbols", "moire"), 6,
           {Role::RingWidth, Role::RingGap, Role::RingCount, Role::LineWidth, Role::LineLength, Role::Angle}),
    family("donut_rc", Kind::Described, QT_TRANSLATE_NOOP("Symbols", "rectangular donut"), 3,
           {Role::Width, Role::Height, Role::LineWidth, Role::Corner, Role::CornerList}),
    family("donut_sr", Kind::Described, QT_TRANSLATE_NOOP("Symbols", "square donut with a round inside"), 2,
           {Role::OuterSize, Role::InnerSize}),
    family("donut_o", Kind::Described, QT_TRANSLATE_NOOP("Symbols", "oval donut"), 3,
           {Role::Width, Role::Height, Role::LineWidth}),
    family("s_tho", Kind::Described, QT_TRANSLATE_NOOP("Symbols", "square thermal with open corners"), 5,
           {Role::OuterSize, Role::InnerSize, Role::Angle, Role::SpokeCount, Role::Gap, Role::Corner,
            Role::CornerList}),
    family("rc_tho", Kind::Described, QT_TRANSLATE_NOOP("Symbols", "rectangular thermal with open corners"),
           6,
           {Role::Width, Role::Height, Role::Angle, Role::SpokeCount, Role::Gap, Role::AirGap, Role::Corner,
            Role::CornerList}),
    family("o_ths", Kind::Described, QT_TRANSLATE_NOOP("Symbols", "oval thermal"), 6,
           {Role::Width, Role::Height, Role::Angle, Role::SpokeCount, Role::Gap, Role::LineWidth}),
};

constexpr std::size_t count(Kind kind)
{
    std::size_t found = 0;
    for (Family const & candidate : families) {
        found += candidate.kind == kind ? 1 : 0;
    }
    return found;
}

// The rewrites index the fields of thermals and moires up to the sixth.
constexpr bool thermalsHaveSixFields()
{
    for (Family const & candidate : families) {
        if ((candidate.kind == Kind::Thermal || candidate.kind == Kind::Moire) && candidate.fieldCount < 6) {
            return false;
        }
    }
    return true;
}

static_assert(count(Kind::Simple) == 15);
static_assert(count(Kind::Rectangle) == 1);
static_assert(count(Kind::Thermal) == 5);
static_assert(count(Kind::Moire) == 1);
static_assert(count(Kind::Described) == 6);
static_assert(thermalsHaveSixFields());

} // namespace

QStringView symbolPrefix(QStringView name)
{
    return name.left(std::find_if(name.begin(), name.end(), isAsciiDigit) - name.begin());
}

SymbolParts splitParts(QStringView name)
{
    SymbolParts parts;
    for (;;) {
        auto const separator = std::find(name.begin(), name.end(), QLatin1Char('x'));
        parts.append(name.left(separator - name.begin()));
        if (separator == name.end()) {
            return parts;
        }
        name = name.mid(separator - name.begin() + 1);
    }
}

Family const * findFamily(QStringView prefix)
{
    for (Family const & candidate : families) {
        if (prefix == QLatin1String(candidate.prefix.data(), static_cast<int>(candidate.prefix.size()))) {
            return &candidate;
        }
    }
    return nullptr;
}

Family const * findRewriteFamily(QStringView prefix)
{
    Family const * found = findFamily(prefix);
    if (found == nullptr && prefix.endsWith(QLatin1Char('x'))) {
        found = findFamily(prefix.chopped(1));
        return found != nullptr && found->kind == FamilyKind::Rectangle ? found : nullptr;
    }
    return found;
}

} // namespace KVCAM::UIAPI::Symbols
