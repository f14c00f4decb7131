#pragma once

#include "layers/JobStepTable.h"
#include "layers/ReferenceLayerInfo.h"

namespace KVCAM::UIAPI {

/// The reference layers of each step of each job. A key of the table is an owner; the records name what it
/// references. The same name may appear in both places. A name not in the table changes nothing. A step that
/// loses all its records stays, empty.
class ReferenceTable : public JobStepTable<ReferenceLayerInfo>
{
public:
    // Rename in the records, in every step of the owning job `job`. The keys do not change.

    void renameReferenceJob(std::string const & job, std::string const & oldJob, std::string const & newJob);
    void renameReferenceStep(std::string const & job, std::string const & refJob, std::string const & oldStep,
                             std::string const & newStep);
    void renameReferenceLayer(std::string const & job, std::string const & refJob,
                              std::string const & refStep, std::string const & oldLayer,
                              std::string const & newLayer);

    // Only records of the owning step.

    void deleteReferenceJob(std::string const & job, std::string const & step, std::string const & refJob);
    void deleteReferenceStep(std::string const & job, std::string const & step, std::string const & refJob,
                             std::string const & refStep);
    /// Removes the layer from the records, and records that lose their last layer.
    void deleteReferenceLayer(std::string const & job, std::string const & step, std::string const & refJob,
                              std::string const & refStep, std::string const & refLayer);

    // Keys. An entry renamed to an existing key replaces that entry.

    void renameCompareJob(std::string const & oldJob, std::string const & newJob);
    void renameCompareStep(std::string const & job, std::string const & oldStep, std::string const & newStep);
    void deleteCompareStep(std::string const & job, std::string const & step);
};

} // namespace KVCAM::UIAPI
