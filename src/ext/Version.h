#pragma once

// The version of the library.
//
//   version()          that of the library at run time
//   headerVersion()    that of the headers that a module was compiled with
//   versionProblem()   why a module does not fit the library
//   checkVersion()     reports it in the log
//
// Whatever includes this header is checked when it is loaded. A host that asks its plug-ins for their
// headerVersion() can refuse one before it calls anything else.

#include "UIAPICommonExport.h"
#include "UIAPICommonVersion.h"

#include <QString>
#include <QVersionNumber>

/// \addtogroup safety
namespace KVCAM::UIAPI::Ext {

/// The version of the loaded library.
UIAPICOMMON_EXPORT QVersionNumber version();

/// The version of these headers.
inline QVersionNumber headerVersion()
{
    return {UIAPICOMMON_VERSION_MAJOR, UIAPICOMMON_VERSION_MINOR, UIAPICOMMON_VERSION_PATCH};
}

/// An English sentence on why a module compiled with headers of this version does not fit the loaded library;
/// empty if it does. The major version must be the same. Below 1.0 so must the minor version; from then on,
/// the library's may be higher.
UIAPICOMMON_EXPORT QString versionProblem(QVersionNumber const & headers);

/// Logs the problem, if there is one, as an ERROR under "UIAPICommonPara". Returns whether there is none.
UIAPICOMMON_EXPORT bool checkVersion(int major, int minor, int patch) noexcept;

// Once in each source that includes this: of an object shared by all modules, only the first would be
// checked.
[[maybe_unused]] static bool const fitsLibrary =
    checkVersion(UIAPICOMMON_VERSION_MAJOR, UIAPICOMMON_VERSION_MINOR, UIAPICOMMON_VERSION_PATCH);

} // namespace KVCAM::UIAPI::Ext
