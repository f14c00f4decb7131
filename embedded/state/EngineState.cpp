#include "state/EngineState.h"

#include "formats/JobPaths.h"
#include "formats/LineReader.h"

#include <cstdlib>

namespace KVCAM::Embedded {

EngineState & EngineState::get()
{
    static auto * const state = new EngineState;
    return *state;
}

Job * EngineState::findJob(std::string const & name)
{
    std::string const wanted = lowerCase(name);
    auto const found = std::find_if(jobs.begin(), jobs.end(), [&wanted](std::unique_ptr<Job> const & job) {
        return lowerCase(job->name()) == wanted;
    });
    return found == jobs.end() ? nullptr : found->get();
}

Job & EngineState::job(std::string const & name)
{
    Job * const found = findJob(name);
    if (found == nullptr) {
        throw JobError(name + ": the job is not open");
    }
    return *found;
}

void EngineState::take(std::unique_ptr<Job> opened)
{
    std::string const name = lowerCase(opened->name());
    if (database.isOpen()) {
        database.removeOperations(name, {}); // a freshly read job has no history
    }
    if (opened->isFromArchive()) {
        // The state is never destroyed, but temporary folders have to go.
        static int const atExit = std::atexit([] {
            auto & open = EngineState::get().jobs;
            open.erase(std::remove_if(open.begin(), open.end(),
                                      [](auto const & job) { return job->isFromArchive(); }),
                       open.end());
        });
        static_cast<void>(atExit);
    }
    auto const earlier = std::find_if(jobs.begin(), jobs.end(),
                                      [&](auto const & open) { return lowerCase(open->name()) == name; });
    if (earlier != jobs.end()) {
        *earlier = std::move(opened);
    } else {
        jobs.push_back(std::move(opened));
    }
}

int EngineState::operations(std::string const & jobName, std::string const & step)
{
    Job * const found = findJob(jobName);
    Step const * const owner = found == nullptr ? nullptr : found->findStep(lowerCase(step));
    return owner == nullptr ? 0 : static_cast<int>(owner->history.size());
}

void EngineState::openDatabase()
{
    database.open(databaseFile);
    try {
        raiseSequence();
        database.inTransaction([this] {
            database.removeOperations({}, {}); // those of an earlier process can no longer be undone
            for (std::unique_ptr<Job> const & open : jobs) {
                for (Step const & step : open->steps()) {
                    addHistory(lowerCase(open->name()), step);
                }
            }
        });
    } catch (...) {
        database.close();
        throw;
    }
}

void EngineState::mirrorHistory(std::string const & jobName, std::string const & step)
{
    database.removeOperations(jobName, step);
    Job * const found = findJob(jobName);
    if (Step const * const owner = found == nullptr ? nullptr : found->findStep(step)) {
        addHistory(jobName, *owner);
    }
}

void EngineState::addHistory(std::string const & jobName, Step const & step)
{
    for (Operation const & operation : step.history) {
        addRow([&](long long number) { database.addOperation(number, jobName, step.name, operation); });
    }
}

} // namespace KVCAM::Embedded
