#pragma once

#include "EmbeddedRecords.h"

#include <cstddef>
#include <vector>

namespace KVCAM::Embedded {

struct Step;

/// Checks what the steps of a job repeat and sets the extent of those that repeat others. Throws JobError, at
/// the line of the repeat, for a step that does not exist, one that reaches itself and nesting deeper than 32
/// steps.
void checkPanels(std::vector<Step> & steps);

/// The steps that a step repeats and those that they repeat, each followed by its own; at most `limit`.
std::vector<StepPlacement> placements(std::vector<Step> const & steps, Step const & panel, std::size_t limit);

} // namespace KVCAM::Embedded
