#pragma once

#include "job/Session.h"

namespace Workbench {

/// Reads the layers of an open job, which is slow, with a progress dialog. F1 or its button stops this:
/// layers not read by then are read when shown, and their features are not counted. False when stopped.
bool readLayers(Session & session);

} // namespace Workbench
