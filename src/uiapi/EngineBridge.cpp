#include "uiapi/EngineBridge.h"

#include "support/Compiler.h"
#include "support/Guard.h"
#include "support/Log.h"

#include <kvcam/Database.h>
#include <kvcam/Engine.h>

#include <string>

namespace KVCAM::UIAPI {
namespace {

template <class Record, class Save, class Push>
void send(char const * operation, Record const & record, Save save, Push push, int line = UIAPI_CALLER_LINE)
{
    guard(
        [&] {
            if (KVCAM::DB::get_SaveFlag()) {
                save(record);
            }
            push(record);
        },
        [&](std::string const & what) { Log::operationError(operation, what, line); });
}

} // namespace

void EngineBridge::sendShowParaToAPI(KVCAM::API::show_param value)
{
    send("sendShowParaToAPI", value, KVCAM::DB::set_show_para_db_save, KVCAM::API::set_show_para);
}

void EngineBridge::sendSelectionToAPI(KVCAM::API::Selection value)
{
    send("sendSelectionToAPI", value, KVCAM::DB::set_selection_db_save, KVCAM::API::set_selection);
}

void EngineBridge::sendSelectInfoToAPI(KVCAM::API::select_info value)
{
    send("sendSelectInfoToAPI", value, KVCAM::DB::set_select_param_db_save, KVCAM::API::set_select_param);
}

} // namespace KVCAM::UIAPI
