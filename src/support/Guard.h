#pragma once

#include <atomic>
#include <exception>
#include <string>
#include <type_traits>
#include <utility>

/// No exception leaves the library: whatever an engine, the allocator or a slot throws ends here.
namespace KVCAM::UIAPI {

/// Runs `body`; if anything at all is thrown, calls `onFailure` with the exception's text. True on success.
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

/// Parts of guarded() that are no templates.
namespace Guard {

/// Whether Ext::setThreadCheck() wants threads compared.
extern std::atomic<bool> comparesThreads;

/// Reports the caller, or ends the process, when it is not on the thread that the library belongs to.
void compareThreads(char const * source, int line);

/// Logs the exception that is being handled as the two lines of a caught exception. Throws nothing: where
/// there is no memory for the lines either, they are left out.
void logCurrentException(char const * source, int line) noexcept;

} // namespace Guard

/// Runs `body` and returns its result; if anything is thrown, logs the two lines of a caught exception under
/// `source` and returns a value-initialised result (0, false, null, empty). This is the library's boundary:
/// flat functions and public methods of singletons run in it. One inside another logs once, since nothing
/// leaves the inner one.
template <class Body>
auto guarded(char const * source, Body && body, int line = __builtin_LINE())
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
