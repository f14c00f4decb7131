#pragma once

#include "Unit.h"

#include "UIAPICommonExport.h"

#include <QMetaType>
#include <QString>

#include <cstdint>
#include <limits>
#include <type_traits>

/// \addtogroup lengths
namespace KVCAM::UIAPI::Ext {

/// A length, exact to the nanometre: a whole number of them within +-(2^63 - 1). Results beyond that saturate
/// at lowest() and highest(). A double becomes the nearest nanometre, halves away from zero; NaN becomes 0.
/// Nothing depends on the locale.
/// \since 0.1
class Length
{
public:
    /// 0.
    constexpr Length() noexcept = default;

    /// A whole number of nanometres.
    [[nodiscard]] static constexpr Length fromNanometres(std::int64_t nanometres) noexcept
    {
        Length length;
        length.m_nanometres = nanometres < -limit ? -limit : nanometres;
        return length;
    }
    /// A number of the unit, multiplied as a double and then rounded: a number halfway between two nanometres
    /// may fall to either side, since few decimal fractions are doubles.
    [[nodiscard]] static constexpr Length from(double value, Unit unit, LengthScale scale) noexcept
    {
        return rounded(value * nanometresPer(unit, scale));
    }
    ///@{
    /// As from().
    [[nodiscard]] static constexpr Length fromMil(double value) noexcept
    {
        return from(value, Unit::Inch, LengthScale::Small);
    }
    [[nodiscard]] static constexpr Length fromInches(double value) noexcept
    {
        return from(value, Unit::Inch, LengthScale::Large);
    }
    [[nodiscard]] static constexpr Length fromMicrometres(double value) noexcept
    {
        return from(value, Unit::Millimetre, LengthScale::Small);
    }
    [[nodiscard]] static constexpr Length fromMillimetres(double value) noexcept
    {
        return from(value, Unit::Millimetre, LengthScale::Large);
    }
    ///@}
    ///@{
    /// The ends of the range: about nine million kilometres.
    [[nodiscard]] static constexpr Length lowest() noexcept { return fromNanometres(-limit); }
    [[nodiscard]] static constexpr Length highest() noexcept { return fromNanometres(limit); }
    ///@}

    /// The length itself.
    [[nodiscard]] constexpr std::int64_t nanometres() const noexcept { return m_nanometres; }
    /// The double nearest to the length in the unit, below 2^53 nanometres; beyond that rounded twice.
    [[nodiscard]] constexpr double to(Unit unit, LengthScale scale) const noexcept
    {
        return static_cast<double>(m_nanometres) / nanometresPer(unit, scale);
    }
    ///@{
    /// As to().
    [[nodiscard]] constexpr double toMil() const noexcept { return to(Unit::Inch, LengthScale::Small); }
    [[nodiscard]] constexpr double toInches() const noexcept { return to(Unit::Inch, LengthScale::Large); }
    [[nodiscard]] constexpr double toMicrometres() const noexcept
    {
        return to(Unit::Millimetre, LengthScale::Small);
    }
    [[nodiscard]] constexpr double toMillimetres() const noexcept
    {
        return to(Unit::Millimetre, LengthScale::Large);
    }
    ///@}

    ///@{
    /// The number in the unit, without the unit: digits, at most one point, "-" if below zero. Never an
    /// exponent, never "-0".
    ///
    /// With `decimals`, exactly so many, from 0 to 18 (others count as the nearer end), rounded halves away
    /// from zero. Without, the shortest text that reads back as the same length: 1 nanometre is "0.001"
    /// micrometre, "0.00004" mil.
    [[nodiscard]] UIAPICOMMON_EXPORT QString text(Unit unit, LengthScale scale, int decimals) const;
    [[nodiscard]] UIAPICOMMON_EXPORT QString text(Unit unit, LengthScale scale) const;
    ///@}
    /// The shortest text, a blank and the unit: "12.5 mil".
    [[nodiscard]] UIAPICOMMON_EXPORT QString textWithUnit(Unit unit, LengthScale scale,
                                                          MicrometreSign sign = MicrometreSign::My) const;

    ///@{
    /// Saturating.
    friend constexpr Length operator+(Length a, Length b) noexcept
    {
        bool const isUp = b.m_nanometres > 0;
        if (isUp ? a.m_nanometres > limit - b.m_nanometres : a.m_nanometres < -limit - b.m_nanometres) {
            return isUp ? highest() : lowest();
        }
        return fromNanometres(a.m_nanometres + b.m_nanometres);
    }
    friend constexpr Length operator-(Length a) noexcept { return fromNanometres(-a.m_nanometres); }
    friend constexpr Length operator-(Length a, Length b) noexcept { return a + -b; }
    friend constexpr Length operator+(Length a) noexcept { return a; }
    ///@}

