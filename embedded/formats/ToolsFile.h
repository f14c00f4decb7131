#pragma once

#include "EmbeddedRecords.h"
#include "formats/Budget.h"

#include <QString>

#include <vector>

namespace KVCAM::Embedded {

/// Reads the tools of a drill or rout layer in file order and adds to the budget, or throws JobError.
std::vector<Tool> readTools(QString const & path, Budget & budget);

} // namespace KVCAM::Embedded
