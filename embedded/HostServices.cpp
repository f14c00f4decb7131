#include "state/EngineState.h"

#include <kvcam/HostPaths.h>
#include <kvcam/PluginManager.h>

#include <QDir>
#include <QFileInfo>

namespace Common {

std::string getPath()
{
    return KVCAM::Embedded::EngineState::get().configRoot;
}

std::string getPath_config()
{
    return KVCAM::Embedded::EngineState::get().configFolder;
}

std::string getPath_rangesconfig()
{
    return getPath_config() + "/ranges";
}

} // namespace Common

void KVCAM::Embedded::setConfigDirectory(std::string const & path)
{
    EngineState & state = EngineState::get();
    QFileInfo const folder(QDir::cleanPath(QString::fromStdString(path)));
    state.configRoot = path.empty() ? std::string() : folder.absolutePath().toStdString();
    state.configFolder = path.empty() ? "config" : folder.fileName().toStdString();
}

QTpluginsManger4CAM * QTpluginsManger4CAM::instance()
{
    static QTpluginsManger4CAM manager;
    return &manager;
}

// The default host has no plug-in modules. It keeps the latest commands for inspection.
void QTpluginsManger4CAM::recMegToPlugin(void * /*data*/, PluginMetaData meta)
{
    constexpr std::size_t kept = 100;
    auto & commands = KVCAM::Embedded::EngineState::get().pluginCommands;
    commands.push_back({meta.module.toStdString(), meta.command, meta.key.toStdString()});
    if (commands.size() > kept) {
        commands.pop_front();
    }
}
