#pragma once

#include "job/CommandLine.h"
#include "job/Session.h"

#include <QJsonObject>

namespace Workbench {

class MainWindow;

/// Switches the unit of every view there and back, as a user would, and gives the facts of the job with what
/// the engine was told before and after; then writes the screenshots and lists them. What could not be read
/// or written stands in the array "errors".
QJsonObject runHeadless(MainWindow & window, Session const & session, CommandLine const & commandLine);

} // namespace Workbench
