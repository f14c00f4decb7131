// Plug-in modules are libraries. A command calls a function in one of them.

#include <kvcam/PluginManager.h>

#include <QByteArray>
#include <QLibrary>

#include <cstdio>

QTpluginsManger4CAM * QTpluginsManger4CAM::instance()
{
    static QTpluginsManger4CAM manager;
    return &manager;
}

void QTpluginsManger4CAM::recMegToPlugin(void * data, PluginMetaData meta)
{
    QLibrary library(meta.module); // stays loaded
    using Command = void (*)(void *, int, char const *);
    auto const command = reinterpret_cast<Command>(library.resolve("examplePluginCommand"));
    if (command == nullptr) {
        std::printf("host: %s\n", library.errorString().toUtf8().constData());
        return;
    }
    command(data, meta.command, meta.key.toUtf8().constData());
}
