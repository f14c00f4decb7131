#pragma once

#include "job/Session.h"

namespace Workbench {

/// Reads the layers of an opened job, which is the slow part, behind a progress dialog. F1 or its button
/// stops it: what was not read then is read when it is shown, and its features are not counted. False when it
/// was stopped.
bool readLayers(Session & session);

} // namespace Workbench
