#include "layers/ReferenceTable.h"

#include <algorithm>

namespace KVCAM::UIAPI {
namespace {

using Records = ReferenceTable::Records;

bool refersTo(ReferenceLayerInfo const & record, std::string const & job, std::string const & step)
{
    return record.job == job && record.step == step;
}

template <class Change>
void forEachRecord(ReferenceTable::Steps * steps, Change const & change)
{
    if (steps == nullptr) {
        return;
    }
    for (auto & [step, records] : *steps) {
        for (ReferenceLayerInfo & record : records) {
            change(record);
        }
    }
}

template <class Condition>
void removeRecords(Records * records, Condition const & condition)
{
    if (records != nullptr) {
        records->erase(std::remove_if(records->begin(), records->end(), condition), records->end());
    }
}

template <class Map>
void renameKey(Map & map, std::string const & oldKey, std::string const & newKey)
{
    std::string key = newKey; // first: it may throw
    if (auto entry = map.extract(oldKey)) {
        entry.key() = std::move(key);
        map.erase(newKey);
        map.insert(std::move(entry));
    }
}

} // namespace

void ReferenceTable::renameReferenceJob(std::string const & job, std::string const & oldJob,
                                        std::string const & newJob)
{
    forEachRecord(findSteps(job), [&](ReferenceLayerInfo & record) {
        if (record.job == oldJob) {
            record.job = newJob;
        }
    });
}

void ReferenceTable::renameReferenceStep(std::string const & job, std::string const & refJob,
                                         std::string const & oldStep, std::string const & newStep)
{
    forEachRecord(findSteps(job), [&](ReferenceLayerInfo & record) {
        if (refersTo(record, refJob, oldStep)) {
            record.step = newStep;
        }
    });
}

void ReferenceTable::renameReferenceLayer(std::string const & job, std::string const & refJob,
                                          std::string const & refStep, std::string const & oldLayer,
                                          std::string const & newLayer)
{
    forEachRecord(findSteps(job), [&](ReferenceLayerInfo & record) {
        if (refersTo(record, refJob, refStep)) {
            std::replace(record.layers.begin(), record.layers.end(), oldLayer, newLayer);
        }
    });
}

void ReferenceTable::deleteReferenceJob(std::string const & job, std::string const & step,
                                        std::string const & refJob)
{
    removeRecords(findRecords(job, step),
                  [&](ReferenceLayerInfo const & record) { return record.job == refJob; });
}

void ReferenceTable::deleteReferenceStep(std::string const & job, std::string const & step,
                                         std::string const & refJob, std::string const & refStep)
{
    removeRecords(findRecords(job, step),
                  [&](ReferenceLayerInfo const & record) { return refersTo(record, refJob, refStep); });
}

void ReferenceTable::deleteReferenceLayer(std::string const & job, std::string const & step,
                                          std::string const & refJob, std::string const & refStep,
                                          std::string const & refLayer)
{
    removeRecords(findRecords(job, step), [&](ReferenceLayerInfo & record) {
        if (!refersTo(record, refJob, refStep)) {
            return false;
        }
        auto const kept = std::remove(record.layers.begin(), record.layers.end(), refLayer);
        bool const changes = kept != record.layers.end();
        record.layers.erase(kept, record.layers.end());
        return changes && record.layers.empty();
    });
}

void ReferenceTable::renameCompareJob(std::string const & oldJob, std::string const & newJob)
{
    renameKey(jobs(), oldJob, newJob);
}

void ReferenceTable::renameCompareStep(std::string const & job, std::string const & oldStep,
                                       std::string const & newStep)
{
    if (Steps * const steps = findSteps(job)) {
        renameKey(*steps, oldStep, newStep);
    }
}

void ReferenceTable::deleteCompareStep(std::string const & job, std::string const & step)
{
    if (Steps * const steps = findSteps(job)) {
        steps->erase(step);
    }
}

} // namespace KVCAM::UIAPI
