#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

namespace KVCAM::UIAPI {

/// `value` truncated toward zero; saturates at the ends of int, and NaN gives 0. A plain cast of an
/// out-of-range value is undefined behaviour.
inline int saturatedInt(double value) noexcept
{
    if (std::isnan(value)) {
        return 0;
    }
    // Both ends of a 32-bit int are exact doubles.
    if (value >= static_cast<double>(std::numeric_limits<int>::max())) {
        return std::numeric_limits<int>::max();
    }
    if (value <= static_cast<double>(std::numeric_limits<int>::min())) {
        return std::numeric_limits<int>::min();
    }
    return static_cast<int>(value);
}

/// `value` rounded to the nearest whole number, halves away from zero; saturates at the ends of a 64-bit
/// integer, and NaN gives 0.
inline std::int64_t nearestInt64(double value) noexcept
{
    if (std::isnan(value)) {
        return 0;
    }
    // 2^63, the first double that does not fit; the lower end is an exact double.
    constexpr double end = 9223372036854775808.0;
    if (value >= end) {
        return std::numeric_limits<std::int64_t>::max();
    }
    if (value <= -end) {
        return std::numeric_limits<std::int64_t>::min();
    }
    return static_cast<std::int64_t>(std::round(value));
}

} // namespace KVCAM::UIAPI
