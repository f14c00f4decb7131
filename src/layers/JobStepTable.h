#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace KVCAM::UIAPI {

/// A sequence of records for each step of each job. Reading adds no key.
template <class Record>
class JobStepTable
{
public:
    using Records = std::vector<Record>;
    using Steps = std::map<std::string, Records>;

    /// Replaces the sequence of a step.
    void set(std::string const & job, std::string const & step, Records const & records)
    {
        m_jobs[job][step] = records;
    }

    /// Empty if the job or the step is not in the table.
    Records get(std::string const & job, std::string const & step) const
    {
        auto const steps = m_jobs.find(job);
        if (steps == m_jobs.end()) {
            return {};
        }
        auto const records = steps->second.find(step);
        return records == steps->second.end() ? Records() : records->second;
    }

    /// Removes a job with all its steps.
    void reset(std::string const & job) { m_jobs.erase(job); }

protected:
    /// Null if the job is not in the table.
    Steps * findSteps(std::string const & job)
    {
        auto const found = m_jobs.find(job);
        return found == m_jobs.end() ? nullptr : &found->second;
    }

    /// Null if the job or the step is not in the table.
    Records * findRecords(std::string const & job, std::string const & step)
    {
        Steps * const steps = findSteps(job);
        if (steps == nullptr) {
            return nullptr;
        }
        auto const found = steps->find(step);
        return found == steps->end() ? nullptr : &found->second;
    }

    std::map<std::string, Steps> & jobs() { return m_jobs; }

private:
    std::map<std::string, Steps> m_jobs;
};

} // namespace KVCAM::UIAPI
