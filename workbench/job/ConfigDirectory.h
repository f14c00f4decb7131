#pragma once

#include <QJsonObject>
#include <QString>

namespace Workbench {

/// The folder of the sample configuration, templates and jobs: "samples" beside the program's folder, as
/// packaged, or else that of the sources the program was built from. Needs the application object.
QString samplesDirectory();

/// Makes the process use a configuration directory. Its parent becomes the library's directory of the user,
/// where templates are kept; the current directory stays. Hot keys are read from the folder "config" there,
/// so the directory should have this name. With an empty path a copy of the samples below `output` is used;
/// it is made once and kept, so that changes survive and the samples stay unchanged. Returns one line that
/// says what is wrong, empty on success. Call it before any function of the library.
QString enterConfiguration(QString const & directory, QString const & output);

/// The directory for a run that changes nothing: the one given; else the copy of the samples below `output`
/// if there is one; else the samples themselves, which any number of processes can read at once. Needs the
/// application object.
QString readOnlyConfiguration(QString const & directory, QString const & output);

/// The configuration directory as the host reports it to the library, without a trailing "/".
QString configurationDirectory();

/// The JSON object in a file; empty when it cannot be read.
QJsonObject readJsonObject(QString const & path);

} // namespace Workbench
