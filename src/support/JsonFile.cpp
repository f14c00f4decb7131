#include "support/JsonFile.h"

#include <QFile>
#include <QJsonParseError>
#include <QSaveFile>

namespace KVCAM::UIAPI::JsonFile {

ReadResult read(QString const & path, QIODevice::OpenMode extra)
{
    ReadResult result;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | extra)) {
        result.status = file.exists() ? ReadStatus::OpenFailed : ReadStatus::Missing;
        return result;
    }
    QJsonParseError error;
    result.document = QJsonDocument::fromJson(file.readAll(), &error);
    if (error.error != QJsonParseError::NoError) {
        result.status = ReadStatus::ParseError;
        result.parseError = error.errorString();
        result.errorOffset = error.offset;
    }
    return result;
}

WriteStatus replace(QString const & path, QByteArray const & bytes, QIODevice::OpenMode extra)
{
    QSaveFile file(path);
    file.setDirectWriteFallback(true);
    if (!file.open(QIODevice::WriteOnly | extra)) {
        return WriteStatus::OpenFailed;
    }
    // Flushed here: what commit() flushes itself and cannot write, on a full disk, it would not notice and
    // rename an empty file over the old one.
    bool const written = file.write(bytes) == bytes.size() && file.flush();
    if (!written) {
        file.cancelWriting();
    }
    return file.commit() && written ? WriteStatus::Ok : WriteStatus::CommitFailed;
}

} // namespace KVCAM::UIAPI::JsonFile
