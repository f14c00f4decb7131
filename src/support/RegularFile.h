#pragma once

#include <QByteArray>
#include <QString>

namespace KVCAM::UIAPI {

enum class RegularFile
{
    Read,
    NotOpened,
    NotRegular, ///< a directory, a device, a pipe
    TooLarge    ///< more than `largest` bytes
};

/// Reads a regular file or a link to one into `bytes`, without blocking: a pipe would wait for a writer, and
/// a device may never end. What was read before an error counts as the whole.
RegularFile readRegular(QString const & path, qint64 largest, QByteArray & bytes);

} // namespace KVCAM::UIAPI
