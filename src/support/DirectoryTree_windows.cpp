#include "support/DirectoryTree.h"

#include "support/VerbatimPath_windows.h"

#include <array>
#include <cstddef>
#include <cstring>
#include <string>
#include <utility>

#include <windows.h>

#include <winioctl.h>
#include <winternl.h>

namespace KVCAM::UIAPI {
namespace {

/// Owns a handle.
class File
{
public:
    File() = default;
    explicit File(HANDLE handle) : m_handle(handle) {}
    File(File const &) = delete;
    File(File && other) noexcept : m_handle(std::exchange(other.m_handle, INVALID_HANDLE_VALUE)) {}
    File & operator=(File const &) = delete;
    File & operator=(File &&) = delete;
    ~File()
    {
        if (isOpen()) {
            CloseHandle(m_handle);
        }
    }

    HANDLE get() const { return m_handle; }
    bool isOpen() const { return m_handle != INVALID_HANDLE_VALUE; }

private:
    HANDLE m_handle = INVALID_HANDLE_VALUE;
};

constexpr ULONG shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr ACCESS_MASK searchAccess = FILE_LIST_DIRECTORY | FILE_TRAVERSE | FILE_READ_ATTRIBUTES | SYNCHRONIZE;
constexpr ACCESS_MASK removeAccess = DELETE | FILE_READ_ATTRIBUTES | FILE_WRITE_ATTRIBUTES | SYNCHRONIZE;

// Not every SDK header defines these.
constexpr auto nameNotFound = static_cast<NTSTATUS>(0xc0000034);
constexpr auto fileRenameInformation = static_cast<FILE_INFORMATION_CLASS>(10);
constexpr auto fileDispositionInfoEx = static_cast<FILE_INFO_BY_HANDLE_CLASS>(21);

template <class Call>
Call * systemCall(char const * name)
{
    // Via void *: compilers warn about any other conversion.
    auto * const address = reinterpret_cast<void *>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), name));
    return reinterpret_cast<Call *>(address);
}

/// Opens or creates a name relative to a directory; only the native call can do that. A link itself is
/// opened, not its target.
File openIn(HANDLE directory, Directory::Path const & name, ACCESS_MASK access, ULONG disposition,
            ULONG options, NTSTATUS * why = nullptr)
{
    static auto * const create = systemCall<decltype(NtCreateFile)>("NtCreateFile");
    std::wstring text = name.native();
    if (directory == INVALID_HANDLE_VALUE || create == nullptr || text.empty() || text.size() > 0x7fff / 2 ||
        text.find_first_of(L"\\/") != std::wstring::npos) {
        return {};
    }
    UNICODE_STRING unicode{};
    unicode.Buffer = text.data();
    unicode.Length = static_cast<USHORT>(text.size() * sizeof(wchar_t));
    unicode.MaximumLength = unicode.Length;
    OBJECT_ATTRIBUTES attributes{};
    attributes.Length = sizeof attributes;
    attributes.RootDirectory = directory;
    attributes.ObjectName = &unicode;
    attributes.Attributes = OBJ_CASE_INSENSITIVE;
    IO_STATUS_BLOCK status{};
    HANDLE handle = INVALID_HANDLE_VALUE;
    constexpr ULONG always =
        FILE_OPEN_REPARSE_POINT | FILE_SYNCHRONOUS_IO_NONALERT | FILE_OPEN_FOR_BACKUP_INTENT;
    NTSTATUS const result =
        create(&handle, access | SYNCHRONIZE, &attributes, &status, nullptr, FILE_ATTRIBUTE_NORMAL, shareAll,
               disposition, options | always, nullptr, 0);
    if (why != nullptr) {
        *why = result;
    }
    return result >= 0 ? File(handle) : File();
}

template <class Info>
bool ask(HANDLE handle, FILE_INFO_BY_HANDLE_CLASS kind, Info & info)
{
    return GetFileInformationByHandleEx(handle, kind, &info, sizeof info) != 0;
}

template <class Info>
bool tell(HANDLE handle, FILE_INFO_BY_HANDLE_CLASS kind, Info info)
{
    return SetFileInformationByHandle(handle, kind, &info, sizeof info) != 0;
}

