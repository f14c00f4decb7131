#pragma once

#include <QString>

#include <filesystem>
#include <string>

/// Paths passed in by the host. std::filesystem paths keep every file name intact; Qt's would drop what is
/// invalid in the locale's encoding.
namespace KVCAM::UIAPI::FilePaths {

namespace fs = std::filesystem;

/// Empty for a text that cannot be a path: empty, with a NUL, or not valid Unicode.
fs::path fromText(QString const & text);
/// From UTF-8; on systems where file names are bytes, from any bytes.
fs::path fromText(std::string const & text);

/// "a/b" for "a/b/": a trailing separator would follow a link.
fs::path withoutEndSeparator(fs::path path);
/// Whether the last part is a name: false for roots, ".", ".." and an empty path.
bool namesAnEntry(fs::path const & path);

} // namespace KVCAM::UIAPI::FilePaths
