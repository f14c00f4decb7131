#pragma once

#include "UIAPICommonExport.h"

class QWidget;

/// \addtogroup fields
namespace KVCAM::UIAPI::Ext {

/// Gives every KVLengthEdit and KVLineEdit inside a form the same view, as their setView() does. For forms
/// from Qt Designer, whose fields are made without one: a view is a handle, which no form can hold. To be
/// called after setupUi(). A field whose `followView` is off gets the view too, and keeps its unit.
/// \since 0.2
UIAPICOMMON_EXPORT void setFormView(QWidget & form, void const * view);

} // namespace KVCAM::UIAPI::Ext
