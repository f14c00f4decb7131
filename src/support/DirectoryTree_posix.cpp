#include "support/DirectoryTree.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <string>
#include <utility>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace KVCAM::UIAPI {
namespace {

/// Owns a descriptor.
class Descriptor
{
public:
    explicit Descriptor(int descriptor) : m_descriptor(descriptor) {}
    Descriptor(Descriptor const &) = delete;
    Descriptor(Descriptor && other) noexcept : m_descriptor(std::exchange(other.m_descriptor, -1)) {}
    Descriptor & operator=(Descriptor const &) = delete;
    Descriptor & operator=(Descriptor &&) = delete;
    ~Descriptor() { close(); }

    int get() const { return m_descriptor; }
    bool isOpen() const { return m_descriptor >= 0; }
    int release() { return std::exchange(m_descriptor, -1); }
    /// False if the written data was not stored.
    bool close() { return m_descriptor < 0 || ::close(std::exchange(m_descriptor, -1)) == 0; }

private:
    int m_descriptor;
};

using Status = struct stat;

constexpr int directoryFlags = O_DIRECTORY | O_CLOEXEC;

FileId idOf(Status const & status)
{
    return {status.st_dev, 0, status.st_ino};
}

DirectoryEntry::Kind kindOf(Status const & status)
{
    switch (status.st_mode & S_IFMT) {
    case S_IFDIR:
        return DirectoryEntry::Kind::Directory;
    case S_IFREG:
        return DirectoryEntry::Kind::File;
    case S_IFLNK:
        return DirectoryEntry::Kind::Link;
    default:
        return DirectoryEntry::Kind::Other;
    }
}

bool writeAll(int file, char const * data, std::size_t size)
{
    while (size > 0) {
        ssize_t const written = write(file, data, size);
        if (written < 0 && errno != EINTR) {
            return false;
        }
        if (written > 0) {
            data += written;
            size -= static_cast<std::size_t>(written);
        }
    }
    return true;
}

bool copyContent(int from, int to)
{
    std::vector<char> buffer(1 << 17);
    for (;;) {
        ssize_t const size = read(from, buffer.data(), buffer.size());
        if (size == 0) {
            return true;
        }
        if (size < 0 && errno == EINTR) {
            continue;
        }
        if (size < 0 || !writeAll(to, buffer.data(), static_cast<std::size_t>(size))) {
            return false;
        }
    }
}

} // namespace

struct Directory::Handle
{
    explicit Handle(Descriptor descriptor) : open(std::move(descriptor)) {}

    static std::shared_ptr<Handle const> of(Descriptor descriptor)
    {
        return descriptor.isOpen() ? std::make_shared<Handle const>(std::move(descriptor)) : nullptr;
    }
    /// The descriptor to pass to a call; -1, which every call rejects, for no directory.
    static int get(std::shared_ptr<Handle const> const & handle) { return handle ? handle->open.get() : -1; }

    Descriptor open;
};

Directory Directory::at(Path const & path)
{
    return Directory(
        Handle::of(Descriptor(open(path.empty() ? "." : path.c_str(), O_PATH | directoryFlags))));
}

Directory Directory::enter(Path const & name) const
{
    constexpr int flags = O_PATH | O_NOFOLLOW | directoryFlags;
    return Directory(Handle::of(Descriptor(openat(Handle::get(m_handle), name.c_str(), flags))));
}

Directory Directory::parent() const
{
    return Directory(Handle::of(Descriptor(openat(Handle::get(m_handle), "..", O_PATH | directoryFlags))));
}

FileId Directory::id() const
{
    Status status{};
    return fstat(Handle::get(m_handle), &status) == 0 ? idOf(status) : FileId();
}

Lineage Directory::lineage() const
{
    Lineage ids;
    for (Directory place = *this; place.isOpen(); place = place.parent()) {
        FileId const id = place.id();
        if (!ids.empty() && ids.back() == id) {
            return ids; // the root is its own parent
        }
        ids.push_back(id);
    }
    return {};
}

DirectoryEntry Directory::look(Path const & name) const
{
    Status status{};
    if (fstatat(Handle::get(m_handle), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0) {
        return {kindOf(status), idOf(status)};
    }
    return {errno == ENOENT ? DirectoryEntry::Kind::Missing : DirectoryEntry::Kind::Other, {}};
}

bool Directory::list(Names & names) const
{
    // The stream takes ownership of its descriptor, so it gets its own.
    Descriptor own(openat(Handle::get(m_handle), ".", O_RDONLY | directoryFlags));
    std::unique_ptr<DIR, int (*)(DIR *)> const stream(own.isOpen() ? fdopendir(own.get()) : nullptr,
                                                      closedir);
    if (!stream) {
        return false;
    }
    own.release();
    for (;;) {
        errno = 0;
        dirent const * const entry = readdir(stream.get());
        if (entry == nullptr) {
            return errno == 0;
        }
        char const * const name = entry->d_name;
        if (std::strcmp(name, ".") != 0 && std::strcmp(name, "..") != 0) {
            names.emplace_back(name);
        }
    }
}

void Directory::makeWritable() const
{
    int const here = Handle::get(m_handle);
    Status status{};
    if (fstat(here, &status) != 0 || (status.st_mode & S_IRWXU) == S_IRWXU) {
        return;
    }
    mode_t const mode = (status.st_mode & 07777) | S_IRWXU;
    // Failures show up later, where they matter. /proc reaches an unreadable directory by its handle.
    if (Descriptor const readable(openat(here, ".", O_RDONLY | directoryFlags)); readable.isOpen()) {
        (void)fchmod(readable.get(), mode);
    } else {
        (void)chmod(("/proc/self/fd/" + std::to_string(here)).c_str(), mode);
    }
}

bool Directory::makeDirectory(Path const & name) const
{
    return mkdirat(Handle::get(m_handle), name.c_str(), S_IRWXU | S_IRWXG | S_IRWXO) == 0;
}

bool Directory::removeFile(Path const & name) const
{
    return unlinkat(Handle::get(m_handle), name.c_str(), 0) == 0;
}

bool Directory::removeDirectory(Path const & name) const
{
    return unlinkat(Handle::get(m_handle), name.c_str(), AT_REMOVEDIR) == 0;
}

bool Directory::copyFile(Path const & name, Directory const & target, Path const & copy) const
{
    // Non-blocking: a pipe may have replaced the file.
    constexpr int readFlags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    Descriptor const from(openat(Handle::get(m_handle), name.c_str(), readFlags));
    Status status{};
    if (!from.isOpen() || fstat(from.get(), &status) != 0 || !S_ISREG(status.st_mode)) {
        return false;
    }
    constexpr int writeFlags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    Descriptor to(openat(Handle::get(target.m_handle), copy.c_str(), writeFlags, S_IRUSR | S_IWUSR));
    return to.isOpen() && copyContent(from.get(), to.get()) &&
           fchmod(to.get(), status.st_mode & 07777) == 0 && to.close();
}

bool Directory::copyLink(Path const & name, Directory const & target, Path const & copy) const
{
    std::array<char, 8192> text{}; // longer than the longest possible path
    ssize_t const size = readlinkat(Handle::get(m_handle), name.c_str(), text.data(), text.size() - 1);
    return size > 0 && static_cast<std::size_t>(size) < text.size() - 1 &&
           symlinkat(text.data(), Handle::get(target.m_handle), copy.c_str()) == 0;
}

bool Directory::rename(Path const & from, Path const & to) const
{
    int const here = Handle::get(m_handle);
    return renameat(here, from.c_str(), here, to.c_str()) == 0;
}

} // namespace KVCAM::UIAPI
