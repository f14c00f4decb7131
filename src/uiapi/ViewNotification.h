#pragma once

#include "uiapi/Notifier.h"

namespace KVCAM::UIAPI {

/// Tells the watches of the view, then the listeners of Ext::Notifier. They never change a result: anything
/// that a slot throws is caught and logged here.
void notifyOfView(void const * view, Ext::ViewAspects aspects);

} // namespace KVCAM::UIAPI
