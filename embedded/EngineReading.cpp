#include "EmbeddedEngine.h"

#include "formats/JobError.h"
#include "formats/JobPaths.h"
#include "formats/StopFlag.h"
#include "state/EngineState.h"
#include "state/Job.h"
#include "state/StepFiles.h"

#include <exception>
#include <functional>
#include <utility>

namespace KVCAM::Embedded {

struct Reading::Task
{
    std::function<void(StopFlag)> read;       // in any thread, so it holds all that it needs
    std::function<void(EngineState &)> adopt; // takes what was read
    std::string job;                          // its name
    std::string toolsError;
    std::string error = "nothing was read"; // why there is nothing to adopt; empty if there is
};

namespace {

// The job for which something was read, not one of its name that was opened later.
Job & sameJob(EngineState & state, std::string const & name, long long number)
{
    Job & found = state.job(name);
    if (found.number() != number) {
        throw JobError(name + ": the job was opened anew while it was read");
    }
    return found;
}

struct LayerFiles
{
    FilesSource source;
    LayerContents contents;
};

struct NetsFiles
{
    FilesSource source;
    NetsContents contents;
};

} // namespace

// `begin` sets the functions of the task. What it throws is told when the task is adopted.
template <class Begin>
Reading Reading::begun(Begin begin)
{
    Reading reading;
    reading.m_task = std::make_shared<Task>();
    try {
        begin(*reading.m_task);
    } catch (std::exception const & error) {
        reading.m_task->error = error.what();
        reading.m_task->toolsError = error.what();
    }
    return reading;
}

// `open` makes the job.
template <class Open>
Reading Reading::opening(Open open)
{
    return begun([&open](Task & task) {
        auto const opened = std::make_shared<std::unique_ptr<Job>>();
        task.read = [opened, open = std::move(open)](StopFlag stop) { *opened = open(stop); };
        task.adopt = [opened, &task](EngineState & state) {
            task.job = (*opened)->name();
            state.take(std::move(*opened));
        };
    });
}

Reading Reading::ofJob(std::string const & path, std::string const & job)
{
    return opening([path, job, limits = jobLimits()](StopFlag stop) {
        return std::make_unique<Job>(path, job, limits, stop);
    });
}

Reading Reading::ofArchive(std::string const & path)
{
    return opening(
        [path, limits = jobLimits()](StopFlag stop) { return Job::fromArchive(path, limits, stop); });
}

Reading Reading::ofLayer(std::string const & job, std::string const & stepName, std::string const & layerName)
{
    return begun([&](Task & task) {
        Job & owner = EngineState::get().job(job);
        std::string const step = lowerCase(stepName);
        std::string const layer = lowerCase(layerName);
        auto const files = std::make_shared<LayerFiles>();
        files->source = owner.layerSource(step, layer);
        task.job = owner.name();
        bool const isKnown = owner.isRead(step, layer);
        task.read = [files, isKnown, &task](StopFlag stop) {
            files->source.budget.stop = stop;
            if (!isKnown) {
                files->contents = readLayer(files->source);
                files->source.budget = files->contents.after;
            }
            try {
                readTools(files->source);
            } catch (JobError const & error) {
                task.toolsError = error.what();
            }
        };
        task.adopt = [=, &task, number = owner.number()](EngineState & state) {
            Job & same = sameJob(state, task.job, number);
            task.toolsError = same.named(task.toolsError);
            if (isKnown) {
                same.graphics(step, layer);
            } else {
                same.adopt(step, layer, std::move(files->contents));
            }
        };
    });
}

Reading Reading::ofNets(std::string const & job, std::string const & stepName)
{
    return begun([&](Task & task) {
        Job & owner = EngineState::get().job(job);
        std::string const step = lowerCase(stepName);
        auto const files = std::make_shared<NetsFiles>();
        files->source = owner.netsSource(step);
        task.job = owner.name();
        task.read = [files, isKnown = owner.areNetsRead(step)](StopFlag stop) {
            files->source.budget.stop = stop;
            files->contents = isKnown ? NetsContents() : readNets(files->source);
        };
        task.adopt = [=, &task, number = owner.number()](EngineState & state) {
            sameJob(state, task.job, number).adopt(step, std::move(files->contents));
        };
    });
}

void Reading::run(std::atomic<bool> const & stop)
{
    if (!m_task->read) {
        return;
    }
    try {
        m_task->read(StopFlag(stop));
        m_task->error.clear();
    } catch (std::exception const & error) {
        m_task->error = error.what();
    }
}

bool Reading::adopt()
{
    return withLastError(false, [this](EngineState & state) {
        if (!m_task->error.empty()) {
            throw JobError(m_task->error);
        }
        m_task->error = "what was read has been adopted already";
        m_task->adopt(state);
        return true;
    });
}

std::string Reading::job() const
{
    return m_task->job;
}

std::string Reading::toolsError() const
{
    return m_task->toolsError;
}

} // namespace KVCAM::Embedded
