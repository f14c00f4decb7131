#pragma once

// Views: being told of a change instead of asking for the state.
//
//   Notifier::instance()      the one object of the process
//   Notifier::viewChanged()   its signal: which view, and whether unit, show parameters or selection
//
// insertStepConfig() and every setter that stores into a registered view emit it once the engine was told.
// Read the new state by the flat functions. KVLineEdit::setFollowView() listens to it.

#include "../uiapi/Notifier.h"
