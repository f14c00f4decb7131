#pragma once

#include "job/ReadingProgress.h"
#include "job/Session.h"

#include <QStringList>

namespace Workbench {

/// Reads the layers and nets of an open job, which is slow, with a progress dialog. F1 or its button stops
/// this: what is not read by then is read when it is shown, and the features are not counted. False when
/// stopped.
bool readLayers(Session & session);
/// The same within the progress of opening.
bool readLayers(Session & session, ReadingProgress & progress);

/// A line for each step that another one repeats, such as "Step panel repeats pcb 6 times".
QStringList repeatLines(Session const & session);
/// Logs at INFO what was opened.
void logOpened(Session const & session);

} // namespace Workbench
