#pragma once

#include <QDir>
#include <QFileInfo>
#include <QString>

namespace KVCAM::Testing {

/// An entry of the folder of material that stands beside the sources but does not belong to them: that of the
/// environment variable UIAPI_SHARED_DIR, or one named "shared" next to them. "" when it is not there.
inline QString sharedPath(QString const & entry)
{
    QString const source = UIAPI_SOURCE_DIR;
    for (QString const & folder : {qEnvironmentVariable("UIAPI_SHARED_DIR"), source + "/../shared"}) {
        if (QString const path = QDir(folder).filePath(entry); !folder.isEmpty() && QFileInfo::exists(path)) {
            return path;
        }
    }
    return {};
}

} // namespace KVCAM::Testing
