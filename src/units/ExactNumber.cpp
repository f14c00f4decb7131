#include "units/ExactNumber.h"

#include "support/Narrowing.h"
#include "support/NumberRuns.h"
#include "units/DecimalText.h"

#include <QLatin1Char>
#include <QString>

#include <algorithm>
#include <array>
#include <cstddef>
#include <numeric>

namespace KVCAM::UIAPI {
namespace {

constexpr int exactDigits = 18; // all numbers with so many fit

constexpr auto powersOfTen = [] {
    std::array<std::int64_t, exactDigits + 1> powers{1};
    for (std::size_t i = 1; i < powers.size(); ++i) {
        powers[i] = powers[i - 1] * 10;
    }
    return powers;
}();

} // namespace

ExactNumber ExactNumber::fromDigits(std::int64_t digits, int decimals) noexcept
{
    return fraction(digits, powersOfTen[static_cast<std::size_t>(decimals)]);
}

ExactNumber ExactNumber::fromDecimal(QStringView text)
{
    std::int64_t digits = 0;
    int decimals = 0;
    bool hasMark = false;
    for (QChar const c : text) {
        if (!isAsciiDigit(c)) {
            hasMark = true;
            continue;
        }
        if (digits >= powersOfTen[exactDigits - 1] || decimals == exactDigits) {
            return rounded(decimalValue(text.toString().replace(QLatin1Char(','), QLatin1Char('.'))));
        }
        digits = digits * 10 + (c.unicode() - '0');
        decimals += hasMark ? 1 : 0;
    }
    return fromDigits(digits, decimals);
}

std::optional<std::int64_t> ExactNumber::nearest() const noexcept
{
    if (!isExact()) {
        return fits(roundedValue()) ? std::optional(nearestInt64(roundedValue())) : std::nullopt;
    }
    std::int64_t const rest = m_numerator % m_denominator;
    std::int64_t const size = rest < 0 ? -rest : rest;
    std::int64_t const awayFromZero = size >= m_denominator - size ? (rest < 0 ? -1 : 1) : 0;
    return m_numerator / m_denominator + awayFromZero;
}

ExactNumber ExactNumber::reduced() const noexcept
{
    std::int64_t const divisor = std::gcd(m_numerator, m_denominator);
    return fraction(m_numerator / divisor, m_denominator / divisor);
}

std::optional<ExactNumber> ExactNumber::exactProduct(ExactNumber a, ExactNumber b) noexcept
{
    if (!fits(static_cast<double>(a.m_numerator) * static_cast<double>(b.m_numerator)) ||
        !fits(static_cast<double>(a.m_denominator) * static_cast<double>(b.m_denominator))) {
        return std::nullopt;
    }
    return fraction(a.m_numerator * b.m_numerator, a.m_denominator * b.m_denominator);
}

std::optional<ExactNumber> ExactNumber::exactSum(ExactNumber a, ExactNumber b) noexcept
{
    if (a.m_denominator != b.m_denominator) {
        auto const left = exactProduct(a, fraction(b.m_denominator, b.m_denominator));
        auto const right = exactProduct(b, fraction(a.m_denominator, a.m_denominator));
        if (!left || !right) {
            return std::nullopt;
        }
        a = *left;
        b = *right;
    }
    if (!fits(static_cast<double>(a.m_numerator) + static_cast<double>(b.m_numerator))) {
        return std::nullopt;
    }
    return fraction(a.m_numerator + b.m_numerator, a.m_denominator);
}

// Fractions are reduced only when they no longer fit.
ExactNumber ExactNumber::sum(ExactNumber a, ExactNumber b) noexcept
{
    if (a.isExact() && b.isExact()) {
        auto result = exactSum(a, b);
        if (result || (result = exactSum(a.reduced(), b.reduced()))) {
            return *result;
        }
    }
    return rounded(a.toDouble() + b.toDouble());
}

ExactNumber ExactNumber::product(ExactNumber a, ExactNumber b) noexcept
{
    if (a.isExact() && b.isExact()) {
        auto result = exactProduct(a, b);
        if (result || (result = exactProduct(a.reduced(), b.reduced()))) {
            return *result;
        }
    }
    return rounded(a.toDouble() * b.toDouble());
}

ExactNumber ExactNumber::quotient(ExactNumber a, ExactNumber b) noexcept
{
    if (!a.isExact() || !b.isExact() || b.m_numerator == 0) {
        return rounded(a.toDouble() / b.toDouble());
    }
    if (a.m_denominator == b.m_denominator && a.m_numerator % b.m_numerator == 0) {
        return fraction(a.m_numerator / b.m_numerator, 1);
    }
    bool const isNegative = b.m_numerator < 0;
    return a * fraction(isNegative ? -b.m_denominator : b.m_denominator,
                        isNegative ? -b.m_numerator : b.m_numerator);
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
