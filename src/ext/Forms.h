#pragma once

// Forms: a field for lengths, and what a user has entered, saved and restored.
//
//   KVLengthEdit       a field that holds a Length: any unit, calculations, a range, a view that it follows
//   setFormView()      gives all fields of a form from Qt Designer their view
//   FormState          saves, restores and resets the fields of a form, and tells of changes
//   FormState::audit() lists the widgets that would be missed
//
// readListToJson() and writeJsonToList() go by a list of widgets and know five classes; a FormState finds the
// fields itself.

#include "../widgets/FormState.h"
#include "../widgets/FormView.h"
#include "../widgets/KVLengthEdit.h"
