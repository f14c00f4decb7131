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
    /// `whole`: everything in a top folder is unpacked, not only what the engine reads.
    explicit ArchiveNames(JobLimits const & limits, bool whole = false) : m_limits(limits), m_whole(whole) {}

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
    bool m_whole;
    long long m_count = 0;
    std::map<QString, QString> m_taken; // every path to be made, by its lower case
    std::set<QString> m_jobs;           // top folders with a matrix
};

} // namespace KVCAM::Embedded
