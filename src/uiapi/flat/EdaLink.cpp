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

} // namespace KVCAM::UIAPI
