#include "layers/TreeCopy.h"

#include "support/NativePath.h"

#include <QRandomGenerator>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace KVCAM::UIAPI {
namespace {

using Kind = DirectoryEntry::Kind;

/// A file gets its name once it is complete.
bool copyEntry(Directory const & from, Directory const & to, Directory::Path const & name, bool overwrite)
{
    Kind const kind = from.look(name).kind;
    Kind const there = to.look(name).kind;
    bool const isFree = there == Kind::Missing || (overwrite && (there == Kind::File || there == Kind::Link));
    if (!isFree || (kind != Kind::File && kind != Kind::Link)) {
        return false;
    }
    quint64 const number = QRandomGenerator::global()->generate64();
    Directory::Path const part = ".uiapi-copy-" + std::to_string(number);
    bool const isCopied = kind == Kind::File ? from.copyFile(name, to, part) : from.copyLink(name, to, part);
    if (isCopied && to.rename(part, name)) { // replaces a link in its place, does not follow it
        return true;
    }
    to.removeFile(part);
    return false;
}

/// One run of copyTree(). Uses a work list instead of recursion: a tree may be deeper than the stack.
class TreeCopy
{
public:
    TreeCopy(Directory const & source, Directory target, bool overwrite)
        : m_from(source), m_to(std::move(target)), m_source(source.id()), m_overwrite(overwrite)
    {}

    bool run()
    {
        copyFiles();
        for (;;) {
            Directory::Names & directories = m_levels.back();
            if (!directories.empty()) {
                Directory::Path const name = std::move(directories.back());
                directories.pop_back();
                if (enter(name)) {
                    copyFiles();
                } else {
                    m_isComplete = false;
                }
                continue;
            }
            m_levels.pop_back();
            if (m_levels.empty()) {
                return m_isComplete;
            }
            if (!m_from.leave() || !m_to.leave()) {
                return false;
            }
        }
    }

private:
    /// Enters a directory on both sides, or on neither.
    bool enter(Directory::Path const & name)
    {
        m_to.here().makeDirectory(name); // may already exist
        Directory from = m_from.here().enter(name);
        Directory to = m_to.here().enter(name);
        // The source may be inside its target: then a directory of the same name would be copied over it.
        if (!from.isOpen() || !to.isOpen() || to.id() == m_source) {
            return false;
        }
        m_from.enter(std::move(from));
        m_to.enter(std::move(to));
        return true;
    }

    /// Copies everything but directories, and collects the directories. The names are read before anything
    /// changes: what a directory lists while it changes is unspecified.
    void copyFiles()
    {
        Directory::Names names;
        Directory::Names directories;
        m_isComplete = m_from.here().list(names) && m_isComplete;
        for (Directory::Path & name : names) {
            if (m_from.here().look(name).kind == Kind::Directory) {
                directories.push_back(std::move(name));
            } else if (!copyEntry(m_from.here(), m_to.here(), name, m_overwrite)) {
                m_isComplete = false;
            }
        }
        m_levels.push_back(std::move(directories));
    }

    DirectoryCursor m_from;
    DirectoryCursor m_to;
    FileId const m_source;
    bool const m_overwrite;
    std::vector<Directory::Names> m_levels; ///< the directories still to copy, per level down to here
    bool m_isComplete = true;
};

/// Opens the directory and creates its missing parts; none if it would be inside `source`.
Directory openTarget(Directory::Path const & path, FileId const & source)
{
    Directory::Names missing;
    Directory::Path there = path;
    Directory directory = Directory::at(there);
    for (Directory::Path above = NativePath::above(there); !directory.isOpen() && !above.empty();
         above = NativePath::above(there)) {
        missing.push_back(there.filename());
        there = above;
        directory = Directory::at(there);
    }
    Lineage const place = directory.lineage();
    if (place.empty() || std::find(place.begin(), place.end(), source) != place.end()) {
        return {};
    }
    for (auto name = missing.rbegin(); name != missing.rend(); ++name) {
        directory.makeDirectory(*name);
        directory = directory.enter(*name);
    }
    return directory;
}

} // namespace

bool copyTree(Directory const & source, Directory::Path const & target, bool overwrite)
{
    if (!source.isOpen()) {
        return false;
    }
    Directory to = openTarget(target, source.id());
    return to.isOpen() && TreeCopy(source, std::move(to), overwrite).run();
}

} // namespace KVCAM::UIAPI
