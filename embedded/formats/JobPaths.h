#pragma once

#include <QDir>
#include <QString>
#include <QStringList>

#include <string>

namespace KVCAM::Embedded {

/// The form in which names of jobs, steps, layers and symbols are compared, since case does not matter.
std::string lowerCase(std::string const & name);

/// Why a name must not become part of a path ("" if it may). Names are untrusted: a separator or ".." would
/// lead out of the job.
std::string refusal(std::string const & name);

/// The names in a folder, sorted; none if the folder does not exist. Throws JobError if it is unreadable.
QStringList entriesOf(QString const & folder, QDir::Filters filters);
/// The subfolder of that name (case-insensitive), or "" if there is none.
QString findFolder(QString const & folder, std::string const & name);
/// The file of that name (case-insensitive), or "" if there is none. Throws JobError if there is only a
/// folder of that name, or only a compressed form of the file (".Z").
QString findFile(QString const & folder, std::string const & name);

} // namespace KVCAM::Embedded
