#include "units/Length.h"

#include <QChar>
#include <QLatin1Char>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace KVCAM::UIAPI::Ext {
namespace {

constexpr int mostDecimals = 18;
constexpr std::uint64_t ten = 10;

// A magnitude as the whole units and the nanometres that are left.
struct Parts
{
    std::uint64_t whole;
    std::uint64_t rest;
    std::uint64_t perUnit;
};

Parts partsOf(Length length, Unit unit, LengthScale scale)
{
    std::int64_t const nanometres = length.nanometres();
    auto const magnitude = static_cast<std::uint64_t>(nanometres < 0 ? -nanometres : nanometres);
    auto const perUnit = static_cast<std::uint64_t>(nanometresPer(unit, scale));
    return {magnitude / perUnit, magnitude % perUnit, perUnit};
}

std::uint64_t quotientRounded(std::uint64_t dividend, std::uint64_t divisor)
{
    return (dividend + divisor / 2) / divisor; // halves up; every divisor is even or 1
}

// Writes digits from the end of a buffer that holds every text: 19 digits, a point, 18 decimals, a sign.
class Writer
{
public:
    void digit(std::uint64_t value)
    {
        *--m_first = QLatin1Char(static_cast<char>('0' + value));
        m_isZero = m_isZero && value == 0;
    }

    QString finish(std::uint64_t whole, bool hasDecimals, bool isNegative)
    {
        if (hasDecimals) {
            *--m_first = QLatin1Char('.');
        }
        do {
            digit(whole % ten);
            whole /= ten;
        } while (whole != 0);
        if (isNegative && !m_isZero) {
            *--m_first = QLatin1Char('-');
        }
        return QString(m_first, static_cast<int>(m_buffer.data() + m_buffer.size() - m_first));
    }

private:
    static constexpr std::size_t longest = 40;
    std::array<QChar, longest> m_buffer;
    QChar * m_first = m_buffer.data() + m_buffer.size();
    bool m_isZero = true;
};

} // namespace

QString Length::text(Unit unit, LengthScale scale, int decimals) const
{
    Parts const parts = partsOf(*this, unit, scale);
    std::array<std::uint64_t, mostDecimals> digits;
    auto const end = digits.begin() + std::clamp(decimals, 0, mostDecimals);
    std::uint64_t rest = parts.rest;
    for (auto digit = digits.begin(); digit != end; ++digit) {
        rest *= ten;
        *digit = rest / parts.perUnit;
        rest %= parts.perUnit;
    }
    bool carries = rest * 2 >= parts.perUnit;
    Writer writer;
    for (auto digit = end; digit != digits.begin();) {
        --digit;
        std::uint64_t const value = *digit + (carries ? 1 : 0);
        carries = value == ten;
        writer.digit(carries ? 0 : value);
    }
    return writer.finish(parts.whole + (carries ? 1 : 0), end != digits.begin(), m_nanometres < 0);
}

QString Length::text(Unit unit, LengthScale scale) const
{
    Parts const parts = partsOf(*this, unit, scale);
    // At most 8 decimals: 10^-8 inch is about a quarter of a nanometre.
    int decimals = 0;
    std::uint64_t fraction = 0;
    for (std::uint64_t power = 1;; power *= ten, ++decimals) {
        fraction = quotientRounded(parts.rest * power, parts.perUnit);
        if (quotientRounded(fraction * parts.perUnit, power) == parts.rest) {
            break;
        }
    }
    Writer writer;
    for (int left = decimals; left > 0; --left) {
        writer.digit(fraction % ten);
        fraction /= ten;
    }
    return writer.finish(parts.whole, decimals > 0, m_nanometres < 0);
}

QString Length::textWithUnit(Unit unit, LengthScale scale, MicrometreSign sign) const
{
    return text(unit, scale) + QLatin1Char(' ') + unitSuffix(unit, scale, sign);
}

} // namespace KVCAM::UIAPI::Ext
