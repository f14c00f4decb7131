#include "links/ConnectEDA.h"
#include "uiapi/UIAPICommonParaPrivate.h"

namespace KVCAM::UIAPI {

void UIAPICommonPara::setEdaPort(int port)
{
    guardedPara([&] {
        if (d->edaLink) {
            d->edaLink->setEdaPort(port);
        }
    });
}

void UIAPICommonPara::sendEdaData(QJsonObject const & data)
{
    guardedPara([&] {
        if (d->edaLink) {
            d->edaLink->sendData(data);
        }
    });
}

QString UIAPICommonPara::getReceiveStr() const
{
    return guardedPara([&] { return d->edaLink ? d->edaLink->getReceiveStr() : QString(); });
}

ConnectEDA * UIAPICommonPara::edaLink() const
{
    return guardedPara([&] { return d->edaLink.data(); });
}

Ext::EdaLinkState UIAPICommonPara::edaLinkState() const
{
    return guardedPara([&] { return d->edaLink ? d->edaLink->state() : Ext::EdaLinkState(); });
}

Ext::EdaSendResult UIAPICommonPara::sendEdaDataChecked(QJsonObject const & data)
{
    return d->edaLink ? d->edaLink->sendDataChecked(data) : Ext::EdaSendResult::NoLink;
}

void UIAPICommonPara::setPluginCmd(int command, std::string const & key, void * data) const
{
    guardedPara([&] { d->pluginCommands.setPluginCmd(command, key, data); });
}

bool UIAPICommonPara::addPluginRoute(int command, std::string const & key, std::string const & module)
{
    return guardedPara([&] { return d->pluginCommands.addRoute(command, key, module); });
}

bool UIAPICommonPara::removePluginRoute(int command, std::string const & key, std::string const & module)
{
    return guardedPara([&] { return d->pluginCommands.removeRoute(command, key, module); });
}

} // namespace KVCAM::UIAPI
