#pragma once

#include <QString>

#include <filesystem>

/// Paths in the form that the system takes literally. On Windows an ordinary path may name something else
/// than it seems to: "aux.json" is a device, "dir." is "dir", "x.json:y" is hidden in x.json, "c:x" is
/// relative to a directory that nobody sees, and a long one fails. Elsewhere every path is literal.
namespace KVCAM::UIAPI::NativePath {

using Path = std::filesystem::path;

/// False for a path that the system would take for another. An empty path is literal.
bool isLiteral(QString const & path);

/// The path to use in place of one given by the host; empty if there is none. On Windows absolute, of any
/// length, starting with "\\?\"; a path that already does so may have any names. Elsewhere unchanged.
Path literal(Path const & path);
/// literal(), absolute on every system, without a separator at the end except for a root's own.
Path absolute(Path const & path);
/// absolute() without links as far as the path exists; empty on failure.
Path resolved(Path const & path);
/// The path without its last part; empty for a root. For absolute paths.
Path above(Path const & path);

/// Creates a directory and its parents. True if it exists afterwards.
bool makeDirectories(Path const & path);

} // namespace KVCAM::UIAPI::NativePath
