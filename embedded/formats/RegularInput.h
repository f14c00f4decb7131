#pragma once

#include <QFile>
#include <QString>

namespace KVCAM::Embedded {

/// Opens a regular file, or a link to one, for reading. Returns why it cannot be read, "" on success. Never
/// blocks: a pipe would wait for a writer, and a device may never end.
QString openRegular(QFile & file, QString const & path);

} // namespace KVCAM::Embedded
