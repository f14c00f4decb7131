#pragma once

#include "../uiapi/ViewRecords.h"
#include "UIAPICommonExport.h"

/// \addtogroup boxes
namespace KVCAM::UIAPI::Ext {

/// Sets the language of the library's own fixed texts: installs the built-in catalogue on the application for
/// LANGUAGE_CHINESE (Simplified) and removes it for any other language, which leaves English. Widgets are
/// notified by QEvent::LanguageChange; texts already shown do not change. Independent of
/// setCurrentLanguageMode(), which only stores the mode. False without a QCoreApplication. GUI thread only.
/// \since 0.1
UIAPICOMMON_EXPORT bool installTranslation(LANGUAGE_MODE language);

} // namespace KVCAM::UIAPI::Ext
