#pragma once

#include <QString>
#include <QStringList>

namespace Workbench {

/// The boards opened lately, latest first, from the file of the window's state; at most ten. None if it
/// cannot be read.
QStringList recentBoards(QString const & stateFile);
/// Puts a board first. Logs at ERROR if the file cannot be written.
void keepRecentBoard(QString const & stateFile, QString const & path);

} // namespace Workbench
