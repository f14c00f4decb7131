#pragma once

#include <QStringView>

#include <cmath>
#include <cstdint>
#include <numeric>
#include <optional>

namespace KVCAM::UIAPI {

/// A fraction of two 64-bit integers, exact as long as both fit; from then on a double, computed by the
/// operations of IEEE 754 only, so that every system gives the same result.
class ExactNumber
{
public:
    ExactNumber() noexcept = default;                                ///< 0
    explicit ExactNumber(std::int64_t whole) noexcept : m_numerator(whole) {}
    /// '0' to '9' and at most one '.' or ',', at least one digit; infinite if too large for a double.
    static ExactNumber fromDecimal(QStringView text);

    bool isZero() const noexcept { return isExact() ? m_numerator == 0 : m_rounded == 0; }
    bool isFinite() const noexcept { return isExact() || std::isfinite(m_rounded); }
    double toDouble() const noexcept
    {
        return isExact() ? static_cast<double>(m_numerator) / static_cast<double>(m_denominator) : m_rounded;
    }
    /// The nearest whole number, halves away from zero; nothing beyond +-(2^63 - 1).
    std::optional<std::int64_t> nearest() const noexcept;

    friend ExactNumber operator-(ExactNumber a) noexcept
    {
        a.m_numerator = -a.m_numerator;
        a.m_rounded = -a.m_rounded;
        return a;
    }
    friend ExactNumber operator+(ExactNumber a, ExactNumber b) noexcept
    {
        if (auto const sum = combined(a, b, exactSum)) {
            return *sum;
        }
        return rounded(a.toDouble() + b.toDouble());
    }
    friend ExactNumber operator-(ExactNumber a, ExactNumber b) noexcept { return a + -b; }
    friend ExactNumber operator*(ExactNumber a, ExactNumber b) noexcept
    {
        if (auto const product = combined(a, b, exactProduct)) {
            return *product;
        }
        return rounded(a.toDouble() * b.toDouble());
    }
    /// Infinite or NaN for a divisor of zero.
    friend ExactNumber operator/(ExactNumber a, ExactNumber b) noexcept
    {
        if (b.isExact() && b.m_numerator != 0) {
            if (auto const quotient = combined(a, b.inverse(), exactProduct)) {
                return *quotient;
            }
        }
        return rounded(a.toDouble() / b.toDouble());
    }
    /// Whether two numbers are equal, up to the rounding of doubles if one is rounded.
    friend bool areSame(ExactNumber a, ExactNumber b) noexcept;

private:
    bool isExact() const noexcept { return m_denominator != 0; }

    static ExactNumber fraction(std::int64_t numerator, std::int64_t denominator) noexcept
    {
        ExactNumber number;
        number.m_numerator = numerator;
        number.m_denominator = denominator;
        return number;
    }
    static ExactNumber rounded(double value) noexcept
    {
        ExactNumber number;
        number.m_denominator = 0;
        number.m_rounded = value;
        return number;
    }
    ExactNumber inverse() const noexcept
    {
        return m_numerator < 0 ? fraction(-m_denominator, -m_numerator)
                               : fraction(m_denominator, m_numerator);
    }
    ExactNumber reduced() const noexcept
    {
        std::int64_t const divisor = std::gcd(m_numerator, m_denominator);
        return fraction(m_numerator / divisor, m_denominator / divisor);
    }

    // Products are judged as doubles: the rounding is far smaller than the distance to 2^63.
    static bool fits(double value) noexcept { return value < 9.2e18 && value > -9.2e18; }
    static std::optional<std::int64_t> product(std::int64_t a, std::int64_t b) noexcept
    {
        if (!fits(static_cast<double>(a) * static_cast<double>(b))) {
            return std::nullopt;
        }
        return a * b;
    }
    static std::optional<ExactNumber> exactProduct(ExactNumber a, ExactNumber b) noexcept
    {
        auto const numerator = product(a.m_numerator, b.m_numerator);
        auto const denominator = product(a.m_denominator, b.m_denominator);
        if (!numerator || !denominator) {
            return std::nullopt;
        }
        return fraction(*numerator, *denominator);
    }
    static std::optional<ExactNumber> exactSum(ExactNumber a, ExactNumber b) noexcept
    {
        std::int64_t denominator = a.m_denominator;
        if (a.m_denominator != b.m_denominator) {
            auto const left = product(a.m_numerator, b.m_denominator);
            auto const right = product(b.m_numerator, a.m_denominator);
            auto const both = product(a.m_denominator, b.m_denominator);
            if (!left || !right || !both) {
                return std::nullopt;
            }
            a.m_numerator = *left;
            b.m_numerator = *right;
            denominator = *both;
        }
        if (!fits(static_cast<double>(a.m_numerator) + static_cast<double>(b.m_numerator))) {
            return std::nullopt;
        }
        return fraction(a.m_numerator + b.m_numerator, denominator);
    }
    // Fractions are reduced only when they no longer fit.
    template <class Operation>
    static std::optional<ExactNumber> combined(ExactNumber a, ExactNumber b,
                                               Operation const & operation) noexcept
    {
        if (!a.isExact() || !b.isExact()) {
            return std::nullopt;
        }
        auto const result = operation(a, b);
        return result ? result : operation(a.reduced(), b.reduced());
    }

    std::int64_t m_numerator = 0;
    std::int64_t m_denominator = 1; // above 0; 0: `m_rounded` counts instead
    double m_rounded = 0;
};

} // namespace KVCAM::UIAPI
