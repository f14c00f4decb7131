#include "layers/TreeRemoval.h"

#include <utility>
#include <vector>

namespace KVCAM::UIAPI {
namespace {

using Kind = DirectoryEntry::Kind;

/// One run of removeTree(). Uses a work list instead of recursion: a tree may be deeper than the stack.
class TreeRemoval
{
public:
    explicit TreeRemoval(Directory top) : m_place(std::move(top)) {}

    bool run()
    {
        openLevel({});
        for (;;) {
            Level & level = m_levels.back();
            if (!level.directories.empty()) {
                Directory::Path const name = std::move(level.directories.back());
                level.directories.pop_back();
                if (Directory below = m_place.here().enter(name); below.isOpen()) {
                    m_place.enter(std::move(below));
                    openLevel(name);
                } else {
                    m_isComplete = false;
                }
                continue;
            }
            Directory::Path const name = std::move(level.name);
            m_levels.pop_back();
            if (m_levels.empty()) {
                return m_isComplete;
            }
            if (!m_place.leave()) {
                return false;
            }
            note(m_place.here().removeDirectory(name));
        }
    }

private:
    /// A directory on the path to the current position.
    struct Level
    {
        Directory::Path name;
        Directory::Names directories; ///< still to remove
    };

    // The names are read before anything changes: what a directory lists while it changes is unspecified.
    void openLevel(Directory::Path const & name)
    {
        Level level{name, {}};
        Directory const & here = m_place.here();
        here.makeWritable();
        Directory::Names names;
        note(here.list(names));
        for (Directory::Path & entry : names) {
            if (here.look(entry).kind == Kind::Directory) {
                level.directories.push_back(std::move(entry));
            } else {
                note(here.removeFile(entry));
            }
        }
        m_levels.push_back(std::move(level));
    }

    void note(bool isDone) { m_isComplete = m_isComplete && isDone; }

    DirectoryCursor m_place;
    std::vector<Level> m_levels;
    bool m_isComplete = true;
};

} // namespace

bool removeTree(Directory const & holder, Directory::Path const & name, FileId const & id, bool removeSelf)
{
    Directory top = holder.enter(name);
    if (!top.isOpen() || top.id() != id) {
        return false;
    }
    bool const isEmpty = TreeRemoval(std::move(top)).run();
    if (!removeSelf) {
        return isEmpty;
    }
    DirectoryEntry const entry = holder.look(name);
    return entry.kind == Kind::Directory && entry.id == id && holder.removeDirectory(name);
}

} // namespace KVCAM::UIAPI
