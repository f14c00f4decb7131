#include "units/DecimalText.h"

#include "support/NumberRuns.h"

#include <array>
#include <cmath>
#include <cstddef>

namespace KVCAM::UIAPI {
namespace {

// All are exact doubles.
constexpr std::array<double, 16> powersOfTen{1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                             1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
constexpr int exactDigits = 15; // whole numbers with this many digits are exact doubles

QString toText(QStringView text)
{
    return text.toString();
}

QString toText(QLatin1String text)
{
    return text;
}

template <class Text>
double valueOf(Text text)
{
    // Fast path: nearly every text is digits with at most one point between them. With up to 15 digits, both
    // the digits as a whole number and the power of ten are exact, so a single division gives the double
    // nearest to the text, the same as the full conversion. All other texts take the full conversion.
    qint64 whole = 0;
    int digits = 0;
    qsizetype point = -1;
    bool plain = text.size() <= exactDigits + 1;
    for (qsizetype i = 0; plain && i < text.size(); ++i) {
        QChar const c = text[static_cast<int>(i)];
        if (isAsciiDigit(c)) {
            whole = whole * 10 + (c.unicode() - '0');
            ++digits;
        } else {
            plain = c == QLatin1Char('.') && point < 0 && i > 0 && i + 1 < text.size();
            point = i;
        }
    }
    if (!plain || digits == 0 || digits > exactDigits) {
        return toText(text).toDouble();
    }
    qsizetype const decimals = point < 0 ? 0 : text.size() - point - 1;
    return static_cast<double>(whole) / powersOfTen[static_cast<std::size_t>(decimals)];
}

} // namespace

double decimalValue(QStringView text)
{
    return valueOf(text);
}

double latinDecimalValue(QLatin1String text)
{
    return valueOf(text);
}

void appendSixDigits(QString & out, double value)
{
    // Fast path: a whole number of up to six digits is its own general form, and sizes often are such.
    constexpr double end = 1e6;
    if (!(value >= 0 && value < end) || value != std::trunc(value)) {
        out += QString::number(value, 'g', 6);
        return;
    }
    std::array<QChar, 6> digits;
    auto first = digits.end();
    int rest = static_cast<int>(value);
    do {
        *--first = QLatin1Char(static_cast<char>('0' + rest % 10));
        rest /= 10;
    } while (rest != 0);
    out.append(&*first, static_cast<int>(digits.end() - first));
}

} // namespace KVCAM::UIAPI
