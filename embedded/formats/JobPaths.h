#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <string>
#include <vector>

namespace KVCAM::Embedded {

/// The form in which names of jobs, steps, layers and symbols are compared, since case does not matter.
std::string lowerCase(std::string const & name);

/// Why a name must not become part of a path ("" if it may). Names are untrusted: a separator or ".." would
/// lead out of the job.
std::string refusal(std::string const & name);

/// The entries of a folder, listed once: what is there, of whatever kind. Names are found exactly or else
/// ignoring case.
class FolderList
{
public:
    /// No folder, thus no entries.
    FolderList() = default;
    /// No entries if the folder does not exist. Throws JobError if it is unreadable. Names that come later
    /// are found exactly only.
    explicit FolderList(QString const & folder);

    /// The subfolder of that name, or "" if there is nothing of that name. Throws JobError if it is something
    /// else than a folder.
    QString folder(std::string const & name) const;
    /// The file of that name, else its compressed form (".Z" or ".gz"), or "" if there is neither. Throws
    /// JobError if what has the name is no regular file.
    QString file(std::string const & name) const;
    /// The names of the subfolders, sorted.
    std::vector<std::string> folderNames() const;

private:
    QString find(QString const & name) const;

    QString m_folder;
    QHash<QString, QStringList> m_names; // by lower case
};

/// FolderList::folder() and FolderList::file() of a folder.
QString findFolder(QString const & folder, std::string const & name);
QString findFile(QString const & folder, std::string const & name);

} // namespace KVCAM::Embedded
