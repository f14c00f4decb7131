#pragma once

#include "UIAPICommonExport.h"

#include <QList>
#include <QString>

#include <string>

/// Names of files, and the files and directories of jobs. Paths are absolute or relative to the current
/// directory, in UTF-8 where they are bytes; an empty one and one with a NUL are refused. A failure is false
/// and not logged, except where a function says otherwise.
namespace KVCAM::UIAPI {

/// Fills `result` with the items that match a pattern from end to end, in their order, in any case. '*'
/// stands for any text; '0' to '9', 'A' to 'Z', 'a' to 'z', '_', '.' and '/' stand for themselves. A pattern
/// that is empty or has another character leaves `result` empty and logs "Illegal characters: " and the
/// pattern.
UIAPICOMMON_EXPORT void find_input_items(QList<QString> items, QString pattern, QList<QString> & result);

/// Replaces a file by a text in UTF-8, so that a crash or a full disk leaves the old file whole (except where
/// the directory takes no new file). Its directory must exist; what is there and no file is refused.
UIAPICOMMON_EXPORT bool saveTextByIODevice(QString const & path, QString const & text);

/// Creates a directory with its parents. True when it is there afterwards.
UIAPICOMMON_EXPORT bool checkDir(QString const & path);

/// Removes what is in a directory, and with `removeSelf` the directory too. True when all of that is gone; on
/// failure some of it may be.
///
/// No link is followed, even when it is put there meanwhile: one inside goes, what it points to stays. A link
/// to a directory as `path` is removed with `removeSelf` and refused without. Read-only directories are made
/// writable first. Refused are: what does not exist or is no directory, a path that ends in "." or "..",
/// roots and what stands directly in one, the current directory, the home directory by the environment and by
/// the user database, and what holds one of these three. Ext::setRemovalRoots() restricts it further.
UIAPICOMMON_EXPORT bool delDir(std::string const & path, bool removeSelf);

/// Copies what is in a directory into another one, which is created with its parents. True when all of it was
/// copied; what cannot be copied is left out, and the rest is not.
///
/// A file that is there already is replaced with `overwrite`, and else stays and counts as not copied, as
/// does what is no file, directory or link. A file gets its name when it is complete. Links are copied as
/// links and never followed; permissions of files are copied. Refused are: a `from` that is no directory, and
/// a `to` that is `from` or inside it, also by way of a link.
UIAPICOMMON_EXPORT bool copyDirectoryFile(QString const & from, QString const & to, bool overwrite);

/// Has the configured server delete a job: one line {"cmd":"deleteJob","job":...} over TCP, true on an answer
/// line with "ok": true. The server is an address or "localhost". Blocks for the configured timeout in
/// milliseconds at most, and never for more than 5 seconds, which also count when none is configured. A name
/// is UTF-8 of 1 to 255 bytes without control characters, "/", "\" and ":", and neither "." nor "..". Another
/// name and every failure are false after "KVCAM UIAPI deletGeneJob error" at ERROR.
UIAPICOMMON_EXPORT bool deletGeneJob(std::string const & job);

/// "hh:mm:ss": full seconds, hours not wrapped at 24 and with two or more digits; "00:00:00" for a negative
/// time.
UIAPICOMMON_EXPORT QString formatTime(qint64 milliseconds);

} // namespace KVCAM::UIAPI
