#include "support/WholeFile.h"

#include "support/NativePath.h"
#include "support/RegularFile.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonParseError>
#include <QLatin1String>
#include <QSaveFile>

namespace KVCAM::UIAPI::WholeFile {
namespace {

constexpr char const * notRegular = "It is not a regular file.";

} // namespace

Content read(QString const & path, QIODevice::OpenMode extra, qint64 largest)
{
    QByteArray bytes;
    switch (readRegular(path, largest, bytes)) {
    case RegularFile::NotRegular:
        return {ReadStatus::OpenFailed, {}, QLatin1String(notRegular)};
    case RegularFile::NotOpened:
        if (!QFile::exists(path)) {
            return {ReadStatus::Missing, {}, QStringLiteral("There is no such file.")};
        }
        return {ReadStatus::OpenFailed, {}, QStringLiteral("The file cannot be opened for reading.")};
    case RegularFile::TooLarge:
        return {ReadStatus::OpenFailed,
                {},
                QStringLiteral("The file is too large: more than %1 bytes.").arg(largest)};
    case RegularFile::Read:
        break;
    }
    if (extra.testFlag(QIODevice::Text) && bytes.contains('\r')) {
        bytes.replace('\r', QByteArray()); // as a file opened in text mode
    }
    return {ReadStatus::Ok, bytes, {}};
}

ReadResult readJson(QString const & path, QIODevice::OpenMode extra)
{
    return parse(read(path, extra));
}

ReadResult parse(Content const & content)
{
    if (content.status != ReadStatus::Ok) {
        return {content.status, {}, content.reason};
    }
    QJsonParseError error;
    QJsonDocument const document = QJsonDocument::fromJson(content.bytes, &error);
    if (error.error != QJsonParseError::NoError) {
        return {ReadStatus::ParseError,
                {},
                QStringLiteral("The file is not JSON: %1 at byte offset %2.")
                    .arg(error.errorString(), QString::number(error.offset))};
    }
    return {ReadStatus::Ok, document, {}};
}

Ext::Result replace(QString const & path, QByteArray const & bytes, QIODevice::OpenMode extra)
{
    if (!NativePath::isLiteral(path)) {
        return {false, QStringLiteral("The system would take the file's name for another.")};
    }
    // A device or a pipe, which a link may lead to, would be lost to a file of that name.
    if (QFileInfo const old(path); old.exists() && !old.isFile()) {
        return {false, QLatin1String(notRegular)};
    }
    QSaveFile file(path);
    file.setDirectWriteFallback(true);
    if (!file.open(QIODevice::WriteOnly | extra)) {
        return {false, QStringLiteral("The file cannot be opened for writing: %1.").arg(file.errorString())};
    }
    // Flushed here: what commit() flushes itself and cannot write, on a full disk, it would not notice and
    // rename an empty file over the old one.
    bool const written = file.write(bytes) == bytes.size() && file.flush();
    // The system's reason: Qt knows none for a write that stopped half-way.
    QString const writeError = written ? QString() : qt_error_string();
    if (!written) {
        file.cancelWriting();
    }
    if (file.commit() && written) {
        return {};
    }
    QString const error = written ? file.errorString() : writeError;
    return {false, QStringLiteral("The file cannot be written: %1.").arg(error)};
}

} // namespace KVCAM::UIAPI::WholeFile
