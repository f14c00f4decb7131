#include "uiapi/flat/Attributes.h"

#include "uiapi/flat/Forward.h"

namespace KVCAM::UIAPI {

void getTotalAttribute(std::map<std::string, std::tuple<int, int, std::vector<std::string>>> & out)
{
    Flat::onGlobalVar([&](UIAPIGlobalVar & global) { out = global.getTotalAttributes(); });
}

void getParentAttribute(std::vector<std::string> & out)
{
    Flat::onGlobalVar([&](UIAPIGlobalVar & global) { global.getParentAttribute(out); });
}

void getChildAttribute(std::string name, std::vector<std::string> & out)
{
    Flat::onCommonPara([&](UIAPICommonPara & para) { para.getChildAttribute(name, out); });
}

std::vector<std::string> getCamMateNodes()
{
    return Flat::onGlobalVar([](UIAPIGlobalVar & global) { return global.getCamMateNodes(); });
}

} // namespace KVCAM::UIAPI
