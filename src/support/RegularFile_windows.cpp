#include "support/RegularFile.h"

#include <QFile>
#include <QFileInfo>

#include <io.h>
#include <windows.h>

namespace KVCAM::UIAPI {

// Opening never blocks here, so Qt, which supports long names, can do it.
RegularFile openRegular(QFile & file, QIODevice::OpenMode extra)
{
    QFileInfo const info(file.fileName());
    if (!file.open(QIODevice::ReadOnly | extra)) {
        return info.isDir() ? RegularFile::NotRegular : RegularFile::NotOpened;
    }
    if (!info.isNativePath()) { // a Qt resource, which has no handle
        return RegularFile::Opened;
    }
    // Consoles and pipes have file names too: "CON", "\\.\pipe\...".
    auto const handle = reinterpret_cast<HANDLE>(_get_osfhandle(file.handle()));
    if (handle == INVALID_HANDLE_VALUE || GetFileType(handle) != FILE_TYPE_DISK) {
        file.close();
        return RegularFile::NotRegular;
    }
    return RegularFile::Opened;
}

} // namespace KVCAM::UIAPI
