#pragma once

#include "EmbeddedRecords.h"
#include "formats/StopFlag.h"

#include <QByteArray>
#include <QFile>
#include <QString>

namespace KVCAM::Embedded {

/// Unpacks what the engine reads of an archive into an empty folder and returns the job's folder there.
/// Throws JobError. The rules and limits are those of openArchive(). If it is wanted whole, all files and
/// folders are unpacked; a link anywhere is then refused, and only the limits of the archive hold.
QString unpackArchive(QString const & path, QString const & folder, JobLimits const & limits,
                      bool whole = false, StopFlag stop = {});

/// The contents of a compressed file, open at its begin (gzip, or the LZW of ".Z"), at most `largest` bytes.
/// Throws JobError. LZW has neither checksum nor length, so damage in it may go unnoticed.
QByteArray unpackFile(QFile & file, QString const & path, long long largest, StopFlag stop = {});

} // namespace KVCAM::Embedded
