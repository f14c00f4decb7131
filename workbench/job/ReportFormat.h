#pragma once

#include <UIAPICommon.h>

#include <QString>

#include <optional>

namespace Workbench {

/// The format of a report by the ending of its file's name in whatever case: ".json", ".csv", ".xml" (JUnit).
std::optional<KVCAM::UIAPI::Ext::ReportFormat> reportFormat(QString const & path);

/// The endings, for a help text.
QString reportEndings();

} // namespace Workbench
