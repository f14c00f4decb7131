#pragma once

#include <UIAPICommon.h>

#include <QString>

#include <optional>

namespace Workbench {

/// The format of a report by the ending of its file's name, ".json", ".csv" or ".html" in whatever case.
std::optional<KVCAM::UIAPI::Ext::ReportFormat> reportFormat(QString const & path);

} // namespace Workbench
