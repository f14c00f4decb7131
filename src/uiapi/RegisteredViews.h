#pragma once

#include "../support/Result.h"
#include "UIAPICommonExport.h"
#include "ViewRecords.h"

#include <vector>

class QWidget;

/// \addtogroup view_access
namespace KVCAM::UIAPI::Ext {

/// The handles of the registered views in the order of registration. Read their records with getStepConfig().
/// GUI thread only, like all calls here.
/// \since 0.1
[[nodiscard]] UIAPICOMMON_EXPORT std::vector<void const *> views();

/// Whether a handle is registered. Logs nothing and creates none of the library's singletons.
/// \since 0.1
[[nodiscard]] UIAPICOMMON_EXPORT bool isRegistered(void const * view);

/// Registers a view as insertStepConfig() does. If the handle is registered already, every part of its record
/// is replaced: records are never removed, so a new view at the address of a former one would otherwise take
/// over its unit, its selection and its edit buffer. In both cases show parameters, selection and selected
/// parameter are then pushed to the engine, in this order, and Notifier reports all three aspects. Pointers
/// from getEditBuffer() and getCoordinate() stay valid.
///
/// Fails for a null handle, without a log line. An engine that throws is logged and does not make it fail:
/// the record holds the new values. \since 0.1
UIAPICOMMON_EXPORT Result registerView(Step_Config const & config);

/// getInputPtr() if the widget still exists, else null; getInputPtr() itself may point to a destroyed widget.
/// Also null if the pointer given to setInputPtr() was not a living widget's.
/// \since 0.1
[[nodiscard]] UIAPICOMMON_EXPORT QWidget * inputWidget();

} // namespace KVCAM::UIAPI::Ext
