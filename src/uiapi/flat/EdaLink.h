#pragma once

#include "UIAPICommonExport.h"

#include <QJsonObject>
#include <QString>

/// The link to an EDA tool on the same computer; ConnectEDA says how messages travel. Nothing is logged, and
/// without a link nothing happens.
namespace KVCAM::UIAPI {

/// The port that messages go to from now on; 22333 at start. Outside 1 to 65535 it is stored and nothing is
/// sent.
UIAPICOMMON_EXPORT void setEdaPort(int port);
/// Sends an object as one datagram of compact JSON to 127.0.0.1. Lost without a word when nobody listens or
/// it is too large.
UIAPICOMMON_EXPORT void sendEdaData(QJsonObject const & data);
/// The text of the datagram received last; empty when there was none. Not cleared by reading.
UIAPICOMMON_EXPORT QString getReceiveStr();

} // namespace KVCAM::UIAPI
