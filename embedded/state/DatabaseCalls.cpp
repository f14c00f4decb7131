#include "formats/JobPaths.h"
#include "state/EngineState.h"

#include <kvcam/Database.h>

// With the flag off the twins do nothing. With it on, a row that cannot be written throws.
namespace KVCAM::DB {

using Embedded::EngineState;
using Embedded::lowerCase;

bool get_SaveFlag()
{
    return EngineState::get().database.isOpen();
}

void set_show_para_db_save(API::show_param const & value)
{
    EngineState & state = EngineState::get();
    if (state.database.isOpen()) {
        state.addRow([&](long long number) { state.database.addShowPara(number, value); });
    }
}

void set_selection_db_save(API::Selection const & value)
{
    EngineState & state = EngineState::get();
    if (state.database.isOpen()) {
        state.addRow([&](long long number) { state.database.addSelection(number, value); });
    }
}

void set_select_param_db_save(API::select_info value)
{
    EngineState & state = EngineState::get();
    if (state.database.isOpen()) {
        state.addRow([&](long long number) { state.database.addSelectParam(number, value); });
    }
}

namespace {

// Records a call of the undo family and performs it: both or neither.
template <class Work>
void undoCall(char const * call, std::string const & job, std::string const & step, Work work)
{
    EngineState & state = EngineState::get();
    if (!state.database.isOpen()) {
        return;
    }
    std::string const jobName = lowerCase(job);
    std::string const stepName = lowerCase(step);
    state.database.inTransaction([&] {
        state.addRow([&](long long number) {
            state.database.addUndoCall(number, call, jobName, stepName, state.operations(jobName, stepName));
        });
        work(state, jobName, stepName);
    });
}

} // namespace

void CorrectUndo_db_save(std::string const & job, std::string const & step)
{
    undoCall("CorrectUndo", job, step, [](EngineState & state, auto const & jobName, auto const & stepName) {
        state.mirrorHistory(jobName, stepName);
    });
}

void op_size_db_save(std::string const & job, std::string const & step)
{
    undoCall("op_size", job, step, [](EngineState &, auto const &, auto const &) {});
}

void Undo_db_save(std::string const & job, std::string const & step)
{
    undoCall("Undo", job, step, [](EngineState & state, auto const & jobName, auto const & stepName) {
        state.database.removeLatestOperation(jobName, stepName);
    });
}

} // namespace KVCAM::DB
