#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QJsonDocument>
#include <QString>

/// Reading JSON files and replacing whole files. Nothing here logs: what a failure is called is the loader's
/// business.
namespace KVCAM::UIAPI::JsonFile {

enum class ReadStatus
{
    Ok,
    Missing,    ///< no such file
    OpenFailed, ///< there, but it cannot be opened for reading
    ParseError  ///< read, but not JSON
};

struct ReadResult
{
    ReadStatus status = ReadStatus::Ok;
    QJsonDocument document; ///< empty unless status is Ok
    QString parseError;     ///< the parser's words, set for ParseError
    int errorOffset = -1;   ///< byte offset of the parse error, else -1
};

/// Reads and parses a file. `extra` is added to ReadOnly (QIODevice::Text for a text-mode read).
ReadResult read(QString const & path, QIODevice::OpenMode extra = {});

enum class WriteStatus
{
    Ok,
    OpenFailed,
    CommitFailed ///< the old file is whole, except where it was written in place
};

/// Replaces a file by `bytes` so that a crash, a full disk or a killed process leaves the old file whole: a
/// temporary file is written beside it and renamed over it. Where the directory takes no new file the old one
/// is written in place. `extra` is added to WriteOnly.
WriteStatus replace(QString const & path, QByteArray const & bytes, QIODevice::OpenMode extra = {});

} // namespace KVCAM::UIAPI::JsonFile
