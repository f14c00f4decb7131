#include "uiapi/flat/EdaLink.h"

#include "uiapi/flat/Forward.h"

namespace KVCAM::UIAPI {

using Flat::onCommonPara;

void setEdaPort(int port)
{
    onCommonPara([&](auto & para) { para.setEdaPort(port); });
}

void sendEdaData(QJsonObject const & data)
{
    onCommonPara([&](auto & para) { para.sendEdaData(data); });
}

QString getReceiveStr()
{
    return onCommonPara([](auto & para) { return para.getReceiveStr(); });
}

ConnectEDA * Ext::edaLink()
{
    return onCommonPara([](auto & para) { return para.edaLink(); });
}

Ext::EdaLinkState Ext::edaLinkState()
{
    return onCommonPara([](auto & para) { return para.edaLinkState(); });
}

Ext::EdaSendResult Ext::sendEdaDataChecked(QJsonObject const & data)
{
    EdaSendResult result = EdaSendResult::SocketError; // should anything be thrown
    onCommonPara([&](auto & para) { result = para.sendEdaDataChecked(data); });
    return result;
}

} // namespace KVCAM::UIAPI
