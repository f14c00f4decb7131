#pragma once

#include "job/CommandLine.h"

#include <QString>

#include <vector>

namespace Workbench {

/// The name of a board: that of its folder, or of its archive without the ending.
QString boardName(QString const & job);

/// The command line for one board: "%b" in the names of its files and of its output folder is replaced by the
/// board's name.
CommandLine forBoard(CommandLine line, QString const & job);

/// The command lines of single boards.
struct BoardLines
{
    std::vector<CommandLine> boards;
    QString error; ///< why they must not run; empty if they may
};

/// One command line for each job, see forBoard(). An error, if a file would be written twice, whatever the
/// case of its name.
BoardLines boardLines(CommandLine const & commandLine);

/// Makes the folders of the files that a board's command line names.
void makeFolders(CommandLine const & board);

} // namespace Workbench
