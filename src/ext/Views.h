#pragma once

// Views: which there are, registering one whose address was in use before, and being told of a change instead
// of asking for the state.
//
//   views()                   the handles of the registered views
//   isRegistered()            whether a handle is one of them
//   registerView()            registers a view, or replaces the whole record of a former view at its address
//   inputWidget()             getInputPtr(), null once the widget is destroyed
//   Notifier::instance()      the one object of the process
//   Notifier::viewChanged()   its signal: which view, and whether unit, show parameters or selection
//   ViewWatch                 the same of one view, at no cost to the others
//
// insertStepConfig(), registerView() and every setter that stores into a registered view notify once the
// engine was told. Read the new state by the flat functions. KVLineEdit::setFollowView() uses a ViewWatch.

#include "../uiapi/Notifier.h"
#include "../uiapi/RegisteredViews.h"
