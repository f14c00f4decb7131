#include "links/PluginCommandRelay.h"

#include "support/Guard.h"
#include "support/Log.h"

#include <kvcam/PluginManager.h>

#include <algorithm>

namespace KVCAM::UIAPI {

bool PluginCommandRelay::addRoute(int command, std::string const & key, std::string const & module)
{
    std::vector<std::string> & modules = m_routes[{command, key}];
    if (std::find(modules.begin(), modules.end(), module) != modules.end()) {
        return false;
    }
    modules.push_back(module);
    return true;
}

bool PluginCommandRelay::removeRoute(int command, std::string const & key, std::string const & module)
{
    auto const route = m_routes.find({command, key});
    if (route == m_routes.end()) {
        return false;
    }
    std::vector<std::string> & modules = route->second;
    auto const found = std::find(modules.begin(), modules.end(), module);
    if (found == modules.end()) {
        return false;
    }
    modules.erase(found);
    if (modules.empty()) {
        m_routes.erase(route);
    }
    return true;
}

void PluginCommandRelay::setPluginCmd(int command, std::string const & key, void * data) const
{
    auto const route = m_routes.find({command, key});
    if (route == m_routes.end()) {
        Log::error(Log::commonPara, "Route map don't find " + std::to_string(command));
        return;
    }
    QTpluginsManger4CAM * const manager = QTpluginsManger4CAM::instance();
    if (manager == nullptr) {
        Log::operationError("setPluginCmd");
        return;
    }
    // A copy: a module may change the routes while it is called.
    std::vector<std::string> const modules = route->second;
    for (std::string const & module : modules) {
        guarded(Log::commonPara, [&] {
            manager->recMegToPlugin(data,
                                    {QString::fromStdString(module), command, QString::fromStdString(key)});
        });
    }
}

} // namespace KVCAM::UIAPI
