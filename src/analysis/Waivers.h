#pragma once

#include "../support/Result.h"
#include "ReportRecords.h"
#include "UIAPICommonExport.h"

#include <QByteArray>
#include <QString>

#include <vector>

/// Additions to the fixed interface. They are opt-in and change none of its results.
namespace KVCAM::UIAPI::Ext {

/// Reads waivers from JSON: {"format": "report-waivers", "version": 1, "waivers": [{"id", "reason", "author",
/// "date", "expires"}]}, where "expires" may be missing. A waiver without a readable id, a reason, an author
/// or a date is refused; so is an unknown member, since a misspelt "expires" would waive for good. `out` is
/// replaced, or left unchanged by a failure, whose reason is translated and gives the line. Nothing is
/// logged.
/// \since 0.2
[[nodiscard]] UIAPICOMMON_EXPORT Result parseWaivers(QByteArray const & bytes, std::vector<Waiver> & out);

/// parseWaivers() of a regular file of at most 64 MiB.
/// \since 0.2
[[nodiscard]] UIAPICOMMON_EXPORT Result readWaivers(QString const & path, std::vector<Waiver> & out);

/// The waivers as JSON, one on each line, so that version control shows what was added.
/// \since 0.2
[[nodiscard]] UIAPICOMMON_EXPORT QByteArray waiversText(std::vector<Waiver> const & waivers);

/// Writes waiversText() to a file. A waiver that parseWaivers() would refuse fails with its reason. An old
/// file is replaced as a whole or left unchanged. The reason of a failure is translated. Nothing is logged.
/// \since 0.2
[[nodiscard]] UIAPICOMMON_EXPORT Result writeWaivers(std::vector<Waiver> const & waivers,
                                                     QString const & path);

} // namespace KVCAM::UIAPI::Ext
