#pragma once

#include "analysis/UnifiedResultStore.h"

#include <string>

namespace KVCAM::UIAPI {

/// The summary of a board as one JSON document, an array of 49 objects of one key each.
std::string summaryText(std::string const & job, std::string const & step,
                        UnifiedResultStore const & results);

} // namespace KVCAM::UIAPI
