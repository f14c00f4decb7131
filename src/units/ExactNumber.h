#pragma once

#include <QStringView>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <optional>

namespace KVCAM::UIAPI {

/// A fraction of two 64-bit integers, exact as long as both fit; from then on a double, computed by the
/// operations of IEEE 754 only, so that every system gives the same result.
class ExactNumber
{
public:
    ExactNumber() noexcept = default; ///< 0
    explicit ExactNumber(std::int64_t whole) noexcept : m_numerator(whole) {}
    /// `digits` divided by ten to the power of `decimals`, from 0 to 18.
    static ExactNumber fromDigits(std::int64_t digits, int decimals) noexcept;
    /// '0' to '9' and at most one '.' or ',', at least one digit; infinite if too large for a double.
    static ExactNumber fromDecimal(QStringView text);

    bool isZero() const noexcept { return isExact() ? m_numerator == 0 : roundedValue() == 0; }
    bool isFinite() const noexcept { return isExact() || std::isfinite(roundedValue()); }
    double toDouble() const noexcept
    {
        return isExact() ? static_cast<double>(m_numerator) / static_cast<double>(m_denominator)
                         : roundedValue();
    }
    /// The nearest whole number, halves away from zero; nothing beyond +-9.2e18.
    std::optional<std::int64_t> nearest() const noexcept;

    friend ExactNumber operator-(ExactNumber a) noexcept
    {
        return a.isExact() ? fraction(-a.m_numerator, a.m_denominator) : rounded(-a.roundedValue());
    }
    friend ExactNumber operator+(ExactNumber a, ExactNumber b) noexcept
    {
        // Bounds are judged on doubles: their rounding is far smaller than what is left up to 2^63.
        bool const isLike = a.m_denominator == b.m_denominator && a.isExact();
        if (isLike && fits(static_cast<double>(a.m_numerator) + static_cast<double>(b.m_numerator))) {
            return fraction(a.m_numerator + b.m_numerator, a.m_denominator);
        }
        return sum(a, b);
    }
    friend ExactNumber operator-(ExactNumber a, ExactNumber b) noexcept { return a + -b; }
    friend ExactNumber operator*(ExactNumber a, ExactNumber b) noexcept
    {
        bool const areWhole = a.m_denominator == 1 && b.m_denominator == 1;
        if (areWhole && fits(static_cast<double>(a.m_numerator) * static_cast<double>(b.m_numerator))) {
            return fraction(a.m_numerator * b.m_numerator, 1);
        }
        return product(a, b);
    }
    /// Infinite or NaN for a divisor of zero.
    friend ExactNumber operator/(ExactNumber a, ExactNumber b) noexcept { return quotient(a, b); }
    /// Whether two numbers are equal, up to the rounding of doubles if one is rounded.
    friend bool areSame(ExactNumber a, ExactNumber b) noexcept;

private:
    bool isExact() const noexcept { return m_denominator != 0; }
    double roundedValue() const noexcept
    {
        double value = 0;
        std::memcpy(&value, &m_numerator, sizeof value);
        return value;
    }

    static bool fits(double value) noexcept { return value < 9.2e18 && value > -9.2e18; }
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
        std::memcpy(&number.m_numerator, &value, sizeof value);
        number.m_denominator = 0;
        return number;
    }
    ExactNumber reduced() const noexcept;
    static std::optional<ExactNumber> exactSum(ExactNumber a, ExactNumber b) noexcept;
    static std::optional<ExactNumber> exactProduct(ExactNumber a, ExactNumber b) noexcept;
    static ExactNumber sum(ExactNumber a, ExactNumber b) noexcept;
    static ExactNumber product(ExactNumber a, ExactNumber b) noexcept;
    static ExactNumber quotient(ExactNumber a, ExactNumber b) noexcept;

    std::int64_t m_numerator = 0;   // holds the bits of a double if the denominator is 0
    std::int64_t m_denominator = 1; // not below 0
};

} // namespace KVCAM::UIAPI
