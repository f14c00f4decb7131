#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <vector>

/// Directories by handle. A path is resolved on every call, and anyone with write access to the tree can
/// insert a link between two calls; a handle stays with the directory it was opened for. Names are single
/// components in the file system's own bytes. File system errors do not throw, and nothing is logged.
namespace KVCAM::UIAPI {

/// Identifies a file uniquely while it exists.
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

/// A directory and its ancestors, up to the root; empty if they cannot be determined.
using Lineage = std::vector<FileId>;

/// What a name in a directory refers to. Links are not followed.
struct DirectoryEntry
{
    enum class Kind
    {
        Missing,
        Directory,
        File,
        Link, ///< or a junction
        Other ///< a pipe, a device, or not accessible
    };
    Kind kind = Kind::Missing;
    FileId id; ///< meaningless if missing or not accessible
};

/// An open directory, or none; with none, every call fails.
class Directory
{
public:
    using Path = std::filesystem::path;
    using Names = std::vector<Path>;

    Directory() = default;
    /// Opens a directory for searching. Links are followed: the caller's path is taken literally. An empty
    /// path is the current directory.
    static Directory at(Path const & path);
    /// Opens a subdirectory; none for a link.
    Directory enter(Path const & name) const;
    /// Opens the current parent of this directory.
    Directory parent() const;

    bool isOpen() const { return m_handle != nullptr; }
    /// The id of no file if the directory cannot be queried.
    FileId id() const;
    Lineage lineage() const;
    DirectoryEntry look(Path const & name) const;
    /// Appends the names of the entries, without "." and "..". On failure some may have been appended.
    bool list(Names & names) const;

    /// Gives the owner the permissions needed to empty the directory, on systems that require them.
    void makeWritable() const;
    /// Creates a directory, which must not exist.
    bool makeDirectory(Path const & name) const;
    /// Removes anything but a directory. A link or junction is removed itself, not its target.
    bool removeFile(Path const & name) const;
    /// Removes an empty directory.
    bool removeDirectory(Path const & name) const;
    /// Copies a file's content and permissions to a name that must not exist. On failure a partial copy may
    /// be left.
    bool copyFile(Path const & name, Directory const & target, Path const & copy) const;
    /// Copies a link as a link, to a name that must not exist.
    bool copyLink(Path const & name, Directory const & target, Path const & copy) const;
    /// Renames a file or link in this directory, replacing a file or link of the new name.
    bool rename(Path const & from, Path const & to) const;

private:
    struct Handle; ///< the system's own
    explicit Directory(std::shared_ptr<Handle const> handle) : m_handle(std::move(handle)) {}

    std::shared_ptr<Handle const> m_handle;
};

/// A position in a tree that is walked down and back up. Only one directory is open at a time, so the tree
/// may be deeper than the number of available handles. The way up is checked against what was seen on the way
/// down.
class DirectoryCursor
{
public:
    explicit DirectoryCursor(Directory top);

    Directory const & here() const { return m_here; }
    /// Moves to an open directory that was found in here().
    void enter(Directory below);
    /// Moves to the parent. False if the directory was moved elsewhere; the cursor is then unusable.
    bool leave();

private:
    Directory m_here;
    std::vector<FileId> m_way; ///< ids of the directories above
};

} // namespace KVCAM::UIAPI
