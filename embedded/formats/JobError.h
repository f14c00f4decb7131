#pragma once

#include <stdexcept>

namespace KVCAM::Embedded {

/// Why a job's file cannot be used: "file:line: reason". Thrown by readers, caught by the engine's calls.
class JobError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

} // namespace KVCAM::Embedded
