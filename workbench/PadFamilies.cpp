#include "PadFamilies.h"

#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace Workbench {

namespace {

using Outline = PadFamily::Outline;
using Second = PadFamily::Second;

constexpr PadFamily families[] = {
    {"r", Outline::Round, Second::None},
    {"s", Outline::Box, Second::None},
    {"rect", Outline::Box, Second::Height},
    {"oval", Outline::Oval, Second::Height},
    {"oval_h", Outline::Oval, Second::Height},
    {"di", Outline::Box, Second::Height},
    {"oct", Outline::Box, Second::Height},
    {"el", Outline::Round, Second::Height},
    {"tri", Outline::Box, Second::Height},
    {"bfr", Outline::Round, Second::None},
    {"bfs", Outline::Box, Second::None},
    {"hex_l", Outline::Box, Second::Height},
    {"hex_s", Outline::Box, Second::Height},
    {"hole", Outline::Round, Second::None},
    {"donut_r", Outline::Round, Second::RoundHole},
    {"donut_s", Outline::Box, Second::SquareHole},
    {"donut_sr", Outline::Box, Second::RoundHole, false},
    {"donut_o", Outline::Oval, Second::Height, false},
    {"donut_rc", Outline::Box, Second::Height, false},
    {"thr", Outline::Round, Second::RoundHole},
    {"ths", Outline::Round, Second::RoundHole},
    {"sr_ths", Outline::Box, Second::RoundHole},
    {"s_ths", Outline::Box, Second::SquareHole},
    {"s_tho", Outline::Box, Second::SquareHole, false},
    {"rc_ths", Outline::Box, Second::Height},
    {"rc_tho", Outline::Box, Second::Height, false},
    {"o_ths", Outline::Oval, Second::Height, false},
    {"moire", Outline::Round, Second::RingGap},
};

} // namespace

std::optional<PadName> parsePadName(QString const & name)
{
    static QRegularExpression const pattern(
        R"(^([a-z_]+)([0-9]+\.?[0-9]*)(?:x([0-9]+\.?[0-9]*)(?=x|$)|(?!x[0-9]))(x.*)?$)");
    auto const parts = pattern.match(name);
    if (!parts.hasMatch()) {
        return std::nullopt;
    }
    QString const prefix = parts.captured(1);
    auto const * family = std::find_if(std::begin(families), std::end(families), [&prefix](auto const & row) {
        return prefix == QLatin1String(row.prefix);
    });
    bool const hasStraySize =
        family != std::end(families) && family->second == Second::None && !parts.captured(3).isEmpty();
    if (family == std::end(families) || hasStraySize) {
        return std::nullopt;
    }
    return PadName{family, parts.captured(2), parts.captured(3), parts.captured(4)};
}

bool isSizeText(QString const & text)
{
    static QRegularExpression const pattern(R"(^[0-9]+\.?[0-9]*$)");
    return pattern.match(text).hasMatch();
}

} // namespace Workbench
