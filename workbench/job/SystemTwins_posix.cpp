#include "job/SystemTwins.h"

#include <unistd.h>

void Workbench::useParentConsole() {} // inherited

void Workbench::findFontsOffscreen() {} // fontconfig does

bool Workbench::isTerminal(std::FILE * stream)
{
    return isatty(fileno(stream)) == 1;
}
