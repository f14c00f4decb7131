#pragma once

// Forms: what a user has entered, saved and restored.
//
//   FormState          saves, restores and resets the fields of a form, and tells of changes
//   FormState::audit() lists the widgets that would be missed
//
// readListToJson() and writeJsonToList() go by a list of widgets and know five classes; a FormState finds the
// fields itself.

#include "../widgets/FormState.h"
