#include "units/UnitConversion.h"

#include "support/Narrowing.h"

#include <QByteArray>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <map>

namespace KVCAM::UIAPI::Units {
namespace {

// No double has more. Qt aborts the process if a text would need more memory than an int can count.
constexpr int mostDecimals = 1074;

} // namespace

double toUnit(int unit, double value)
{
    double const converted = unit == inch ? value / millimetresPerInch : value * millimetresPerInch;
    double const scale = unit == inch ? 100000.0 : 1000.0;
    double const whole = std::trunc(converted) + 0.0; // turns -0.0 into 0.0, as int would
    if (!std::isfinite(whole)) {
        return converted; // the fraction would be NaN
    }
    return whole + std::round((converted - whole) * scale) / scale;
}

double toEngine(int unit, int kind, double value)
{
    bool const metric = unit == millimetre;
    switch (kind) {
    case 0:
        return value * (metric ? nanometresPerMillimetre : nanometresPerInch);
    case 1:
        return value * (metric ? micrometresPerMillimetre : micrometresPerInch);
    default:
        return 0.0;
    }
}

double toMil(int unit, int kind, double value)
{
    if (unit != millimetre) {
        return value;
    }
    return kind == 0 || kind == 1 ? value / millimetresPerInch : 0.0;
}

double fromMicrometres(int unit, double value)
{
    return value / (unit == inch ? micrometresPerInch : micrometresPerMillimetre);
}

double milToSmallUnit(int unit, double value)
{
    return unit == inch ? value : value * millimetresPerInch;
}

int milToSmallUnitTruncated(int unit, double value)
{
    return saturatedInt(milToSmallUnit(unit, value));
}

int smallUnitToMilTruncated(int unit, double value)
{
    return saturatedInt(unit == inch ? value : value / millimetresPerInch);
}

QString milText(int unit, double value, int precision)
{
    return unit == inch ? QString::number(value, 'g', 6)
                        : QString::number(value * millimetresPerInch, 'f', std::min(precision, mostDecimals));
}

QString micrometresText(int unit, double value)
{
    return QString::number(fromMicrometres(unit, value), 'f', 3);
}

QString areaText(int unit, double value)
{
    return unit == inch ? QString::number(value, 'g', 6)
                        : QString::number(value * squareMillimetresPerSquareInch, 'f', 4);
}

std::string plainText(double value)
{
    QByteArray const text = QString::number(value, 'f', 6).toLatin1();
    int end = text.size();
    while (end > 0 && text[end - 1] == '0') {
        --end;
    }
    // The point is dropped only with all the zeros after it. There are always six decimals, so zeros of the
    // integer part are never reached; "inf" and "nan" have nothing to drop.
    if (end < text.size() && end > 0 && text[end - 1] == '.') {
        --end;
    }
    return {text.constData(), static_cast<std::size_t>(end)};
}

std::string name(int unit)
{
    static std::map<int, std::string> const names{{inch, "Inch"}, {millimetre, "MM"}};
    auto const found = names.find(unit);
    return found == names.end() ? std::string() : found->second;
}

std::string nameByKind(int unit, int kind)
{
    // The dialogs display micrometre as "my".
    static std::map<int, std::map<int, std::string>> names{{inch, {{0, "inch"}, {1, "mil"}}},
                                                           {millimetre, {{0, "mm"}, {1, "my"}}}};
    // The look-up inserts: an unknown unit gets an empty row.
    std::map<int, std::string> const & row = names[unit];
    auto const found = row.find(kind);
    return found == row.end() ? std::string() : found->second;
}

std::string areaName(int unit)
{
    return unit == inch ? "sq/in" : "sq/mm";
}

} // namespace KVCAM::UIAPI::Units
