#pragma once

#include <cmath>
#include <limits>

namespace KVCAM::UIAPI {

/// `value` truncated toward zero; saturates at the ends of int, and NaN gives 0. A plain cast of a value
/// that does not fit is undefined.
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

} // namespace KVCAM::UIAPI
