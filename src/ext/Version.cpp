#include "ext/Version.h"

#include "support/Guard.h"
#include "support/Log.h"

namespace KVCAM::UIAPI::Ext {

QVersionNumber version()
{
    return headerVersion();
}

QString versionProblem(QVersionNumber const & headers)
{
    QVersionNumber const own = version();
    bool const fits = headers.majorVersion() == own.majorVersion() &&
                      (own.majorVersion() == 0 ? headers.minorVersion() == own.minorVersion()
                                               : headers.minorVersion() <= own.minorVersion());
    return fits ? QString()
                : QString("A module was compiled with the headers of UIAPICommon %1, which do not fit the "
                          "library %2.")
                      .arg(headers.toString(), own.toString());
}

bool checkVersion(int major, int minor, int patch) noexcept
{
    if (major == UIAPICOMMON_VERSION_MAJOR && minor == UIAPICOMMON_VERSION_MINOR) {
        return true; // at once: every source of a module asks when it is loaded
    }
    return guarded(Log::commonPara, [&] {
        QString const problem = versionProblem({major, minor, patch});
        if (!problem.isEmpty()) {
            Log::error(Log::commonPara, problem.toStdString());
        }
        return problem.isEmpty();
    });
}

} // namespace KVCAM::UIAPI::Ext
