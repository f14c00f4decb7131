#pragma once

#include "layers/JobStepTable.h"
#include "layers/ReferenceLayerInfo.h"

namespace KVCAM::UIAPI {

/// The reference layers of each step of each job. A key of the table is an owner; the records name what is
/// referred to, and one name may stand in both places. A name that is not in the table changes nothing, and a
/// step whose records are all gone stays, empty.
class ReferenceTable : public JobStepTable<ReferenceLayerInfo>
{
public:
    // Names in the records, in every step of the owning job `job`. The keys stay as they are.

    void renameReferenceJob(std::string const & job, std::string const & oldJob, std::string const & newJob);
    void renameReferenceStep(std::string const & job, std::string const & refJob, std::string const & oldStep,
                             std::string const & newStep);
    void renameReferenceLayer(std::string const & job, std::string const & refJob,
                              std::string const & refStep, std::string const & oldLayer,
                              std::string const & newLayer);

    // Records of the owning step alone.

    void deleteReferenceJob(std::string const & job, std::string const & step, std::string const & refJob);
    void deleteReferenceStep(std::string const & job, std::string const & step, std::string const & refJob,
                             std::string const & refStep);
    /// Removes the layer from the records; one that is left without a layer by it goes too.
    void deleteReferenceLayer(std::string const & job, std::string const & step, std::string const & refJob,
                              std::string const & refStep, std::string const & refLayer);

    // Keys. What moves onto a key that is taken replaces what was there.

    void renameCompareJob(std::string const & oldJob, std::string const & newJob);
    void renameCompareStep(std::string const & job, std::string const & oldStep, std::string const & newStep);
    void deleteCompareStep(std::string const & job, std::string const & step);
};

} // namespace KVCAM::UIAPI
