#pragma once

#include <cstdio>

/// What differs by system.
namespace Workbench {

/// Lets stdout and stderr reach the terminal that the program was started from. Windows gives a program with
/// windows none; streams that are redirected stay as they are. Call it before anything is printed.
void useParentConsole();

/// Lets Qt's offscreen platform find the system's fonts. Call it before the QApplication is made.
void findFontsOffscreen();

/// Whether somebody may be watching the stream.
bool isTerminal(std::FILE * stream);

} // namespace Workbench
