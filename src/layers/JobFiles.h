#pragma once

#include <QString>

#include <string>

/// Files and directories of jobs. Names are what the file system makes of them, whatever bytes they consist
/// of; an empty path and one with a NUL are refused. Nothing is logged.
namespace KVCAM::UIAPI::JobFiles {

/// Creates a directory with its parents. True when it is there afterwards.
bool checkDir(QString const & path);

/// Removes what is in a directory, and with `removeSelf` the directory too. True when all of that is gone.
///
/// No link (and no junction) is followed: one inside goes, what it points to stays, and so with a link as
/// `path` itself, which without `removeSelf` is refused. That holds while others change the tree, too: the
/// tree is walked by handle, and the directory that was judged is the one that goes. Directories that are
/// read-only are made writable first. What cannot be removed stays, with some of what stands beside it.
///
/// Refused are: what is no directory, a path that ends in "." or "..", roots and what stands directly in one,
/// the current directory, the home directory by the environment and by the user database, and what holds one
/// of these three, a link on the way to it included; with Ext::setRemovalRoots() all that is not below one of
/// its directories.
bool delDir(std::string const & path, bool removeSelf);

/// Copies what is in a directory into another one, which is created with its parents. True when all of it was
/// copied; otherwise the rest was.
///
/// A file that is there already is replaced with `overwrite`, and else stays and counts as not copied; so do
/// a directory in a file's place, a file or link in a directory's place, and what is no file (a pipe, a
/// device). A file gets its name when it is complete. Links are copied as links and never followed, inside
/// `from` and inside `to`, even when they are put there meanwhile; file permissions are copied, those of
/// directories are not. Refused are: a `from` that is no directory, and a `to` that is `from` or inside it,
/// also by way of a link.
bool copyDirectoryFile(QString const & from, QString const & to, bool overwrite);

/// Replaces a file by a text in UTF-8; a crash or a full disk leaves the old file whole, except where the
/// directory takes no new file. Its directory must exist. False, too, for what is there and no file.
bool saveTextByIODevice(QString const & path, QString const & text);

/// "hh:mm:ss": full seconds, hours with two or more digits, "00:00:00" for a negative time.
QString formatTime(qint64 milliseconds);

} // namespace KVCAM::UIAPI::JobFiles
