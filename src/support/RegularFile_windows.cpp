#include "support/RegularFile.h"

#include <QFile>
#include <QFileInfo>

#include <io.h>
#include <windows.h>

namespace KVCAM::UIAPI {

// Opening never blocks here, so Qt, which supports long names, can do it.
RegularFile readRegular(QString const & path, qint64 largest, QByteArray & bytes)
{
    QFile file(path);
    QFileInfo const info(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return info.isDir() ? RegularFile::NotRegular : RegularFile::NotOpened;
    }
    // Consoles and pipes have file names too: "CON", "\\.\pipe\...". A Qt resource has no handle.
    if (info.isNativePath()) {
        auto const handle = reinterpret_cast<HANDLE>(_get_osfhandle(file.handle()));
        if (handle == INVALID_HANDLE_VALUE || GetFileType(handle) != FILE_TYPE_DISK) {
            return RegularFile::NotRegular;
        }
    }
    bytes = file.read(largest + 1);
    return bytes.size() > largest ? RegularFile::TooLarge : RegularFile::Read;
}

} // namespace KVCAM::UIAPI
