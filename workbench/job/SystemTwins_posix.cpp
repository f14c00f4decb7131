#include "job/SystemTwins.h"

void Workbench::useParentConsole() {} // inherited

void Workbench::findFontsOffscreen() {} // fontconfig does
