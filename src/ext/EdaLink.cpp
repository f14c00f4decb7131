#include "ext/EdaLink.h"

#include "uiapi/flat/Forward.h"

namespace KVCAM::UIAPI {

using Flat::onCommonPara;

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
    EdaSendResult result = EdaSendResult::SocketError; // if anything throws
    onCommonPara([&](auto & para) { result = para.sendEdaDataChecked(data); });
    return result;
}

} // namespace KVCAM::UIAPI
