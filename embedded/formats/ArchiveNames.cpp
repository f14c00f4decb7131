#include "formats/ArchiveNames.h"

#include "formats/JobError.h"
#include "formats/JobPaths.h"
#include "formats/LineReader.h"

#include <algorithm>

namespace KVCAM::Embedded {
namespace {

constexpr int longestName = 4096;

// The files that the engine reads, below the top folder; "*" is any name.
QStringList const & patterns()
{
    static QStringList const list{"matrix/matrix",
                                  "misc/info",
                                  "steps/*/stephdr",
                                  "steps/*/profile",
                                  "steps/*/eda/data",
                                  "steps/*/layers/*/features",
                                  "steps/*/layers/*/features.tables",
                                  "steps/*/layers/*/tools",
                                  "symbols/*/features"};
    return list;
}

[[noreturn]] void refuse(QString const & name, char const * reason)
{
    throw JobError(quoted(name.toStdString()) + ' ' + reason);
}

QString withoutPacking(QString const & name)
{
    for (char const * const ending : {".z", ".gz"}) {
        if (name.endsWith(ending)) {
            return name.left(name.lastIndexOf('.'));
        }
    }
    return name;
}

// The number of leading parts that fit a pattern; -1 if all do and make a whole pattern.
int fitting(QStringList const & parts)
{
    int most = 0;
    for (QString const & pattern : patterns()) {
        QStringList const wanted = pattern.split('/');
        int fit = 0;
        for (; fit < std::min(parts.size(), wanted.size()); ++fit) {
            bool const last = fit + 1 == wanted.size();
            QString const part = parts[fit].toLower();
            if (wanted[fit] != "*" && wanted[fit] != (last ? withoutPacking(part) : part)) {
                break;
            }
        }
        if (fit == wanted.size() && parts.size() == fit) {
            return -1;
        }
        most = std::max(most, std::min(fit, wanted.size() - 1)); // a file holds nothing
    }
    return most;
}

} // namespace

QStringList ArchiveNames::partsOf(QString const & name) const
{
    if (name.isEmpty() || name.size() > longestName) {
        throw JobError(name.isEmpty() ? "an entry has no name" : "the name of an entry is too long");
    }
    if (name[0] == '/' || name[0] == '\\' || (name.size() > 1 && name[1] == ':')) {
        refuse(name, "is an absolute name");
    }
    if (QString(name).replace('\\', '/').split('/').contains("..")) {
        refuse(name, "leads out of the archive");
    }
    QStringList parts = name.split('/', Qt::SkipEmptyParts);
    parts.removeAll(".");
    if (parts.size() > m_limits.archiveDepth) {
        refuse(name, "is deeper than the limit of folders");
    }
    return parts;
}

// Checks that nothing else has this path, in whatever case: some systems would take the two for one.
QString ArchiveNames::claimed(QStringList const & parts, bool isFile)
{
    for (int count = 1; count <= parts.size(); ++count) {
        QString const path = QStringList(parts.mid(0, count)).join('/');
        if (std::string const reason = refusal(parts[count - 1].toStdString()); !reason.empty()) {
            throw JobError(reason);
        }
        auto const [place, added] = m_taken.emplace(path.toLower(), path);
        if (!added && (place->second != path || (isFile && count == parts.size()))) {
            refuse(path, "stands twice");
        }
    }
    return parts.join('/');
}

ArchiveNames::Place ArchiveNames::place(QString const & name, Kind kind)
{
    if (++m_count > m_limits.archiveEntries) {
        throw JobError("more than " + std::to_string(m_limits.archiveEntries) + " entries, the limit");
    }
    QStringList const parts = partsOf(name);
    bool const hidden =
        std::any_of(parts.begin(), parts.end(), [](QString const & part) { return part[0] == '.'; });
    if ((hidden && !m_whole) || parts.size() < 2) {
        return {};
    }
    int const fit = fitting(parts.mid(1));
    bool const expected = m_whole || fit == -1 || fit == parts.size() - 1;
    if (expected && kind == Kind::Other) {
        refuse(name, "is neither a file nor a folder");
    }
    if (expected && kind == Kind::File) {
        Place place;
        place.file = claimed(parts, true);
        place.folder = place.file.left(place.file.lastIndexOf('/'));
        if (fit == -1 && parts[1].compare("matrix", Qt::CaseInsensitive) == 0) {
            m_jobs.insert(parts[0]);
        }
        return place;
    }
    // The folders that an entry implies need no entries of their own.
    int const folders = m_whole || fit == -1 ? parts.size() : fit + 1;
    return folders > 1 ? Place{{}, claimed(parts.mid(0, folders), false)} : Place{};
}

QString ArchiveNames::job() const
{
    if (m_jobs.size() != 1) {
        throw JobError(m_jobs.empty() ? "no top folder holds a file matrix/matrix"
                                      : "more than one top folder holds a job");
    }
    return *m_jobs.begin();
}

} // namespace KVCAM::Embedded
