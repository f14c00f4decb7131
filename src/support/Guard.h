#pragma once

#include "support/Log.h"

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

/// Runs `body` and returns its result; if anything is thrown, logs the two lines of a caught exception under
/// `source` and returns a value-initialised result (0, false, null, empty).
template <class Body>
auto guarded(char const * source, Body && body, int line = __builtin_LINE())
{
    using Result = std::decay_t<decltype(body())>;
    auto const log = [&](std::string const & what) { Log::caughtException(source, what, line); };
    if constexpr (std::is_void_v<Result>) {
        guard(std::forward<Body>(body), log);
    } else {
        Result result{};
        guard([&] { result = body(); }, log);
        return result;
    }
}

} // namespace KVCAM::UIAPI
