#pragma once

#include <QJsonObject>
#include <QString>

namespace Workbench {

/// Makes the process start from a configuration directory: it becomes the host's, and the folder it lies in
/// the current directory, since the user's templates are kept beside it; the hot keys are looked for in its
/// folder "config", which the directory should therefore be called. With an empty path a copy of the
/// samples below `output` is used, made on first use and kept, so that changes survive and the samples stay
/// as they are. The result is one line that says what is wrong, empty on success. Call it before the
/// library's first function.
QString enterConfiguration(QString const & directory, QString const & output);

/// The configuration directory as the host tells it to the library, without a "/" at its end.
QString configurationDirectory();

/// The JSON object in a file; an empty one when it cannot be read.
QJsonObject readJsonObject(QString const & path);

} // namespace Workbench
