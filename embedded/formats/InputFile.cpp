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

QByteArray readInput(QString const & path, long long largest)
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
        return unpackFile(file, path, largest);
    }
    QByteArray bytes = file.read(file.size()); // allocates the size passed to it
    if (file.error() != QFileDevice::NoError) {
        fail(file.errorString());
    }
    return bytes;
}

} // namespace KVCAM::Embedded
