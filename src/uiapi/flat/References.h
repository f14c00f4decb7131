#pragma once

#include "../../layers/ReferenceLayerInfo.h"
#include "UIAPICommonExport.h"

#include <string>
#include <utility>
#include <vector>

/// The reference layers and the drawing layers of each step of each job, kept across dialogs and never
/// written to disk. The host tells what it renames and deletes. Names are UTF-8 and compared byte for byte; a
/// name that is not in the table changes nothing, without a word.
namespace KVCAM::UIAPI {

/// Replaces the reference layers of a step.
UIAPICOMMON_EXPORT void setReferenceLayerInfo(std::string const & job, std::string const & step,
                                              std::vector<ReferenceLayerInfo> const & layers);
/// A copy; empty when the job or the step is not in the table.
UIAPICOMMON_EXPORT std::vector<ReferenceLayerInfo> getReferenceLayerInfo(std::string const & job,
                                                                         std::string const & step);
/// Removes a job and all its steps.
UIAPICOMMON_EXPORT void resetReferenceLayerInfo(std::string const & job);

// Names in the records, in every step of the owning job `job`; the keys of the table stay as they are.

/// The job of the records of oldJob.
UIAPICOMMON_EXPORT void renameReferenceJob(std::string const & job, std::string const & oldJob,
                                           std::string const & newJob);
/// The step of the records of (refJob, oldStep).
UIAPICOMMON_EXPORT void renameReferenceStep(std::string const & job, std::string const & refJob,
                                            std::string const & oldStep, std::string const & newStep);
/// The layer in the records of (refJob, refStep).
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
/// Removes a layer from the records of (refJob, refStep), and a record whose last layer goes.
UIAPICOMMON_EXPORT void deleteReferenceLayer(std::string const & job, std::string const & step,
                                             std::string const & refJob, std::string const & refStep,
                                             std::string const & refLayer);

// Keys of the table: the jobs and steps that are compared are the owners of references. An entry that moves
// onto a key that is taken replaces what was there; onto its own key it stays.

/// The job of all its steps; the records that refer to it stay as they are.
UIAPICOMMON_EXPORT void renameCompareJob(std::string const & oldJob, std::string const & newJob);
/// The step under its job; nothing where the job or the step is not in the table.
UIAPICOMMON_EXPORT void renameCompareStep(std::string const & job, std::string const & oldStep,
                                          std::string const & newStep);
/// Removes the step under its job and leaves the job, even without steps.
UIAPICOMMON_EXPORT void deleteCompareStep(std::string const & job, std::string const & step);

/// The drawing layers of a step, names and numbers as they were set; empty when the job or the step is not in
/// the table.
UIAPICOMMON_EXPORT std::vector<std::pair<std::string, int>> getDrawingLayer(std::string const & job,
                                                                            std::string const & step);
/// Replaces them.
UIAPICOMMON_EXPORT void setDrawingLayer(std::string const & job, std::string const & step,
                                        std::vector<std::pair<std::string, int>> const & layers);
/// Removes a job and all its steps.
UIAPICOMMON_EXPORT void resetDrawingLayer(std::string const & job);

} // namespace KVCAM::UIAPI
