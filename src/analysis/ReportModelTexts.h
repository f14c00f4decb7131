#pragma once

#include "analysis/Grade.h"

#include <optional>

namespace KVCAM::UIAPI::Ext {

/// The severity that a column of ReportModel counts; none for other columns.
std::optional<Severity> severityOfColumn(int column);

} // namespace KVCAM::UIAPI::Ext
