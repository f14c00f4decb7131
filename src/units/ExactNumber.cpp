#include "units/ExactNumber.h"

#include "support/Narrowing.h"
#include "support/NumberRuns.h"
#include "units/DecimalText.h"

#include <QLatin1Char>
#include <QString>

#include <algorithm>

namespace KVCAM::UIAPI {

ExactNumber ExactNumber::fromDecimal(QStringView text)
{
    constexpr std::int64_t end = 100'000'000'000'000'000; // another digit fits below it
    std::int64_t digits = 0;
    std::int64_t scale = 1;
    bool hasMark = false;
    for (QChar const c : text) {
        if (!isAsciiDigit(c)) {
            hasMark = true;
            continue;
        }
        if (digits >= end || scale >= end) {
            return rounded(decimalValue(text.toString().replace(QLatin1Char(','), QLatin1Char('.'))));
        }
        digits = digits * 10 + (c.unicode() - '0');
        scale *= hasMark ? 10 : 1;
    }
    return fraction(digits, scale);
}

std::optional<std::int64_t> ExactNumber::nearest() const noexcept
{
    if (!isExact()) {
        return fits(m_rounded) ? std::optional(nearestInt64(m_rounded)) : std::nullopt;
    }
    std::int64_t const rest = m_numerator % m_denominator;
    bool const isUp = (rest < 0 ? -rest : rest) >= m_denominator - (rest < 0 ? -rest : rest);
    return m_numerator / m_denominator + (isUp ? (rest < 0 ? -1 : 1) : 0);
}

bool areSame(ExactNumber a, ExactNumber b) noexcept
{
    ExactNumber const difference = a - b;
    if (difference.isExact()) {
        return difference.isZero();
    }
    constexpr double noise = 1e-12;
    double const size = std::max(std::abs(a.toDouble()), std::abs(b.toDouble()));
    return std::abs(difference.toDouble()) <= noise * size;
}

} // namespace KVCAM::UIAPI
