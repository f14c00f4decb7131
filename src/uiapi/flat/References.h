#pragma once

#include "../../layers/ReferenceLayerInfo.h"
#include "UIAPICommonExport.h"

#include <string>
#include <utility>
#include <vector>

/// \addtogroup references
/// The reference layers and the drawing layers of each step of each job, kept across dialogs and never
/// written to disk. The host reports its renames and deletions. Names are UTF-8 and compared byte for byte. A
/// name not in the table changes nothing, silently.
namespace KVCAM::UIAPI {

/// Replaces the reference layers of a step.
UIAPICOMMON_EXPORT void setReferenceLayerInfo(std::string const & job, std::string const & step,
                                              std::vector<ReferenceLayerInfo> const & layers);
/// A copy; empty if the job or step is not in the table.
UIAPICOMMON_EXPORT std::vector<ReferenceLayerInfo> getReferenceLayerInfo(std::string const & job,
                                                                         std::string const & step);
/// Removes a job and all its steps.
UIAPICOMMON_EXPORT void resetReferenceLayerInfo(std::string const & job);

// Rename in the records, in every step of the owning job `job`; the keys of the table do not change.

/// Renames the job in the records of oldJob.
UIAPICOMMON_EXPORT void renameReferenceJob(std::string const & job, std::string const & oldJob,
                                           std::string const & newJob);
/// Renames the step in the records of (refJob, oldStep).
UIAPICOMMON_EXPORT void renameReferenceStep(std::string const & job, std::string const & refJob,
                                            std::string const & oldStep, std::string const & newStep);
/// Renames a layer in the records of (refJob, refStep).
UIAPICOMMON_EXPORT void renameReferenceLayer(std::string const & job, std::string const & refJob,
                                             std::string const & refStep, std::string const & oldLayer,
                                             std::string const & newLayer);

// Records of the owning step (job, step).

/// Removes the records of refJob.
UIAPICOMMON_EXPORT void deleteReferenceJob(std::string const & job, std::string const & step,
                                           std::string const & refJob);
/// Removes the records of (refJob, refStep).
UIAPICOMMON_EXPORT void deleteReferenceStep(std::string const & job, std::string const & step,
                                            std::string const & refJob, std::string const & refStep);
/// Removes a layer from the records of (refJob, refStep), and a record that loses its last layer.
UIAPICOMMON_EXPORT void deleteReferenceLayer(std::string const & job, std::string const & step,
                                             std::string const & refJob, std::string const & refStep,
                                             std::string const & refLayer);

// Keys of the table: the compared jobs and steps own the references. An entry renamed to an existing key
// replaces that entry; renamed to its own key it stays.

/// Renames a job with all its steps; records that refer to it do not change.
UIAPICOMMON_EXPORT void renameCompareJob(std::string const & oldJob, std::string const & newJob);
/// Renames a step of its job; no effect if the job or step is not in the table.
UIAPICOMMON_EXPORT void renameCompareStep(std::string const & job, std::string const & oldStep,
                                          std::string const & newStep);
/// Removes a step of its job and keeps the job, even without steps.
UIAPICOMMON_EXPORT void deleteCompareStep(std::string const & job, std::string const & step);

/// The drawing layers of a step, names and numbers as set; empty if the job or step is not in the table.
UIAPICOMMON_EXPORT std::vector<std::pair<std::string, int>> getDrawingLayer(std::string const & job,
                                                                            std::string const & step);
/// Replaces them.
UIAPICOMMON_EXPORT void setDrawingLayer(std::string const & job, std::string const & step,
                                        std::vector<std::pair<std::string, int>> const & layers);
/// Removes a job and all its steps.
UIAPICOMMON_EXPORT void resetDrawingLayer(std::string const & job);

} // namespace KVCAM::UIAPI
