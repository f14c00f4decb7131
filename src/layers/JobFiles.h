#pragma once

#include <QString>

#include <string>

/// Files and directories of jobs. Names are interpreted by the file system, whatever their bytes. An empty
/// path, a path with a NUL and one that NativePath::literal() rejects are rejected. Nothing is logged.
namespace KVCAM::UIAPI::JobFiles {

/// Creates a directory and its parents. True if it exists afterwards.
bool checkDir(QString const & path);

/// Removes the contents of a directory, and with `removeSelf` the directory too. True if all of that is gone.
///
/// Links and junctions are never followed: one inside is removed, its target stays. The same applies if
/// `path` itself is a link, which is rejected without `removeSelf`. This also holds while others change the
/// tree: it is walked by handle, and the directory that was checked is the one removed. Read-only directories
/// are made writable first. What cannot be removed stays, along with some of its siblings.
///
/// Rejected: anything that is not a directory; a path ending in "." or ".."; roots and their direct children;
/// the current directory, the home directory according to the environment and according to the user database,
/// and every ancestor of these three, including links on the way. With Ext::setRemovalRoots(), also
/// everything not below one of its directories.
bool delDir(std::string const & path, bool removeSelf);

/// Copies the contents of a directory into another one, which is created with its parents. True if everything
/// was copied; otherwise the rest was still copied.
///
/// An existing file is replaced with `overwrite`; otherwise it stays and counts as not copied. The same
/// applies to a directory in a file's place, a file or link in a directory's place, and special files (a
/// pipe, a device). A file gets its name once it is complete. Links are copied as links and never followed,
/// neither in `from` nor in `to`, not even links inserted meanwhile. File permissions are copied, those of
/// directories are not. Rejected: a `from` that is not a directory, and a `to` that is `from` or inside it,
/// even through a link.
bool copyDirectoryFile(QString const & from, QString const & to, bool overwrite);

/// Replaces a file with a text in UTF-8. A crash or a full disk leaves the old file intact, unless the
/// directory does not accept a new file. The directory must exist. Also false for anything there that is not
/// a file.
bool saveTextByIODevice(QString const & path, QString const & text);

/// "hh:mm:ss": full seconds, hours with two or more digits, "00:00:00" for a negative time.
QString formatTime(qint64 milliseconds);

} // namespace KVCAM::UIAPI::JobFiles