FileId idOf(HANDLE handle)
{
    FILE_ID_INFO wide{};
    if (ask(handle, FileIdInfo, wide)) {
        FileId id{wide.VolumeSerialNumber, 0, 0};
        std::memcpy(&id.low, wide.FileId.Identifier, sizeof id.low);
        std::memcpy(&id.high, wide.FileId.Identifier + sizeof id.low, sizeof id.high);
        return id;
    }
    // Not every file system supports 128-bit ids.
    BY_HANDLE_FILE_INFORMATION info{};
    if (GetFileInformationByHandle(handle, &info) != 0) {
        return {info.dwVolumeSerialNumber, info.nFileIndexHigh, info.nFileIndexLow};
    }
    return {};
}

DirectoryEntry::Kind kindOf(HANDLE handle)
{
    FILE_ATTRIBUTE_TAG_INFO info{};
    if (!ask(handle, FileAttributeTagInfo, info)) {
        return DirectoryEntry::Kind::Other;
    }
    // Other reparse points are files and directories stored elsewhere, not links.
    if ((info.FileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
        IsReparseTagNameSurrogate(info.ReparseTag)) {
        return DirectoryEntry::Kind::Link;
    }
    return (info.FileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? DirectoryEntry::Kind::Directory
                                                                 : DirectoryEntry::Kind::File;
}

/// True if that changed the file.
bool setReadOnly(HANDLE handle, bool isReadOnly)
{
    FILE_BASIC_INFO info{};
    if (!ask(handle, FileBasicInfo, info) ||
        ((info.FileAttributes & FILE_ATTRIBUTE_READONLY) != 0) == isReadOnly) {
        return false;
    }
    info.FileAttributes ^= FILE_ATTRIBUTE_READONLY;
    // With no attribute set, the system would ignore the call.
    info.FileAttributes |= info.FileAttributes == 0 ? FILE_ATTRIBUTE_NORMAL : 0;
    return tell(handle, FileBasicInfo, info);
}

bool removeByHandle(File const & file)
{
    if (!file.isOpen()) {
        return false;
    }
    // The newer call frees the name at once and leaves the attributes alone; a file outside the tree may
    // share them.
    FILE_DISPOSITION_INFO_EX const flags{FILE_DISPOSITION_FLAG_DELETE |
                                         FILE_DISPOSITION_FLAG_POSIX_SEMANTICS |
                                         FILE_DISPOSITION_FLAG_IGNORE_READONLY_ATTRIBUTE};
    if (tell(file.get(), fileDispositionInfoEx, flags)) {
        return true;
    }
    bool const wasReadOnly = setReadOnly(file.get(), false);
    bool const isRemoved = tell(file.get(), FileDispositionInfo, FILE_DISPOSITION_INFO{TRUE});
    if (wasReadOnly) { // for the file's other names, or for a file that stays
        setReadOnly(file.get(), true);
    }
    return isRemoved;
}

File openDirectory(std::wstring const & path)
{
    HANDLE const handle = CreateFileW(path.c_str(), searchAccess, shareAll, nullptr, OPEN_EXISTING,
                                      FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    File file(handle);
    return file.isOpen() && kindOf(handle) == DirectoryEntry::Kind::Directory ? std::move(file) : File();
}

bool copyContent(HANDLE from, HANDLE to)
{
    std::vector<char> buffer(1 << 17);
    for (;;) {
        DWORD size = 0;
        if (ReadFile(from, buffer.data(), static_cast<DWORD>(buffer.size()), &size, nullptr) == 0) {
            return false;
        }
        if (size == 0) {
            return true;
        }
        DWORD written = 0;
        if (WriteFile(to, buffer.data(), size, &written, nullptr) == 0 || written != size) {
            return false;
        }
    }
}

} // namespace

struct Directory::Handle
{
    explicit Handle(File file) : open(std::move(file)) {}

    static std::shared_ptr<Handle const> of(File file)
    {
        return file.isOpen() ? std::make_shared<Handle const>(std::move(file)) : nullptr;
    }
    static HANDLE get(std::shared_ptr<Handle const> const & handle)
    {
        return handle ? handle->open.get() : INVALID_HANDLE_VALUE;
    }

    File open;
};

Directory Directory::at(Path const & path)
{
    std::wstring const text = path.empty() ? L"." : path.native();
    bool const isBareDrive = text.size() == 6 && text.back() == L':'; // "\\?\C:" is the device
    return Directory(Handle::of(openDirectory(isBareDrive ? text + L'\\' : text)));
}

Directory Directory::enter(Path const & name) const
{
    File file = openIn(Handle::get(m_handle), name, searchAccess, FILE_OPEN, FILE_DIRECTORY_FILE);
    bool const isDirectory = file.isOpen() && kindOf(file.get()) == DirectoryEntry::Kind::Directory;
    return Directory(isDirectory ? Handle::of(std::move(file)) : nullptr);
}

Directory Directory::parent() const
{
    std::wstring const path = VerbatimPath::parent(VerbatimPath::ofHandle(Handle::get(m_handle)));
    return path.empty() ? Directory() : Directory(Handle::of(openDirectory(path)));
}

FileId Directory::id() const
{
    return idOf(Handle::get(m_handle));
}

Lineage Directory::lineage() const
{
    Lineage ids;
    std::wstring path = VerbatimPath::ofHandle(Handle::get(m_handle));
    if (!path.empty()) {
        ids.push_back(id());
    }
    for (path = VerbatimPath::parent(path); !path.empty(); path = VerbatimPath::parent(path)) {
        File const place(CreateFileW(path.c_str(), FILE_READ_ATTRIBUTES, shareAll, nullptr, OPEN_EXISTING,
                                     FILE_FLAG_BACKUP_SEMANTICS, nullptr));
        if (!place.isOpen()) {
            return {};
        }
        ids.push_back(idOf(place.get()));
    }
    return ids;
}

DirectoryEntry Directory::look(Path const & name) const
{
    NTSTATUS status = 0;
    File const file = openIn(Handle::get(m_handle), name, FILE_READ_ATTRIBUTES, FILE_OPEN, 0, &status);
    if (file.isOpen()) {
        return {kindOf(file.get()), idOf(file.get())};
    }
    return {status == nameNotFound ? DirectoryEntry::Kind::Missing : DirectoryEntry::Kind::Other, {}};
}

bool Directory::list(Names & names) const
{
    HANDLE const here = Handle::get(m_handle);
    alignas(FILE_ID_BOTH_DIR_INFO) std::array<char, 1 << 16> buffer{};
    for (auto kind = FileIdBothDirectoryRestartInfo;; kind = FileIdBothDirectoryInfo) {
        if (GetFileInformationByHandleEx(here, kind, buffer.data(), static_cast<DWORD>(buffer.size())) == 0) {
            return GetLastError() == ERROR_NO_MORE_FILES;
        }
        for (std::size_t offset = 0;;) {
            auto const * const entry = reinterpret_cast<FILE_ID_BOTH_DIR_INFO const *>(&buffer[offset]);
            std::wstring name(entry->FileName, entry->FileNameLength / sizeof(wchar_t));
            if (name != L"." && name != L"..") {
                names.emplace_back(std::move(name));
            }
            if (entry->NextEntryOffset == 0) {
                break;
            }
            offset += entry->NextEntryOffset;
        }
    }
}

// A directory's read-only attribute does not prevent emptying it, and removeByHandle() ignores it.
void Directory::makeWritable() const {}

bool Directory::makeDirectory(Path const & name) const
{
    return openIn(Handle::get(m_handle), name, FILE_READ_ATTRIBUTES, FILE_CREATE, FILE_DIRECTORY_FILE)
        .isOpen();
}

bool Directory::removeFile(Path const & name) const
{
    File const file = openIn(Handle::get(m_handle), name, removeAccess, FILE_OPEN, 0);
    return file.isOpen() && kindOf(file.get()) != DirectoryEntry::Kind::Directory && removeByHandle(file);
}

bool Directory::removeDirectory(Path const & name) const
{
    File const file = openIn(Handle::get(m_handle), name, removeAccess, FILE_OPEN, FILE_DIRECTORY_FILE);
    return file.isOpen() && kindOf(file.get()) == DirectoryEntry::Kind::Directory && removeByHandle(file);
}

bool Directory::copyFile(Path const & name, Directory const & target, Path const & copy) const
{
    File const from = openIn(Handle::get(m_handle), name, GENERIC_READ, FILE_OPEN, FILE_NON_DIRECTORY_FILE);
    if (!from.isOpen() || kindOf(from.get()) != DirectoryEntry::Kind::File) {
        return false;
    }
    File const to = openIn(Handle::get(target.m_handle), copy, GENERIC_WRITE | FILE_READ_ATTRIBUTES,
                           FILE_CREATE, FILE_NON_DIRECTORY_FILE);
    FILE_BASIC_INFO info{};
    if (!to.isOpen() || !copyContent(from.get(), to.get()) || !ask(from.get(), FileBasicInfo, info)) {
        return false;
    }
    setReadOnly(to.get(), (info.FileAttributes & FILE_ATTRIBUTE_READONLY) != 0);
    return true;
}

bool Directory::copyLink(Path const & name, Directory const & target, Path const & copy) const
{
    File const from = openIn(Handle::get(m_handle), name, FILE_READ_ATTRIBUTES, FILE_OPEN, 0);
    FILE_ATTRIBUTE_TAG_INFO info{};
    std::vector<char> text(MAXIMUM_REPARSE_DATA_BUFFER_SIZE);
    DWORD size = 0;
    if (!from.isOpen() || kindOf(from.get()) != DirectoryEntry::Kind::Link ||
        !ask(from.get(), FileAttributeTagInfo, info) ||
        DeviceIoControl(from.get(), FSCTL_GET_REPARSE_POINT, nullptr, 0, text.data(),
                        static_cast<DWORD>(text.size()), &size, nullptr) == 0) {
        return false;
    }
    bool const isDirectory = (info.FileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    File const to = openIn(Handle::get(target.m_handle), copy, GENERIC_WRITE | DELETE, FILE_CREATE,
                           isDirectory ? FILE_DIRECTORY_FILE : FILE_NON_DIRECTORY_FILE);
    DWORD none = 0;
    if (to.isOpen() && DeviceIoControl(to.get(), FSCTL_SET_REPARSE_POINT, text.data(), size, nullptr, 0,
                                       &none, nullptr) != 0) {
        return true;
    }
    removeByHandle(to); // removeFile() would not remove an empty directory
    return false;
}

bool Directory::rename(Path const & from, Path const & to) const
{
    static auto * const set = systemCall<decltype(NtSetInformationFile)>("NtSetInformationFile");
    HANDLE const here = Handle::get(m_handle);
    File const file = openIn(here, from, removeAccess, FILE_OPEN, 0);
    if (!file.isOpen() || set == nullptr) {
        return false;
    }
    bool wasReadOnly = false;
    if (File const old = openIn(here, to, FILE_READ_ATTRIBUTES | FILE_WRITE_ATTRIBUTES, FILE_OPEN, 0);
        old.isOpen() && kindOf(old.get()) != DirectoryEntry::Kind::Directory) {
        wasReadOnly = setReadOnly(old.get(), false); // a read-only file would not be replaced
    }
    std::wstring const name = to.native();
    std::vector<std::uint64_t> buffer((sizeof(FILE_RENAME_INFO) + name.size() * sizeof(wchar_t)) / 8 + 1);
    auto * const info = reinterpret_cast<FILE_RENAME_INFO *>(buffer.data());
    info->ReplaceIfExists = TRUE;
    info->RootDirectory = here;
    info->FileNameLength = static_cast<DWORD>(name.size() * sizeof(wchar_t));
    std::memcpy(info->FileName, name.data(), info->FileNameLength);
    IO_STATUS_BLOCK status{};
    bool const isRenamed =
        set(file.get(), &status, info, static_cast<ULONG>(buffer.size() * 8), fileRenameInformation) >= 0;
    if (wasReadOnly && !isRenamed) {
        File const old = openIn(here, to, FILE_READ_ATTRIBUTES | FILE_WRITE_ATTRIBUTES, FILE_OPEN, 0);
        setReadOnly(old.get(), true);
    }
    return isRenamed;
}

} // namespace KVCAM::UIAPI
