#pragma once

// Host links: the link to the EDA tool, and commands to plug-in modules.
//
//   edaLink()              the link, for its signals
//   edaLinkState()         bound or why not, counts, the latest error
//   sendEdaDataChecked()   sendEdaData() with a result
//   setEdaLinkReceives()   leaves port 2333 to other processes
//
// ConnectEDA has the signals: datagramReceived() for each datagram, then jsonReceived() or invalidReceived().
// The three functions call UIAPICommonPara's methods of the same names, and so create it.
// UIAPICommonPara::addPluginRoute() and removePluginRoute() are the additions to setPluginCmd().

#include "../links/ConnectEDA.h"
#include "UIAPICommonExport.h"

#include <QJsonObject>

namespace KVCAM::UIAPI::Ext {

/// The process's link, to connect to its signals; do not delete it. Null if there is none.
/// \since 0.1
UIAPICOMMON_EXPORT ConnectEDA * edaLink();
/// Status of the link. The only place that shows that another process owns port 2333.
[[nodiscard]] UIAPICOMMON_EXPORT EdaLinkState edaLinkState();
/// sendEdaData() with a result.
[[nodiscard]] UIAPICOMMON_EXPORT EdaSendResult sendEdaDataChecked(QJsonObject const & data);

} // namespace KVCAM::UIAPI::Ext
