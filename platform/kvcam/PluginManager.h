#pragma once

#include <kvcam/Export.h>

#include <QString>

/// \addtogroup plugin_manager

/// A command for one of the host's plug-in modules.
struct PluginMetaData
{
    QString module;  ///< the target module
    int command = 0; ///< what to do
    QString key;     ///< the argument; its meaning is up to the module
};

/// The host's plug-in manager: one object per process, owned by the host.
class KVCAM_API_EXPORT QTpluginsManger4CAM
{
public:
    /// The single object; null if the host has none.
    static QTpluginsManger4CAM * instance();
    /// Passes a command to its module; the caller keeps ownership of `data`. May throw.
    void recMegToPlugin(void * data, PluginMetaData meta);
};
