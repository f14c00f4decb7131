#include "support/Guard.h"

#include "support/Log.h"
#include "support/ThreadCheck.h"

#include <cstdlib>
#include <thread>

namespace KVCAM::UIAPI {
namespace {

// Atomic: any thread may read them.
std::atomic<std::thread::id> owner;
std::atomic<bool> aborts{false};
std::atomic<bool> reported{false};

} // namespace

std::atomic<bool> Guard::comparesThreads{false};

void Guard::compareThreads(char const * source, int line)
{
    if (std::this_thread::get_id() == owner) {
        return;
    }
    if (!reported.exchange(true)) {
        Log::error(source, "KVCAM UIAPI is called from a second thread", line);
    }
    if (aborts) {
        std::abort();
    }
}

void Guard::logCurrentException(char const * source, int line) noexcept
{
    try {
        guard([] { throw; }, [&](std::string const & what) { Log::caughtException(source, what, line); });
    } catch (...) { // NOLINT(bugprone-empty-catch): no way left to report it
    }
}

void Ext::setThreadCheck(ThreadCheck check)
{
    Guard::comparesThreads = false;
    owner = std::this_thread::get_id();
    aborts = check == ThreadCheck::Abort;
    reported = false;
    Guard::comparesThreads = check != ThreadCheck::Off;
}

} // namespace KVCAM::UIAPI
