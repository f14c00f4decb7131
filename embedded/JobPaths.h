#pragma once

#include <QDir>
#include <QString>
#include <QStringList>

#include <string>

namespace KVCAM::Embedded {

/// Names of jobs, steps, layers and symbols compare without case; this is the form that they are compared in.
std::string lowerCase(std::string const & name);

/// Why a name must not become part of a path ("" when it may): names are untrusted, and one with a separator
/// or ".." would lead out of the job.
std::string refusal(std::string const & name);

/// The names in a folder, sorted; none when there is no such folder. Throws JobError when it may not be read.
QStringList entriesOf(QString const & folder, QDir::Filters filters);
/// The sub-folder of that name in any case, or "" when there is none.
QString findFolder(QString const & folder, std::string const & name);
/// The file of that name in any case, or "" when there is none. Throws JobError when only a folder of
/// that name or a compressed form of it (".Z") is there.
QString findFile(QString const & folder, std::string const & name);

} // namespace KVCAM::Embedded
