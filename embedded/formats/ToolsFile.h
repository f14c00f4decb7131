#pragma once

#include "EmbeddedRecords.h"

#include <QString>

#include <vector>

namespace KVCAM::Embedded {

/// Reads the tools of a drill or rout layer in file order, or throws JobError.
std::vector<Tool> readTools(QString const & path);

} // namespace KVCAM::Embedded
