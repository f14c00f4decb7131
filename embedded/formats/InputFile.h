#pragma once

#include "formats/StopFlag.h"

#include <QByteArray>
#include <QString>

namespace KVCAM::Embedded {

/// The contents of a job's file, unpacked if its name ends in ".Z" or ".gz". Throws JobError if it is not a
/// regular file, cannot be read, is damaged, or has (unpacked) more than `largest` bytes.
QByteArray readInput(QString const & path, long long largest, StopFlag stop = {});

/// A number of bytes for a message, in MiB where it is a multiple.
QString sizeText(long long bytes);

} // namespace KVCAM::Embedded
