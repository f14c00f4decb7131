#pragma once

#include "job/CommandLine.h"
#include "job/Session.h"

#include <UIAPICommonExt.h>

#include <QJsonObject>

namespace Workbench {

class MainWindow;

/// Switches the unit of every view and back, as a user would. Returns the facts of the job, including what
/// the engine was told before and after, then writes the screenshots and lists them. Anything that could not
/// be read or written is in the array "errors". HTML compares with the baseline, if there is one.
QJsonObject runHeadless(MainWindow & window, Session const & session, CommandLine const & commandLine,
                        KVCAM::UIAPI::Ext::AnalysisReport const * baseline);

} // namespace Workbench
