#pragma once

#include "../support/Result.h"
#include "../units/Length.h"
#include "AnalysisReport.h"
#include "Grade.h"
#include "ReportRecords.h"
#include "UIAPICommonExport.h"
#include "ViolationId.h"

#include <QByteArray>
#include <QString>

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

/// Additions to the fixed interface. They are opt-in and change none of its results.
namespace KVCAM::UIAPI::Ext {

/// What became of a violation between two reports. A violation is a measurement with a severity: green,
/// yellow or red by the levels of its own report.
enum class Change : int
{
    New,       ///< only in the later report
    Fixed,     ///< only in the earlier report
    Better,    ///< a lower severity or, at the same one, a value farther from the bad side
    Worse,     ///< a higher severity or, at the same one, a value nearer to the bad side
    Unchanged, ///< the same severity and value
    NotChecked ///< only in the earlier report, and the later one did not run that check there
};
/// Number of changes.
inline constexpr int changeCount = 6;

/// By change: "new", "fixed" and so on, as comparisons are written.
inline constexpr std::array<char const *, changeCount> changeNames = {"new",   "fixed",     "better",
                                                                      "worse", "unchanged", "notChecked"};

/// The name of a change; that of Unchanged for an invalid number.
constexpr char const * changeName(Change change)
{
    auto const row = static_cast<std::size_t>(change);
    return changeNames[row < changeNames.size() ? row : static_cast<std::size_t>(Change::Unchanged)];
}

/// Number of violations by change; index with static_cast<std::size_t>(Change::New).
using ChangeCounts = std::array<std::size_t, changeCount>;

/// One violation of either report.
struct ReportChange
{
    Change change = Change::Unchanged; ///< what became of it
    std::string table;                 ///< as in ReportCategory
    int number = 0;                    ///< as in ReportCategory
    std::string name;                  ///< of the category
    std::string layer;                 ///< name, UTF-8
    std::string id; ///< see violationId(); in the later report, or in the earlier one if it is only there
    std::optional<Length> before;             ///< measured in the earlier report
    std::optional<Length> after;              ///< measured in the later report
    Severity severityBefore = Severity::None; ///< in the earlier report; None if it is not there
    Severity severityAfter = Severity::None;  ///< in the later report; None if it is not there
    std::vector<KVCAM::API::point> places;    ///< micrometres; of the same report as `id`
    EntryNets nets;                           ///< of the same report as `id`
    bool waived = false;                      ///< in the same report as `id`
};

/// A report that was compared.
struct ComparedReport
{
    std::string job;         ///< UTF-8
    std::string step;        ///< UTF-8
    std::string date;        ///< as in AnalysisReport::date()
    SeverityCounts counts{}; ///< as in AnalysisReport::counts()
    SeverityCounts waived{}; ///< as in AnalysisReport::waivedCounts()
};

/// The difference of two reports.
struct ReportComparison
{
    ComparedReport before;             ///< the earlier report
    ComparedReport after;              ///< the later report
    Length tolerance;                  ///< see compareReports()
    std::vector<std::string> levels;   ///< the categories, "table: name", whose levels differ
    ChangeCounts counts{};             ///< of `changes` without the waived ones
    ChangeCounts waived{};             ///< of the waived ones in `changes`
    std::vector<ReportChange> changes; ///< by category, layer, change and severity, the worst first

    /// Of one change, without the waived ones.
    [[nodiscard]] std::size_t count(Change change) const { return counts[static_cast<std::size_t>(change)]; }
};

/// Compares two reports, usually of two revisions of a board.
///
/// A violation is found again by its id, else as the nearest one within `tolerance` that is of the same
/// category and layer and between the same nets (isSameViolation()). Each is paired once; the result depends
/// neither on the order of the entries nor on the system. Each report grades by its own levels: with other
/// levels an unchanged measurement may be new, fixed, better or worse. Of two values the later report's
/// levels tell the worse.
///
/// What is only in the earlier report is fixed if the later one ran the check on that layer: it neither lists
/// the check, the layer or both among what was not checked nor lacks the category. (Drill checks have a
/// category only if they found something; they lack none.)
/// \since 0.2
[[nodiscard]] UIAPICOMMON_EXPORT ReportComparison compareReports(AnalysisReport const & before,
                                                                 AnalysisReport const & after,
                                                                 Length tolerance = sameViolationTolerance);

/// The comparison as JSON: "format" "report-comparison", "version" 1, then both reports, the tolerance, the
/// counts and all changes. Lengths are exact, in micrometres and in mil.
/// \since 0.2
[[nodiscard]] UIAPICOMMON_EXPORT QByteArray comparisonText(ReportComparison const & comparison);

/// Writes comparisonText() to a file. An old file is replaced as a whole or left unchanged. The reason of a
/// failure is translated. Nothing is logged.
/// \since 0.2
[[nodiscard]] UIAPICOMMON_EXPORT Result writeComparison(ReportComparison const & comparison,
                                                        QString const & path);

} // namespace KVCAM::UIAPI::Ext
