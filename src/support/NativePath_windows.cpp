#include "support/NativePath.h"

#include "support/DirectoryTree.h"
#include "support/VerbatimPath_windows.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cwchar>
#include <cwctype>
#include <string>
#include <string_view>
#include <vector>

#include <windows.h>

#include <winternl.h>

namespace KVCAM::UIAPI {
namespace {

constexpr std::wstring_view verbatim = LR"(\\?\)";
constexpr std::wstring_view verbatimShare = LR"(\\?\UNC\)";
constexpr std::wstring_view server = LR"(\\)";

bool startsWith(std::wstring_view text, std::wstring_view start)
{
    return text.substr(0, start.size()) == start;
}

std::wstring withBackslashes(std::wstring text)
{
    std::replace(text.begin(), text.end(), L'/', L'\\');
    return text;
}

std::vector<std::wstring> partsOf(std::wstring const & path)
{
    std::vector<std::wstring> parts;
    for (std::size_t start = 0; start <= path.size();) {
        std::size_t const end = std::min(path.find(L'\\', start), path.size());
        parts.push_back(path.substr(start, end - start));
        start = end + 1;
    }
    return parts;
}

/// Some systems reserve these names with any ending: "aux", "aux.json", "aux .x".
bool isDevice(std::wstring name)
{
    name.resize(std::min(name.find(L'.'), name.size()));
    name.resize(name.find_last_not_of(L' ') + 1);
    std::transform(name.begin(), name.end(), name.begin(), [](wchar_t c) { return std::towupper(c); });
    constexpr std::array<std::wstring_view, 6> names = {L"CON", L"PRN",    L"AUX",
                                                        L"NUL", L"CONIN$", L"CONOUT$"};
    bool const isPort = name.size() == 4 && (startsWith(name, L"COM") || startsWith(name, L"LPT")) &&
                        std::wstring_view(L"123456789\u00b9\u00b2\u00b3").find(name[3]) != std::wstring::npos;
    return isPort || std::find(names.begin(), names.end(), name) != names.end();
}

bool isDots(std::wstring const & name)
{
    return name == L"." || name == L"..";
}

/// What no name may contain; a colon would lead into a stream.
bool hasForbiddenCharacter(std::wstring const & name)
{
    return std::any_of(name.begin(), name.end(),
                       [](wchar_t c) { return c < L' ' || std::wcschr(L"<>:\"|?*", c) != nullptr; });
}

bool isPlainName(std::wstring const & name)
{
    return name.empty() || isDots(name) ||
           (name.back() != L'.' && name.back() != L' ' && !isDevice(name) && !hasForbiddenCharacter(name));
}

bool hasDrive(std::wstring const & path)
{
    return path.size() > 2 && path[1] == L':' && path[2] == L'\\' && path[0] < 0x80 && std::iswalpha(path[0]);
}

bool hasShare(std::vector<std::wstring> const & parts)
{
    return parts.size() >= 2 && std::none_of(parts.begin(), parts.begin() + 2,
                                             [](auto const & part) { return part.empty() || isDots(part); });
}

/// For a path with backslashes that is not verbatim.
bool isPlain(std::wstring const & path)
{
    bool const isOnServer = startsWith(path, server);
    std::vector<std::wstring> const parts = partsOf(path.substr(isOnServer       ? server.size()
                                                                : hasDrive(path) ? 3
                                                                                 : 0));
    return (!isOnServer || hasShare(parts)) && std::all_of(parts.begin(), parts.end(), isPlainName);
}

/// For a verbatim path: the system takes any name, but it drops no "." or empty part either.
bool isComplete(std::wstring const & path)
{
    bool const isOnServer = startsWith(path, verbatimShare);
    std::wstring const rest = path.substr(isOnServer ? verbatimShare.size() : verbatim.size());
    std::wstring const below = isOnServer ? rest : rest.substr(std::min<std::size_t>(3, rest.size()));
    std::vector<std::wstring> parts = partsOf(below);
    while (!parts.empty() && parts.back().empty()) { // after separators at the end
        parts.pop_back();
    }
    bool const isRooted = isOnServer ? hasShare(parts) : hasDrive(rest);
    return isRooted && std::none_of(parts.begin(), parts.end(), [](auto const & part) {
               return part.empty() || isDots(part) || hasForbiddenCharacter(part) ||
                      part.find(L'/') != std::wstring::npos;
           });
}

std::wstring fullPath(std::wstring const & path)
{
    std::wstring full(GetFullPathNameW(path.c_str(), 0, nullptr, nullptr), L'\0');
    full.resize(GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
    return full;
}

std::wstring asVerbatim(std::wstring const & full)
{
    if (startsWith(full, verbatim)) {
        return full;
    }
    return startsWith(full, server) ? std::wstring(verbatimShare) + full.substr(server.size())
                                    : std::wstring(verbatim) + full;
}

/// A root ends with a separator, nothing else does.
std::wstring withRootSeparator(std::wstring path)
{
    path.resize(path.find_last_not_of(L'\\') + 1);
    bool const isRoot = VerbatimPath::rootLength(path) >= path.size();
    return isRoot ? path + L'\\' : path;
}

/// Under Wine the documented call fails beyond 260 characters; the object's name there is "\??\C:\jobs".
/// Windows names a device instead.
std::wstring longPathUnderWine(HANDLE handle)
{
    static auto * const query = reinterpret_cast<decltype(NtQueryObject) *>(
        reinterpret_cast<void *>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtQueryObject")));
    std::vector<std::uint64_t> buffer(0x10000 / sizeof(std::uint64_t) + 8);
    auto * const name = reinterpret_cast<UNICODE_STRING *>(buffer.data());
    constexpr auto objectName = static_cast<OBJECT_INFORMATION_CLASS>(1);
    ULONG size = 0;
    if (query == nullptr ||
        query(handle, objectName, name, static_cast<ULONG>(buffer.size() * 8), &size) < 0) {
        return {};
    }
    std::wstring const path(name->Buffer, name->Length / sizeof(wchar_t));
    constexpr std::wstring_view local = LR"(\??\)";
    bool const isOnDrive = startsWith(path, local) && hasDrive(path.substr(local.size()));
    return isOnDrive ? std::wstring(verbatim) + path.substr(local.size()) : std::wstring();
}

} // namespace

bool NativePath::isLiteral(QString const & path)
{
    std::wstring const text = withBackslashes(path.toStdWString());
    if (startsWith(text, verbatimShare)) {
        return isPlain(std::wstring(server) + text.substr(verbatimShare.size()));
    }
    std::wstring const rest = text.substr(startsWith(text, verbatim) ? verbatim.size() : 0);
    return (rest.size() == text.size() || hasDrive(rest)) && isPlain(rest);
}

NativePath::Path NativePath::literal(Path const & path)
{
    std::wstring const & text = path.native();
    if (startsWith(text, verbatim)) {
        return isComplete(text) ? withRootSeparator(text) : std::wstring();
    }
    std::wstring const native = withBackslashes(text);
    if (native.empty() || !isPlain(native)) {
        return {};
    }
    std::wstring const full = asVerbatim(fullPath(native));
    return isComplete(full) ? withRootSeparator(full) : std::wstring();
}

NativePath::Path NativePath::absolute(Path const & path)
{
    return literal(path);
}

NativePath::Path NativePath::resolved(Path const & path)
{
    std::wstring const whole = literal(path).native();
    for (std::wstring there = whole; !there.empty(); there = VerbatimPath::parent(there)) {
        HANDLE const handle = CreateFileW(there.c_str(), FILE_READ_ATTRIBUTES,
                                          FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                          OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
        if (handle != INVALID_HANDLE_VALUE) {
            std::wstring const real = VerbatimPath::ofHandle(handle);
            CloseHandle(handle);
            return real.empty() ? real : withRootSeparator(real + L'\\' + whole.substr(there.size()));
        }
    }
    return whole;
}

NativePath::Path NativePath::above(Path const & path)
{
    return VerbatimPath::parent(path.native());
}

bool NativePath::makeDirectories(Path const & path)
{
    std::wstring const whole = literal(path).native();
    std::vector<std::wstring> missing;
    for (std::wstring there = whole;
         !there.empty() && GetFileAttributesW(there.c_str()) == INVALID_FILE_ATTRIBUTES;
         there = VerbatimPath::parent(there)) {
        missing.push_back(there);
    }
    for (auto there = missing.rbegin(); there != missing.rend(); ++there) {
        CreateDirectoryW(there->c_str(), nullptr); // a failure shows below
    }
    return !whole.empty() && Directory::at(whole).isOpen();
}

std::wstring VerbatimPath::ofHandle(void * handle)
{
    std::wstring path(0x8000, L'\0');
    DWORD const size =
        GetFinalPathNameByHandleW(handle, path.data(), static_cast<DWORD>(path.size()), FILE_NAME_NORMALIZED);
    path.resize(size < path.size() ? size : 0);
    return path.empty() ? longPathUnderWine(handle) : path;
}

std::size_t VerbatimPath::rootLength(std::wstring const & path)
{
    std::size_t end =
        startsWith(path, verbatimShare) ? path.find(L'\\', verbatimShare.size()) : verbatim.size() - 1;
    end = end == std::wstring::npos ? end : path.find(L'\\', end + 1);
    return end == std::wstring::npos ? path.size() : end + 1;
}

std::wstring VerbatimPath::parent(std::wstring const & path)
{
    std::size_t const root = rootLength(path);
    if (path.size() <= root) {
        return {};
    }
    return path.substr(0, std::max(root, path.rfind(L'\\')));
}

} // namespace KVCAM::UIAPI
