#include "support/RegularFile.h"

#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace KVCAM::UIAPI {

RegularFile openRegular(QFile & file, QIODevice::OpenMode extra)
{
    QIODevice::OpenMode const mode = QIODevice::ReadOnly | extra;
    QFileInfo const info(file.fileName());
    if (!info.isNativePath()) { // a Qt resource, which the system cannot open
        return file.open(mode) ? RegularFile::Opened : RegularFile::NotOpened;
    }
    if (info.filePath().contains(QChar(0))) { // the system would cut the name off at the NUL
        return RegularFile::NotOpened;
    }
    // Check the open file, not the name: the name may refer to another file by now.
    int const handle =
        ::open(QFile::encodeName(info.filePath()).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (handle < 0) {
        return RegularFile::NotOpened;
    }
    struct stat status = {};
    bool const isRegular = ::fstat(handle, &status) == 0 && S_ISREG(status.st_mode);
    if (!isRegular || !file.open(handle, mode, QFileDevice::AutoCloseHandle)) {
        ::close(handle);
        return isRegular ? RegularFile::NotOpened : RegularFile::NotRegular;
    }
    return RegularFile::Opened;
}

} // namespace KVCAM::UIAPI