    ///@{
    /// Saturating, halves away from zero. Exact for integers. With a double, exact below 2^53 nanometres up
    /// to the rounding of the double product. x / 0 saturates by the sign of x; 0 / 0 is 0.
    template <class Number, std::enable_if_t<std::is_arithmetic_v<Number>, int> = 0>
    friend constexpr Length operator*(Length a, Number factor) noexcept
    {
        if constexpr (std::is_floating_point_v<Number>) {
            return rounded(static_cast<double>(a.m_nanometres) * static_cast<double>(factor));
        } else {
            return a.times(whole(factor));
        }
    }
    template <class Number, std::enable_if_t<std::is_arithmetic_v<Number>, int> = 0>
    friend constexpr Length operator*(Number factor, Length a) noexcept
    {
        return a * factor;
    }
    template <class Number, std::enable_if_t<std::is_arithmetic_v<Number>, int> = 0>
    friend constexpr Length operator/(Length a, Number divisor) noexcept
    {
        if (divisor == 0) {
            return a.m_nanometres == 0 ? Length() : a.m_nanometres < 0 ? lowest() : highest();
        }
        if constexpr (std::is_floating_point_v<Number>) {
            return rounded(static_cast<double>(a.m_nanometres) / static_cast<double>(divisor));
        } else {
            return a.over(whole(divisor));
        }
    }
    ///@}
    /// The ratio as a double; x / 0 is infinite, 0 / 0 NaN.
    friend constexpr double operator/(Length a, Length b) noexcept
    {
        if (b.m_nanometres == 0) {
            return a.m_nanometres == 0  ? std::numeric_limits<double>::quiet_NaN()
                   : a.m_nanometres < 0 ? -std::numeric_limits<double>::infinity()
                                        : std::numeric_limits<double>::infinity();
        }
        return static_cast<double>(a.m_nanometres) / static_cast<double>(b.m_nanometres);
    }

    ///@{
    /// Exact.
    friend constexpr bool operator==(Length a, Length b) noexcept { return a.m_nanometres == b.m_nanometres; }
    friend constexpr bool operator!=(Length a, Length b) noexcept { return a.m_nanometres != b.m_nanometres; }
    friend constexpr bool operator<(Length a, Length b) noexcept { return a.m_nanometres < b.m_nanometres; }
    friend constexpr bool operator>(Length a, Length b) noexcept { return a.m_nanometres > b.m_nanometres; }
    friend constexpr bool operator<=(Length a, Length b) noexcept { return a.m_nanometres <= b.m_nanometres; }
    friend constexpr bool operator>=(Length a, Length b) noexcept { return a.m_nanometres >= b.m_nanometres; }
    ///@}

private:
    static constexpr std::int64_t limit = std::numeric_limits<std::int64_t>::max();

    static constexpr Length rounded(double nanometres) noexcept
    {
        constexpr double end = 9223372036854775808.0; // 2^63, the first double beyond the range
        if (nanometres != nanometres) {
            return {};
        }
        if (nanometres >= end || nanometres <= -end) {
            return nanometres < 0 ? lowest() : highest();
        }
        auto const towardZero = static_cast<std::int64_t>(nanometres);
        double const rest = nanometres - static_cast<double>(towardZero); // exact
        return fromNanometres(towardZero + (rest >= 0.5 ? 1 : rest <= -0.5 ? -1 : 0));
    }

    // An integer of any type, saturated.
    template <class Integer>
    static constexpr std::int64_t whole(Integer value) noexcept
    {
        if constexpr (std::is_unsigned_v<Integer>) {
            return value > static_cast<std::uint64_t>(limit) ? limit : static_cast<std::int64_t>(value);
        } else {
            return fromNanometres(value).m_nanometres;
        }
    }

    constexpr Length times(std::int64_t factor) const noexcept
    {
        std::int64_t const a = m_nanometres < 0 ? -m_nanometres : m_nanometres;
        std::int64_t const b = factor < 0 ? -factor : factor;
        bool const isNegative = (m_nanometres < 0) != (factor < 0);
        std::int64_t const product = b != 0 && a > limit / b ? limit : a * b;
        return fromNanometres(isNegative ? -product : product);
    }

    constexpr Length over(std::int64_t divisor) const noexcept
    {
        std::int64_t const a = m_nanometres < 0 ? -m_nanometres : m_nanometres;
        std::int64_t const b = divisor < 0 ? -divisor : divisor;
        std::int64_t const rest = a % b;
        std::int64_t const quotient = a / b + (rest >= b - rest ? 1 : 0);
        return fromNanometres((m_nanometres < 0) != (divisor < 0) ? -quotient : quotient);
    }

    std::int64_t m_nanometres = 0;
};

/// Lengths in tables and tests: 10_mil, 0.5_mm, 25_um, 1_in, 100_nm. Inline, so that `using namespace
/// KVCAM::UIAPI::Ext` or KVCAM::UIAPI::Ext::LengthLiterals brings them. As from().
inline namespace LengthLiterals {

///@{
/// Of whole and of decimal numbers.
constexpr Length operator""_mil(unsigned long long value) noexcept
{
    return Length::fromMil(static_cast<double>(value));
}
constexpr Length operator""_mil(long double value) noexcept
{
    return Length::fromMil(static_cast<double>(value));
}
constexpr Length operator""_in(unsigned long long value) noexcept
{
    return Length::fromInches(static_cast<double>(value));
}
constexpr Length operator""_in(long double value) noexcept
{
    return Length::fromInches(static_cast<double>(value));
}
constexpr Length operator""_um(unsigned long long value) noexcept
{
    return Length::fromMicrometres(static_cast<double>(value));
}
constexpr Length operator""_um(long double value) noexcept
{
    return Length::fromMicrometres(static_cast<double>(value));
}
constexpr Length operator""_mm(unsigned long long value) noexcept
{
    return Length::fromMillimetres(static_cast<double>(value));
}
constexpr Length operator""_mm(long double value) noexcept
{
    return Length::fromMillimetres(static_cast<double>(value));
}
///@}
/// Whole nanometres.
constexpr Length operator""_nm(unsigned long long value) noexcept
{
    return Length::fromNanometres(1) * value;
}

} // namespace LengthLiterals

} // namespace KVCAM::UIAPI::Ext

Q_DECLARE_METATYPE(KVCAM::UIAPI::Ext::Length)
