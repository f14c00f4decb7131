#pragma once

#include "support/Result.h"

#include <QByteArray>
#include <QIODevice>
#include <QJsonDocument>
#include <QString>

/// Files read and replaced as a whole. Nothing here logs; the loader words its own failures.
namespace KVCAM::UIAPI::WholeFile {

/// The largest file that is read unless a caller expects larger ones. Real files have a few kilobytes; a
/// larger one is a mistake or an attack.
constexpr qint64 largestFile = 64 * 1024 * 1024;

enum class ReadStatus
{
    Ok,
    Missing,    ///< no such file
    OpenFailed, ///< exists, but cannot be opened for reading, is not a regular file, or is too large
    ParseError  ///< read, but not JSON
};

struct ReadResult
{
    ReadStatus status = ReadStatus::Ok;
    QJsonDocument document; ///< empty unless status is Ok
    QString reason;         ///< one English sentence on why it is not Ok; a parse error has its byte offset
};

struct Content
{
    ReadStatus status = ReadStatus::Ok; ///< never ParseError
    QByteArray bytes;                   ///< empty unless status is Ok
    QString reason;                     ///< one English sentence on why it is not Ok
};

/// Reads a regular file, or a link to one, of at most `largest` bytes. Never blocks. `extra` is added to
/// ReadOnly (QIODevice::Text for a text-mode read).
Content read(QString const & path, QIODevice::OpenMode extra = {}, qint64 largest = largestFile);

/// Reads and parses such a file.
ReadResult readJson(QString const & path, QIODevice::OpenMode extra = {});

/// What the bytes hold as JSON; a failed read keeps its status and reason.
ReadResult parse(Content const & content);

/// Replaces a file with `bytes`. A crash, a full disk or a killed process leaves the old file intact: a
/// temporary file is written beside it and renamed over it. If the directory does not accept a new file, the
/// old one is overwritten in place. Anything but a regular file is not replaced, nor is a file
/// written whose name the system would take for another. `extra` is added to WriteOnly.
[[nodiscard]] Ext::Result replace(QString const & path, QByteArray const & bytes,
                                  QIODevice::OpenMode extra = {});

} // namespace KVCAM::UIAPI::WholeFile
