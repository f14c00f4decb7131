#include "support/RegularFile.h"

#include <QFile>
#include <QFileInfo>

#include <io.h>
#include <windows.h>

namespace KVCAM::UIAPI {

// Opening waits for nothing here, so that Qt, which knows about long names, may do it.
RegularFile openRegular(QFile & file, QIODevice::OpenMode extra)
{
    QFileInfo const info(file.fileName());
    if (!file.open(QIODevice::ReadOnly | extra)) {
        return info.isDir() ? RegularFile::NotRegular : RegularFile::NotOpened;
    }
    if (!info.isNativePath()) { // a resource of Qt's, which has no handle
        return RegularFile::Opened;
    }
    // Consoles and pipes bear file names too: "CON", "\\.\pipe\...".
    auto const handle = reinterpret_cast<HANDLE>(_get_osfhandle(file.handle()));
    if (handle == INVALID_HANDLE_VALUE || GetFileType(handle) != FILE_TYPE_DISK) {
        file.close();
        return RegularFile::NotRegular;
    }
    return RegularFile::Opened;
}

} // namespace KVCAM::UIAPI
