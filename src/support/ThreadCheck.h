#pragma once

#include "UIAPICommonExport.h"

namespace KVCAM::UIAPI::Ext {

/// What becomes of a call from another thread than the one the library belongs to.
enum class ThreadCheck : int
{
    Off,     ///< nothing; nobody looks
    LogOnce, ///< the first one is logged at ERROR: "KVCAM UIAPI is called from a second thread"
    Abort    ///< it is logged, and the process aborts
};

/// Makes the flat functions and the methods of the singletons compare threads; Off until this is called. The
/// library belongs to the thread that calls this last, so call it in main(), before the first dialog. Setting
/// it again allows for one more log line. The calls themselves run as ever: nothing is locked. Meant for
/// debug builds of hosts.
/// \since 0.1
UIAPICOMMON_EXPORT void setThreadCheck(ThreadCheck check);

} // namespace KVCAM::UIAPI::Ext
