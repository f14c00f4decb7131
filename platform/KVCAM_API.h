#pragma once

// Everything that the host provides: engine records and calls, path helpers, the plug-in manager. All of it
// is defined in the host's library, so that the engine can be replaced.

#include <kvcam/Database.h>
#include <kvcam/Engine.h>
#include <kvcam/Export.h>
#include <kvcam/HostPaths.h>
#include <kvcam/PluginManager.h>
#include <kvcam/Records.h>
