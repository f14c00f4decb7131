#pragma once

#include "EmbeddedRecords.h"

#include <QString>
#include <QStringList>

#include <map>
#include <set>
#include <string>

namespace KVCAM::Embedded {

/// Decides by the names of an archive's entries what is unpacked. Names are untrusted. Throws JobError
/// without the archive's path.
class ArchiveNames
{
public:
    explicit ArchiveNames(JobLimits const & limits) : m_limits(limits) {}

    enum class Kind
    {
        File,
        Folder,
        Other ///< a link, a device
    };
    /// Relative paths; empty where there is nothing to make.
    struct Place
    {
        QString file;
        QString folder; ///< of the file, or what the entry implies
    };
    Place place(QString const & name, Kind kind);

    /// The top folder that holds the job, after the last entry.
    QString job() const;

private:
    QStringList partsOf(QString const & name) const;
    QString claimed(QStringList const & parts, bool isFile);

    JobLimits m_limits;
    long long m_count = 0;
    std::map<QString, QString> m_taken; // every path to be made, by its lower case
    std::set<QString> m_jobs;           // top folders with a matrix
};

} // namespace KVCAM::Embedded
