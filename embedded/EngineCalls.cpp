#include "checks/CheckReply.h"
#include "formats/JobPaths.h"
#include "geometry/StandardSymbol.h"
#include "state/EngineState.h"

#include <kvcam/Engine.h>

#include "support/Narrowing.h"

#include <algorithm>
#include <utility>

namespace KVCAM::API {

using Embedded::EngineState;
using Embedded::Job;
using Embedded::lowerCase;
using Embedded::withLastError;

template class KVCAM_API_EXPORT check_reply<drill_check_item, check_info>;

namespace {

template <class Member, class Value>
void keep(Member Embedded::LiveState::*member, Value const & value)
{
    EngineState & state = EngineState::get();
    state.live.*member = value;
    state.live.sequence = state.nextSequence();
}

} // namespace

void set_show_para(show_param const & value)
{
    keep(&Embedded::LiveState::show, value);
}

void set_selection(Selection const & value)
{
    keep(&Embedded::LiveState::selection, value);
}

void set_select_param(select_info value)
{
    keep(&Embedded::LiveState::select, value);
}

void set_net_cal_thread(int count)
{
    keep(&Embedded::LiveState::threadCount, count);
}

void set_backup_layername_info(back_layer_name_info const & info)
{
    keep(&Embedded::LiveState::backup, info);
}

std::string get_matrix(std::string const & job, std::vector<std::string> & steps,
                       std::vector<layer_info> & layers)
{
    steps.clear();
    layers.clear();
    bool const known = withLastError(false, [&](EngineState & state) {
        Embedded::Matrix const & matrix = state.job(job).matrix();
        steps = matrix.steps;
        layers = matrix.layers;
        return true;
    });
    return known ? std::string() : EngineState::get().lastError;
}

bool open_job(std::string const & path, std::string const & job)
{
    return withLastError(false, [&](EngineState & state) {
        state.take(std::make_unique<Job>(path, job, state.limits));
        return true;
    });
}

bool is_job_opened(std::string job)
{
    return EngineState::get().findJob(job) != nullptr;
}

bool identify_symbol(std::string const & name, symboltype & type, int & first, int & second, bool /*flag*/)
{
    if (auto const symbol = Embedded::standardSymbol(name)) {
        type = Embedded::symbolType(symbol->family);
        first = UIAPI::saturatedInt(symbol->first);
        second = UIAPI::saturatedInt(symbol->second);
        return true;
    }
    auto const & jobs = EngineState::get().jobs;
    bool const own = std::any_of(jobs.begin(), jobs.end(), [wanted = lowerCase(name)](auto const & job) {
        return job->hasSymbol(wanted);
    });
    if (own) {
        type = Embedded::ownSymbol;
        first = 0;
        second = 0;
    }
    return own;
}

void get_special_symbol_names(std::string const & job, std::vector<std::string> & names)
{
    names.clear();
    if (Job const * const found = EngineState::get().findJob(job)) {
        names = found->symbols();
    }
}

// The history is always consistent, so nothing is left to correct. Returning false for a job that is not open
// would make the caller ask forever.
bool CorrectUndo(std::string const & /*job*/, std::string const & /*step*/)
{
    return true;
}

int op_size(std::string const & job, std::string const & step)
{
    return EngineState::get().operations(job, step);
}

bool Undo(std::string const & job, std::string const & step)
{
    return withLastError(false, [&](EngineState & state) { return state.job(job).undo(lowerCase(step)); });
}

} // namespace KVCAM::API
