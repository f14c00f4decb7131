#pragma once

#include "UIAPICommonExport.h"

#include <QList>
#include <QString>

#include <string>

/// \addtogroup files
/// File names, and the files and directories of jobs. Paths are absolute or relative to the current
/// directory; byte strings are UTF-8. An empty path and a path with a NUL are rejected, on Windows also one
/// that the system would take for another: "nul", "aux.json", "dir.", "x.json:y", "c:x". Failure returns
/// false and is not logged, unless stated otherwise.
namespace KVCAM::UIAPI {

/// Fills `result` with the items that match the whole pattern, in their order, case-insensitively. '*'
/// matches any text; '0' to '9', 'A' to 'Z', 'a' to 'z', '_', '.' and '/' match themselves. An empty pattern
/// or one with any other character leaves `result` empty and logs "Illegal characters: " and the pattern.
UIAPICOMMON_EXPORT void find_input_items(QList<QString> items, QString pattern, QList<QString> & result);

/// Replaces a file with a text in UTF-8. A crash or a full disk leaves the old file intact, unless the
/// directory does not accept a new file. The directory must exist; anything there that is not a file is
/// rejected.
UIAPICOMMON_EXPORT bool saveTextByIODevice(QString const & path, QString const & text);

/// Creates a directory and its parents. True if it exists afterwards.
UIAPICOMMON_EXPORT bool checkDir(QString const & path);

/// Removes the contents of a directory, and with `removeSelf` the directory too. True if all of that is gone;
/// on failure some of it may be gone.
///
/// Links are never followed, not even one inserted meanwhile: a link inside is removed, its target stays. If
/// `path` is a link to a directory, it is removed with `removeSelf` and rejected without. Read-only
/// directories are made writable first. Rejected: anything that does not exist or is not a directory; a path
/// ending in "." or ".."; roots and their direct children; the current directory, the home directory
/// according to the environment and according to the user database, and every ancestor of these three.
/// Ext::setRemovalRoots() restricts it further.
UIAPICOMMON_EXPORT bool delDir(std::string const & path, bool removeSelf);

/// Copies the contents of a directory into another one, which is created with its parents. True if everything
/// was copied; what cannot be copied is skipped, and the rest is still copied.
///
/// An existing file is replaced with `overwrite`; otherwise it stays and counts as not copied, as does
/// anything that is not a file, directory or link. A file gets its name once it is complete. Links are copied
/// as links and never followed; file permissions are copied. Rejected: a `from` that is not a directory, and
/// a `to` that is `from` or inside it, even through a link.
UIAPICOMMON_EXPORT bool copyDirectoryFile(QString const & from, QString const & to, bool overwrite);

/// Makes the configured server delete a job: sends one line {"cmd":"deleteJob","job":...} over TCP; true on
/// an answer line with "ok": true. The server is an address or "localhost". Blocks for at most the configured
/// timeout in milliseconds and never more than 5 seconds, which is also the timeout if none is configured. A
/// name is UTF-8 of 1 to 255 bytes without control characters, "/", "\" or ":", and neither "." nor "..". Any
/// other name and every failure return false after "KVCAM UIAPI deletGeneJob error" at ERROR.
UIAPICOMMON_EXPORT bool deletGeneJob(std::string const & job);

/// "hh:mm:ss": full seconds, hours not wrapped at 24 and with two or more digits; "00:00:00" for a negative
/// time.
UIAPICOMMON_EXPORT QString formatTime(qint64 milliseconds);

} // namespace KVCAM::UIAPI
