#pragma once

#include <QIODevice>

class QFile;

namespace KVCAM::UIAPI {

enum class RegularFile
{
    Opened,
    NotOpened,
    NotRegular ///< a directory, a device, a pipe: `file` stays closed
};

/// Opens the file named by `file` for reading, without blocking, if it is a regular file or a link to one: a
/// pipe would wait for a writer, and a device may never end. `extra` is added to ReadOnly.
RegularFile openRegular(QFile & file, QIODevice::OpenMode extra);

} // namespace KVCAM::UIAPI
