#include "EngineState.h"

#include <kvcam/HostPaths.h>
#include <kvcam/PluginManager.h>

namespace Common {

std::string getPath()
{
    return {};
}

std::string getPath_config()
{
    return "config";
}

std::string getPath_rangesconfig()
{
    return "config/ranges";
}

} // namespace Common

QTpluginsManger4CAM * QTpluginsManger4CAM::instance()
{
    static QTpluginsManger4CAM manager;
    return &manager;
}

// The default host has no plug-in modules: it keeps the latest commands to be looked at.
void QTpluginsManger4CAM::recMegToPlugin(void * /*data*/, PluginMetaData meta)
{
    constexpr std::size_t kept = 100;
    auto & commands = KVCAM::Embedded::EngineState::get().pluginCommands;
    commands.push_back({meta.module.toStdString(), meta.command, meta.key.toStdString()});
    if (commands.size() > kept) {
        commands.pop_front();
    }
}
