#include "support/RegularFile.h"

#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace KVCAM::UIAPI {
namespace {

// A start reads two dozen small files, so the system is asked directly: QFile makes twice as many calls.
RegularFile readOpened(int handle, qint64 largest, QByteArray & bytes)
{
    struct stat status = {};
    if (::fstat(handle, &status) != 0 || !S_ISREG(status.st_mode)) {
        return RegularFile::NotRegular;
    }
    constexpr qint64 piece = 64 * 1024;
    qint64 length = 0;
    // By the piece: a file may grow while it is read, and some claim to be empty and never end.
    for (qint64 room = status.st_size + 1; status.st_size <= largest && length <= largest;) {
        bytes.resize(static_cast<int>(std::min(length + room, largest + 1)));
        auto const space = static_cast<std::size_t>(bytes.size() - length);
        ssize_t const read = ::read(handle, bytes.data() + length, space);
        if (read > 0) {
            length += read;
            room = std::max(piece, status.st_size + 1 - length);
        } else if (read == 0 || errno != EINTR) {
            bytes.resize(static_cast<int>(length));
            return RegularFile::Read;
        }
    }
    return RegularFile::TooLarge;
}

} // namespace

RegularFile readRegular(QString const & path, qint64 largest, QByteArray & bytes)
{
    // A Qt resource or a search path, which the system cannot open, has a colon in its name.
    if (path.contains(QLatin1Char(':')) && !QFileInfo(path).isNativePath()) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            return RegularFile::NotOpened;
        }
        bytes = file.read(largest + 1);
        return bytes.size() > largest ? RegularFile::TooLarge : RegularFile::Read;
    }
    if (path.isEmpty() || path.contains(QChar(0))) { // the system would cut the name off at the NUL
        return RegularFile::NotOpened;
    }
    // Check the open file, not the name: the name may refer to another file by now.
    int const handle =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (handle < 0) {
        return RegularFile::NotOpened;
    }
    RegularFile const result = readOpened(handle, largest, bytes);
    ::close(handle);
    return result;
}

} // namespace KVCAM::UIAPI
