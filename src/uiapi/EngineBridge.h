#pragma once

#include <kvcam/Records.h>

namespace KVCAM::UIAPI {

/// The one place where view state reaches the engine. While the engine's save flag is on, the database twin
/// is called first. What the engine throws is logged as "KVCAM UIAPI <method> error" followed directly by the
/// exception's text, and calls not yet made are skipped; nothing is thrown on.
class EngineBridge
{
public:
    // By value: an engine that calls back may change the record these came from.
    static void sendShowParaToAPI(KVCAM::API::show_param value);
    static void sendSelectionToAPI(KVCAM::API::Selection value);
    static void sendSelectInfoToAPI(KVCAM::API::select_info value);
};

} // namespace KVCAM::UIAPI
