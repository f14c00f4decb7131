#include "support/JsonFile.h"

#include <QFile>
#include <QJsonParseError>
#include <QSaveFile>

namespace KVCAM::UIAPI::JsonFile {

ReadResult read(QString const & path, QIODevice::OpenMode extra)
{
    ReadResult result;
    QFile file(path);
    if (!file.exists()) {
        result.status = ReadStatus::Missing;
        return result;
    }
    if (!file.open(QIODevice::ReadOnly | extra)) {
        result.status = ReadStatus::OpenFailed;
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
    file.write(bytes); // a short write makes commit() fail
    return file.commit() ? WriteStatus::Ok : WriteStatus::CommitFailed;
}

} // namespace KVCAM::UIAPI::JsonFile
