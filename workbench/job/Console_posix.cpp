#include "job/Console.h"

void Workbench::useParentConsole() {} // inherited
