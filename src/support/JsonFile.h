#pragma once

#include "support/Result.h"

#include <QByteArray>
#include <QIODevice>
#include <QJsonDocument>
#include <QString>

/// Reading JSON files and replacing whole files. Nothing here logs: what a failure is called is the loader's
/// business.
namespace KVCAM::UIAPI::JsonFile {

/// The largest file that is read. Real ones have some kilobytes; a larger one is a mistake or a trap.
constexpr qint64 largestFile = 64 * 1024 * 1024;

enum class ReadStatus
{
    Ok,
    Missing,    ///< no such file
    OpenFailed, ///< there, but it cannot be opened for reading, is no regular file, or is too large
    ParseError  ///< read, but not JSON
};

struct ReadResult
{
    ReadStatus status = ReadStatus::Ok;
    QJsonDocument document; ///< empty unless status is Ok
    QString reason;         ///< one English sentence why it is not Ok; a parse error has its byte offset
};

/// Reads and parses a file, a regular one or a link to one, up to `largestFile`. It never waits. `extra` is
/// added to ReadOnly (QIODevice::Text for a text-mode read).
ReadResult read(QString const & path, QIODevice::OpenMode extra = {});

struct Content
{
    ReadStatus status = ReadStatus::Ok; ///< never ParseError
    QByteArray bytes;                   ///< empty unless status is Ok
    QString reason;                     ///< one English sentence why it is not Ok
};

/// What read() parses.
Content readBytes(QString const & path, QIODevice::OpenMode extra = {});

/// Replaces a file by `bytes` so that a crash, a full disk or a killed process leaves the old file whole: a
/// temporary file is written beside it and renamed over it. Where the directory takes no new file the old one
/// is written in place. What is no regular file is not replaced. `extra` is added to WriteOnly.
[[nodiscard]] Ext::Result replace(QString const & path, QByteArray const & bytes,
                                  QIODevice::OpenMode extra = {});

} // namespace KVCAM::UIAPI::JsonFile
