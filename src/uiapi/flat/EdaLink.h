#pragma once

#include "UIAPICommonExport.h"

#include <QJsonObject>
#include <QString>

/// \addtogroup eda_link
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

} // namespace KVCAM::UIAPI
