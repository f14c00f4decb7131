#include "uiapi/flat/PluginCommands.h"

#include "uiapi/flat/Forward.h"

namespace KVCAM::UIAPI {

void setPluginCmd(int command, std::string const & key, void * data)
{
    Flat::onCommonPara([&](auto & para) { para.setPluginCmd(command, key, data); });
}

} // namespace KVCAM::UIAPI
