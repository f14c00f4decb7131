#include "formats/Budget.h"

#include "formats/InputFile.h"

namespace KVCAM::Embedded {

std::string exceededLimit(Budget const & budget)
{
    JobLimits const & limits = budget.limits;
    if (budget.bytes > limits.bytes) {
        return "with this file more than " + sizeText(limits.bytes).toStdString() +
               " of the job are read, its limit";
    }
    if (budget.points > limits.points) {
        return "the job holds more than " + std::to_string(limits.points) +
               " features and sides of contours, its limit";
    }
    if (budget.symbols > limits.symbols) {
        return "the job holds more than " + std::to_string(limits.symbols) + " symbols, its limit";
    }
    return {};
}

} // namespace KVCAM::Embedded
