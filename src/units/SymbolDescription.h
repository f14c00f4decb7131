#pragma once

#include "UIAPICommonExport.h"

#include <QString>

namespace KVCAM::UIAPI::Ext {

/// A symbol in words, translated: "round, 10 mil (254 my)", "rectangle, width 10 mil (254 my), height 20 mil
/// (508 my), corners rounded by 5 mil (127 my)". `unit` says what the name's sizes are in, 0 mil, another
/// code micrometres; that unit comes first. Sizes have up to six decimals. A name that is no standard symbol,
/// or whose fields do not fit its family, is "user symbol" and the name; an empty name gives an empty text.
UIAPICOMMON_EXPORT QString describeSymbol(QString const & name, int unit);

} // namespace KVCAM::UIAPI::Ext
