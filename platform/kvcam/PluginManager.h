#pragma once

#include <kvcam/Export.h>

#include <QString>

/// A command for one of the host's plug-in modules.
struct PluginMetaData
{
    QString module;  ///< the module it is meant for
    int command = 0; ///< what it shall do
    QString key;     ///< with what; its meaning is the module's
};

/// The host's plug-in manager: one object for the process, owned by the host.
class KVCAM_API_EXPORT QTpluginsManger4CAM
{
public:
    /// The one object.
    static QTpluginsManger4CAM * instance();
    /// Hands a command to its module; `data` stays the caller's.
    void recMegToPlugin(void * data, PluginMetaData meta);
};
