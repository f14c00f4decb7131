#pragma once

#include "UIAPICommonExport.h"
#include "links/ConnectEDA.h"

#include <QJsonObject>
#include <QString>

/// The link to an EDA tool on the same computer; see ConnectEDA for the transport. Nothing is logged, and
/// without a link nothing happens.
namespace KVCAM::UIAPI {

/// Sets the port that messages are sent to; initially 22333. A port outside 1 to 65535 is stored, but nothing
/// is sent.
UIAPICOMMON_EXPORT void setEdaPort(int port);
/// Sends an object as one datagram of compact JSON to 127.0.0.1. Silently lost if there is no listener or it
/// is too large.
UIAPICOMMON_EXPORT void sendEdaData(QJsonObject const & data);
/// The text of the last datagram received; empty if none. Not cleared by reading.
UIAPICOMMON_EXPORT QString getReceiveStr();

namespace Ext {

/// The process's link, to connect to its signals; not to be deleted. Null when there is none.
UIAPICOMMON_EXPORT ConnectEDA * edaLink();
/// How the link fares. The only place that tells of a port 2333 that another process has.
UIAPICOMMON_EXPORT EdaLinkState edaLinkState();
/// sendEdaData(), and says what became of it.
UIAPICOMMON_EXPORT EdaSendResult sendEdaDataChecked(QJsonObject const & data);

} // namespace Ext
} // namespace KVCAM::UIAPI
