#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <vector>

/// Directories by handle. A path is looked up again at every call, and whoever may write in a tree can put a
/// link into it in between; a handle stays with the directory it was opened for. Names are single components,
/// in whatever bytes the file system holds. Nothing here throws for what the file system answers, and nothing
/// is logged.
namespace KVCAM::UIAPI {

/// What tells a file from all others while it exists.
struct FileId
{
    std::uint64_t volume = 0;
    std::uint64_t high = 0;
    std::uint64_t low = 0;

    friend bool operator==(FileId const & a, FileId const & b)
    {
        return a.volume == b.volume && a.high == b.high && a.low == b.low;
    }
    friend bool operator!=(FileId const & a, FileId const & b) { return !(a == b); }
};

/// A directory and what holds it, up to its root; empty when that cannot be found out.
using Lineage = std::vector<FileId>;

/// What a name in a directory stands for, links not followed.
struct DirectoryEntry
{
    enum class Kind
    {
        Missing,
        Directory,
        File,
        Link, ///< a junction too
        Other ///< a pipe, a device, or what cannot be looked at
    };
    Kind kind = Kind::Missing;
    FileId id; ///< meaningless for what is missing or cannot be looked at
};

/// An open directory, or none: then every call fails.
class Directory
{
public:
    using Path = std::filesystem::path;
    using Names = std::vector<Path>;

    Directory() = default;
    /// Opens a directory to search it. Links are followed: a caller's path means what it says. An empty path
    /// is the current directory.
    static Directory at(Path const & path);
    /// Opens a directory in this one; none for a link.
    Directory enter(Path const & name) const;
    /// Opens the directory that holds this one now.
    Directory parent() const;

    bool isOpen() const { return m_handle != nullptr; }
    /// That of no file when the directory cannot be asked.
    FileId id() const;
    Lineage lineage() const;
    DirectoryEntry look(Path const & name) const;
    /// Appends the names of the entries, without "." and "..". On failure some may be there.
    bool list(Names & names) const;

    /// Allows its owner what it takes to empty it, where the system asks for that.
    void makeWritable() const;
    /// Creates a directory; it must not be there yet.
    bool makeDirectory(Path const & name) const;
    /// Removes what is no directory; a link or junction as such.
    bool removeFile(Path const & name) const;
    /// Removes an empty directory.
    bool removeDirectory(Path const & name) const;
    /// Copies a file's content and permissions to a name that is not there yet. On failure part of it may be.
    bool copyFile(Path const & name, Directory const & target, Path const & copy) const;
    /// Copies a link as it is to a name that is not there yet.
    bool copyLink(Path const & name, Directory const & target, Path const & copy) const;
    /// Renames a file or link of this directory, in place of a file or link that has the name.
    bool rename(Path const & from, Path const & to) const;

private:
    struct Handle; ///< of the system
    explicit Directory(std::shared_ptr<Handle const> handle) : m_handle(std::move(handle)) {}

    std::shared_ptr<Handle const> m_handle;
};

/// A place in a tree that is walked down and up again. One directory is open at a time, so that a tree may be
/// deeper than there are handles to be had; the way up is checked by what was seen on the way down.
class DirectoryCursor
{
public:
    explicit DirectoryCursor(Directory top);

    Directory const & here() const { return m_here; }
    /// Goes to an open directory, which was found in here().
    void enter(Directory below);
    /// False when the directory has been moved to another place; the cursor is then of no use any more.
    bool leave();

private:
    Directory m_here;
    std::vector<FileId> m_way; ///< of the directories above
};

} // namespace KVCAM::UIAPI
