#include "formats/RegularInput.h"

#include <QFileInfo>

#include <io.h>
#include <windows.h>

namespace KVCAM::Embedded {

// Opening never blocks here, so Qt, which supports long names, can do it.
QString openRegular(QFile & file, QString const & path)
{
    QFileInfo const info(path);
    if (!info.exists()) {
        return QStringLiteral("no such file");
    }
    file.setFileName(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return info.isDir() ? QStringLiteral("not a regular file") : file.errorString();
    }
    // Consoles and pipes have file names too: "CON", "\\.\pipe\...".
    auto const handle = reinterpret_cast<HANDLE>(_get_osfhandle(file.handle()));
    if (handle == INVALID_HANDLE_VALUE || GetFileType(handle) != FILE_TYPE_DISK) {
        file.close();
        return QStringLiteral("not a regular file");
    }
    return {};
}

} // namespace KVCAM::Embedded
