#pragma once

#include "job/CommandLine.h"

namespace Workbench {

class LogLines;

/// Runs each board of a command line without a window on the screen: the facts go to stdout as JSON, an array
/// for several boards, what went wrong to stderr. Returns the program's exit code.
int runHeadlessBoards(CommandLine const & commandLine, LogLines const & log);

/// Prepares the process for a board, or for a window: the configuration and the library's switches. Returns
/// what is wrong; empty on success.
QString prepare(CommandLine const & commandLine);

} // namespace Workbench
