#pragma once

#include <atomic>
#include <exception>

namespace KVCAM::Embedded {

/// Thrown by readers whose result is no longer wanted. Not a JobError: no file is to blame.
class ReadingStopped : public std::exception
{
public:
    char const * what() const noexcept override { return "reading was stopped"; }
};

/// What readers ask at every line and piece whether to go on. The flag may be set by another thread.
class StopFlag
{
public:
    /// Never stops.
    StopFlag() = default;
    /// The flag must outlive the reading.
    explicit StopFlag(std::atomic<bool> const & flag) : m_flag(&flag) {}

    /// Throws ReadingStopped when the flag is set.
    void check() const
    {
        if (m_flag != nullptr && m_flag->load(std::memory_order_relaxed)) {
            throw ReadingStopped();
        }
    }

private:
    std::atomic<bool> const * m_flag = nullptr;
};

} // namespace KVCAM::Embedded
