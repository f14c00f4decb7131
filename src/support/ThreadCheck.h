#pragma once

#include "UIAPICommonExport.h"

namespace KVCAM::UIAPI::Ext {

/// How a call from a thread other than the library's own is handled.
enum class ThreadCheck : int
{
    Off,     ///< no check
    LogOnce, ///< the first such call is logged at ERROR: "KVCAM UIAPI is called from a second thread"
    Abort    ///< the call is logged, and the process aborts
};

/// Makes the flat functions and the methods of the singletons compare threads; Off until this is called. The
/// library belongs to the thread that calls this last, so call it in main(), before the first dialog. Setting
/// it again allows for one more log line. The calls themselves run as ever: nothing is locked. Meant for
/// debug builds of hosts.
/// \since 0.1
UIAPICOMMON_EXPORT void setThreadCheck(ThreadCheck check);

} // namespace KVCAM::UIAPI::Ext
