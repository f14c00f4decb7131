#pragma once

#include "../uiapi/ViewRecords.h"
#include "UIAPICommonExport.h"

namespace KVCAM::UIAPI::Ext {

/// Shows the library's own fixed texts in a language from now on: installs the built-in catalogue on the
/// application for LANGUAGE_CHINESE (Simplified), removes it for any other language, which leaves English.
/// Widgets are told through QEvent::LanguageChange; texts that are already shown stay. Independent of
/// setCurrentLanguageMode(), which only stores the mode. False without a QCoreApplication. GUI thread only.
/// \since 0.1
UIAPICOMMON_EXPORT bool installTranslation(LANGUAGE_MODE language);

} // namespace KVCAM::UIAPI::Ext
