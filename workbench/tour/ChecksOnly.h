#pragma once

#include "job/CommandLine.h"

namespace Workbench {

/// Runs the checks on the boards of a command line and writes what it asks for: a table of the boards to
/// stdout, what went wrong to stderr. Needs a QCoreApplication only: no window system, no font and no widget.
/// Returns the program's exit code.
int runChecksOnly(ParsedArguments const & parsed);

} // namespace Workbench
