#pragma once

#include <QString>

#include <filesystem>
#include <string>

/// Paths that the host hands in. The standard library's paths carry every file name
/// as it is; Qt's would leave out what is not valid in the locale's encoding.
namespace KVCAM::UIAPI::FilePaths {

namespace fs = std::filesystem;

/// Empty for a text that cannot be a path: an empty one, one with a NUL, one that is no valid Unicode.
fs::path fromText(QString const & text);
/// A UTF-8 text; where file names are bytes, any bytes.
fs::path fromText(std::string const & text);

/// "a/b" for "a/b/": with the separator a link would be followed.
fs::path withoutEndSeparator(fs::path path);
/// Whether the last part is a name: false for roots, ".", ".." and an empty path.
bool namesAnEntry(fs::path const & path);

/// The absolute path without links, "." and ".." as far as it exists; empty on failure.
fs::path resolved(fs::path const & path);

} // namespace KVCAM::UIAPI::FilePaths
