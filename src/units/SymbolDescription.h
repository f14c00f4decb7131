#pragma once

#include "UIAPICommonExport.h"
#include "Unit.h"

#include <QString>

/// \addtogroup symbols
namespace KVCAM::UIAPI::Ext {

/// A symbol in words, translated: "round, 10 mil (254 my)", "rectangle, width 10 mil (254 my), height 20 mil
/// (508 my), corners rounded by 5 mil (127 my)". `unit` is that of the name's sizes, which are in its small
/// unit. That unit comes first. Sizes have up to six decimals. A name that is not a standard
/// symbol, or whose fields do not fit its family, gives "user symbol" and the name. An empty name gives an
/// empty text.
/// \since 0.1
[[nodiscard]] UIAPICOMMON_EXPORT QString describeSymbol(QString const & name, Unit unit);

} // namespace KVCAM::UIAPI::Ext
