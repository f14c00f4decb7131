#include "formats/InputFile.h"

#include "formats/Archive.h"
#include "formats/JobError.h"
#include "formats/RegularInput.h"

#include <QFile>

#include <algorithm>

namespace KVCAM::Embedded {

QString sizeText(long long bytes)
{
    constexpr long long mebibyte = 1024LL * 1024;
    return bytes % mebibyte == 0 ? QString::number(bytes / mebibyte) + " MiB"
                                 : QString::number(bytes) + " bytes";
}

namespace {

// What the file holds up to the size that it has now; less if it gets shorter meanwhile.
QByteArray readAll(QFile & file, StopFlag stop)
{
    constexpr qint64 piece = 1024LL * 1024;
    QByteArray bytes(static_cast<int>(file.size()), Qt::Uninitialized);
    qint64 size = 0;
    for (qint64 read = 1; read > 0 && size < bytes.size(); size += std::max(read, qint64(0))) {
        stop.check();
        read = file.read(bytes.data() + size, std::min(piece, bytes.size() - size));
    }
    bytes.truncate(static_cast<int>(size));
    return bytes;
}

} // namespace

QByteArray readInput(QString const & path, long long largest, StopFlag stop)
{
    constexpr long long largestArray = 1LL << 30; // which QByteArray can hold
    largest = std::min(largest, largestArray);
    QFile file;
    auto const fail = [&path](QString const & reason) {
        throw JobError((path + ": " + reason).toStdString());
    };
    if (QString const reason = openRegular(file, path); !reason.isEmpty()) {
        fail(reason);
    }
    if (file.size() > largest) {
        fail("the file is larger than " + sizeText(largest));
    }
    if (path.endsWith(".Z", Qt::CaseInsensitive) || path.endsWith(".gz", Qt::CaseInsensitive)) {
        return unpackFile(file, path, largest, stop);
    }
    QByteArray bytes = readAll(file, stop);
    if (file.error() != QFileDevice::NoError) {
        fail(file.errorString());
    }
    return bytes;
}

} // namespace KVCAM::Embedded
