#pragma once

// Everything that the host provides: engine records and calls, path helpers, the plug-in manager. All of it
// is defined in the host's library, so that another engine can take its place.

#include <kvcam/Database.h>
#include <kvcam/Engine.h>
#include <kvcam/Export.h>
#include <kvcam/HostPaths.h>
#include <kvcam/PluginManager.h>
#include <kvcam/Records.h>
