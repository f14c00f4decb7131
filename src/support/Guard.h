#pragma once

#include "support/Compiler.h"

#include <atomic>
#include <exception>
#include <string>
#include <type_traits>
#include <utility>

/// No exception leaves the library: anything thrown by an engine, the allocator or a slot is caught here.
namespace KVCAM::UIAPI {

/// Runs `body`. If anything is thrown, calls `onFailure` with the exception's text. True on success.
template <class Body, class OnFailure>
bool guard(Body && body, OnFailure && onFailure)
{
    try {
        std::forward<Body>(body)();
        return true;
    } catch (std::exception const & e) {
        onFailure(std::string(e.what()));
    } catch (...) {
        onFailure(std::string("unknown exception"));
    }
    return false;
}

/// The non-template parts of guarded().
namespace Guard {

/// Whether Ext::setThreadCheck() enabled the thread comparison.
extern std::atomic<bool> comparesThreads;

/// Reports the caller or aborts the process if it is not on the library's thread.
void compareThreads(char const * source, int line);

/// Logs the exception being handled as the two lines of a caught exception. Never throws: without memory for
/// the lines, they are dropped.
void logCurrentException(char const * source, int line) noexcept;

} // namespace Guard

/// Runs `body` and returns its result. If anything is thrown, logs the two lines of a caught exception under
/// `source` and returns a value-initialised result (0, false, null, empty). This is the library's boundary:
/// flat functions and public methods of singletons run inside it. Nested calls log once, because nothing
/// leaves the inner one.
template <class Body>
auto guarded(char const * source, Body && body, int line = UIAPI_CALLER_LINE)
{
    using Result = std::decay_t<decltype(body())>;
    try {
        if (Guard::comparesThreads.load(std::memory_order_relaxed)) {
            Guard::compareThreads(source, line);
        }
        return static_cast<Result>(body());
    } catch (...) {
        Guard::logCurrentException(source, line);
    }
    return Result();
}

} // namespace KVCAM::UIAPI
