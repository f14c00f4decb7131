#pragma once

namespace Workbench {

/// Lets stdout and stderr reach the terminal that the program was started from. Windows gives a program with
/// windows none; streams that are redirected stay as they are. Call it before anything is printed.
void useParentConsole();

} // namespace Workbench
