#include "uiapi/flat/PluginCommands.h"

#include "links/HostAddress.h"
#include "uiapi/flat/Forward.h"

namespace KVCAM::UIAPI {

void setPluginCmd(int command, std::string const & key, void * data)
{
    Flat::onCommonPara([&](auto & para) { para.setPluginCmd(command, key, data); });
}

std::string getHostIP()
{
    return guarded(Log::commonPara, [] { return HostAddress::getHostIP(); });
}

std::string getLocalInfo()
{
    return guarded(Log::commonPara, [] { return HostAddress::getLocalInfo(); });
}

} // namespace KVCAM::UIAPI
