#pragma once

#include "support/Compiler.h"

#include <string>

/// Log lines. They go to glog under the base name of the reporting class, whichever file the code is in: log
/// readers look for the class. The library never initialises glog; the host does.
namespace KVCAM::UIAPI::Log {

/// The base names used.
inline constexpr char const * commonPara = "UIAPICommonPara";
inline constexpr char const * globalVar = "UIAPIGlobalVar";
inline constexpr char const * hotKey = "KVHotKey";
inline constexpr char const * analysisResult = "Unified_AnalysisResult";

// Each logs the caller's line number.
void error(char const * source, std::string const & text, int line = UIAPI_CALLER_LINE);
void warning(char const * source, std::string const & text, int line = UIAPI_CALLER_LINE);
void info(char const * source, std::string const & text, int line = UIAPI_CALLER_LINE);

/// "KVCAM UIAPI " + operation + " error" at ERROR under "UIAPICommonPara": the usual text of a failed
/// look-up or engine push. `detail` follows without a separator.
void operationError(char const * operation, std::string const & detail = {}, int line = UIAPI_CALLER_LINE);

/// The two ERROR lines of a caught exception: where, then what.
void caughtException(char const * source, std::string const & what, int line = UIAPI_CALLER_LINE);

} // namespace KVCAM::UIAPI::Log
