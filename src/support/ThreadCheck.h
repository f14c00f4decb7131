#pragma once

#include "UIAPICommonExport.h"

/// \addtogroup safety
namespace KVCAM::UIAPI::Ext {

/// How a call from a thread other than the library's own is handled.
enum class ThreadCheck : int
{
    Off,     ///< no check
    LogOnce, ///< the first such call is logged at ERROR: "KVCAM UIAPI is called from a second thread"
    Abort    ///< the call is logged, and the process aborts
};

/// Makes the flat functions and the singletons' methods compare threads. Off until called. The library
/// belongs to the thread of the most recent call, so call it in main(), before the first dialog. Each call
/// of it allows one more log line. The checked calls still run, and nothing is locked. Meant for debug builds
/// of hosts. \since 0.1
UIAPICOMMON_EXPORT void setThreadCheck(ThreadCheck check);

} // namespace KVCAM::UIAPI::Ext
