#pragma once

#include <kvcam/Records.h>

namespace KVCAM::UIAPI {

/// The only place where view state is sent to the engine. While the engine's save flag is on, the database
/// twin is called first. An engine exception is logged as "KVCAM UIAPI <method> error" followed directly by
/// the exception's text; the remaining calls are skipped and nothing is rethrown.
class EngineBridge
{
public:
    // By value: an engine that calls back may change the source record.
    static void sendShowParaToAPI(KVCAM::API::show_param value);
    static void sendSelectionToAPI(KVCAM::API::Selection value);
    static void sendSelectInfoToAPI(KVCAM::API::select_info value);
};

} // namespace KVCAM::UIAPI
