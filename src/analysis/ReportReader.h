#pragma once

#include "../support/Result.h"
#include "AnalysisReport.h"
#include "UIAPICommonExport.h"

#include <QByteArray>
#include <QString>

/// Additions to the fixed interface. They are opt-in and change none of its results.
namespace KVCAM::UIAPI::Ext {

/// Reads a report that was written as JSON, version 2. The report is what was written: its measurements,
/// levels, waivers and what was not checked. Severities are graded again, and a file whose own differ is
/// refused. `out` is replaced, or left unchanged by a failure, whose reason is translated and gives the byte
/// and the member. Unknown members are passed over. Nothing is logged.
/// \since 0.2
[[nodiscard]] UIAPICOMMON_EXPORT Result parseReport(QByteArray const & bytes, AnalysisReport & out);

/// parseReport() of a regular file of at most 1 GiB, about three million measurements.
/// \since 0.2
[[nodiscard]] UIAPICOMMON_EXPORT Result readReport(QString const & path, AnalysisReport & out);

} // namespace KVCAM::UIAPI::Ext
