#include "board/PadFamilies.h"

#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace Workbench {

namespace {

constexpr PadFamily families[] = {
    {"r", false},
    {"s", false},
    {"rect", true},
    {"oval", true},
    {"oval_h", true},
    {"di", true},
    {"oct", true},
    {"el", true},
    {"tri", true},
    {"bfr", false},
    {"bfs", false},
    {"hex_l", true},
    {"hex_s", true},
    {"hole", false},
    {"donut_r", true},
    {"donut_s", true},
    {"donut_sr", true, false},
    {"donut_o", true, false},
    {"donut_rc", true, false},
    {"thr", true},
    {"ths", true},
    {"sr_ths", true},
    {"s_ths", true},
    {"s_tho", true, false},
    {"rc_ths", true},
    {"rc_tho", true, false},
    {"o_ths", true, false},
    {"moire", true},
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
        family != std::end(families) && !family->hasSecond && !parts.captured(3).isEmpty();
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
