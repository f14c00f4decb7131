#include "formats/RegularInput.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace KVCAM::Embedded {

QString openRegular(QFile & file, QString const & path)
{
    if (path.contains(QChar(0))) { // the system would cut the name off there
        return QStringLiteral("no such file");
    }
    int const handle =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (handle < 0) {
        // ENXIO: a socket. A pipe opens and is found out below.
        return errno == ENOENT  ? QStringLiteral("no such file")
               : errno == ENXIO ? QStringLiteral("not a regular file")
                                : qt_error_string(errno);
    }
    // Check the open file, not the name: the name may refer to another file by now.
    struct stat status = {};
    if (::fstat(handle, &status) != 0 || !S_ISREG(status.st_mode)) {
        ::close(handle);
        return QStringLiteral("not a regular file");
    }
    file.setFileName(path);
    if (!file.open(handle, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        ::close(handle);
        return file.errorString();
    }
    return {};
}

} // namespace KVCAM::Embedded
