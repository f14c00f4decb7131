#pragma once

#include <cstddef>
#include <string>

namespace KVCAM::Testing {

/// A text whose completeness can be checked: its number, then as many letters as the number demands.
inline std::string generation(int number)
{
    return std::to_string(number) + ":" +
           std::string(static_cast<std::size_t>(number % 40) * 3000, static_cast<char>('a' + number % 26));
}

} // namespace KVCAM::Testing
