#pragma once

#include "Result.h"
#include "UIAPICommonExport.h"

#include <QString>

namespace KVCAM::UIAPI::Ext {

/// A severity of log lines, ascending.
/// \since 0.2
enum class LogLevel : int
{
    Info,
    Warning,
    Error,
    None ///< beyond all that the library logs
};

/// Where log lines go. All of them also reach the host's google::LogSink objects.
/// \since 0.2
struct LogOptions
{
    LogLevel terminal = LogLevel::Warning; ///< lines of this severity and above go to stderr
    QString folder; ///< all lines also go to one file per run there, named after the program; empty: no files
};

/// Starts glog for the host, with the library that UIAPICommon itself logs through; on Windows a host's own
/// copy is another one. Call it once, before any other function; without it the host calls
/// google::InitGoogleLogging() itself, and the library never does. `program` is usually argv[0].
///
/// If logging was started already, by whomever, nothing changes, and the result says so. If the folder cannot
/// be made or written, logging starts without files, and the result has the reason, translated.
/// \since 0.2
UIAPICOMMON_EXPORT Result startLogging(char const * program, LogOptions const & options = {});

} // namespace KVCAM::UIAPI::Ext
