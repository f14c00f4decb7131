#pragma once

#include "../support/Result.h"
#include "../units/Length.h"
#include "../units/Unit.h"
#include "AnalysisRecords.h"
#include "ReportRecords.h"
#include "UIAPICommonExport.h"
#include "ViolationId.h"

#include <QByteArray>
#include <QString>

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Additions to the fixed interface. They are opt-in and change none of its results.
namespace KVCAM::UIAPI::Ext {

/// The results of a run of the engine's checks, by the exact category of each measurement and graded by the
/// configured levels. It takes the raw replies, before they are filed in Unified_AnalysisResult, which groups
/// several categories under one item. A value type: copies are independent, nothing is shared.
/// \since 0.1
class AnalysisReport
{
public:
    /// Names for the head of the written report, UTF-8.
    UIAPICOMMON_EXPORT void setJobStep(std::string const & job, std::string const & step);
    /// When the report was made: a date or a moment as ISO 8601 writes it, "2026-11-22" or
    /// "2026-11-22T10:00:00Z"; empty until set, since the library asks no clock. Any other text is refused.
    UIAPICOMMON_EXPORT bool setDate(std::string const & date);
    /// Who tells the nets of the measurements that are added from now on; nobody until set.
    UIAPICOMMON_EXPORT void setNetLookup(NetLookup lookup);

    // Additions go to existing categories. An item that was run and found nothing gives a category without
    // entries.

    /// Adds the items of "DrillRanges". The engine's reply cannot be iterated: other items are not seen, and
    /// an item without an entry gives no category.
    UIAPICOMMON_EXPORT void
    addDrill(std::map<std::string, check_reply<drill_check_item, check_info>> const & replies);
    /// Adds the items of "SignalLayerRanges".
    UIAPICOMMON_EXPORT void addSignal(
        std::map<std::string, std::map<signal_layers_checks_items, signal_check_result>> const & replies);
    /// Adds unified items, under `unifiedTable`.
    UIAPICOMMON_EXPORT void
    addUnified(std::map<unified_check_items, std::map<std::string, unified_check_result>> const & results);
    /// Adds measurements as they are, those of a written report for example, and grades them by the levels.
    /// The table is one of the above; of any other nothing is added.
    UIAPICOMMON_EXPORT void addEntries(std::string const & table, int number,
                                       std::vector<ReportEntry> entries);
    /// Adds a check that was not run; an empty name is filled from the table.
    UIAPICOMMON_EXPORT void addNotChecked(NotChecked check);

    /// Accepts the violations that waivers name: an id stands for the violation that compareReports() would
    /// pair it with, so a marker may have moved by up to `tolerance`. Each waiver accepts one, whatever its
    /// value. Waived entries are counted apart. Replaces the waivers given before; `today` ("2026-11-22")
    /// tells which have expired. Call it once everything is added; grading again looks for the violations
    /// again.
    /// \since 0.2
    UIAPICOMMON_EXPORT void applyWaivers(std::vector<Waiver> waivers, std::string const & today,
                                         Length tolerance = sameViolationTolerance);
    /// Replaces the levels of a table and grades its entries again; what is added later is graded by them.
    /// Usually the records of getRanges(table, records). Of two records of one name the first counts. Levels
    /// are looked up by the category's name.
    UIAPICOMMON_EXPORT void setLevels(std::string const & table,
                                      std::vector<Analysis_Ranges_Record> const & records);
    /// The unit whose small one all levels have, Inch (mil) until set; grades everything again.
    UIAPICOMMON_EXPORT void setLevelUnit(Unit unit);
    /// The unit of all levels.
    Unit levelUnit() const { return m_unit; }

    /// As set by setJobStep().
    std::string const & job() const { return m_job; }
    /// As set by setJobStep().
    std::string const & step() const { return m_step; }
    /// As set by setDate().
    std::string const & date() const { return m_date; }
    /// In the order drill, signal, unified, within each by number. Valid until the report changes.
    std::vector<ReportCategory> const & categories() const { return m_categories; }
    /// The category, or null. Valid until the report changes.
    UIAPICOMMON_EXPORT ReportCategory const * find(std::string const & table, int number) const;
    /// Over all categories, without what is waived.
    UIAPICOMMON_EXPORT SeverityCounts counts() const;
    /// Over all categories, only what is waived.
    /// \since 0.2
    UIAPICOMMON_EXPORT SeverityCounts waivedCounts() const;
    /// As given, each with its state. Valid until the report changes.
    /// \since 0.2
    std::vector<Waiver> const & waivers() const { return m_waivers; }
    /// The day on which they were applied.
    /// \since 0.2
    std::string const & waiverDay() const { return m_today; }
    /// How far a marker might have moved.
    /// \since 0.2
    Length waiverTolerance() const { return m_waiverTolerance; }
    /// In the order in which they were added. Valid until the report changes.
    std::vector<NotChecked> const & notChecked() const { return m_notChecked; }

private:
    ReportCategory & category(std::string_view table, int number);
    template <class Lists>
    void appendAll(ReportCategory & category, std::string const & layer, Lists const & lists) const;
    void append(ReportCategory & category, std::string const & layer, int level,
                std::vector<check_info> const & list) const;
    std::optional<Analysis_Ranges_Record> levelsOf(ReportCategory const & category) const;
    void gradeEntry(ReportCategory & category, ReportEntry & entry) const;
    void grade(ReportCategory & category) const;
    void gradeAll();
    void matchWaivers();

    std::string m_job;
    std::string m_step;
    std::string m_date;
    NetLookup m_nets;
    Unit m_unit = Unit::Inch;
    std::vector<ReportCategory> m_categories;
    std::vector<NotChecked> m_notChecked;
    std::vector<Waiver> m_waivers;
    std::string m_today;
    Length m_waiverTolerance = sameViolationTolerance;
    std::map<std::string, std::map<std::string, Analysis_Ranges_Record>> m_levels; // by table and name
};

/// The names of the category dictionary's tables, usually also the names of range files, in the order of
/// registration; `unifiedTable` is not among them.
[[nodiscard]] UIAPICOMMON_EXPORT std::vector<std::string> categoryTables();

/// The level that gave an entry its severity, in the levels' unit; none for Severity::None.
[[nodiscard]] UIAPICOMMON_EXPORT std::optional<double> limitOf(ReportCategory const & category,
                                                               ReportEntry const & entry);

/// The format of a written report.
enum class ReportFormat : int
{
    Json, ///< one object: "format" "analysis-report", "version" 2, then job, step, date, counts, categories
          ///< with their entries, and what was not checked; analysis-report-2.schema.json describes it
    Csv,  ///< RFC 4180 with a head line; records "job", "step", "date", "count", "measurement", "not_checked"
    JUnit, ///< XML that build servers show: a suite for the board, a case for each check and layer
    Html   ///< a page for people, see htmlReport(); here with its defaults, without pictures
};

/// The report as UTF-8 text. Measured values are exact, in micrometres and in mil; where there is none JSON
/// has null and CSV an empty field. Numbers have the shortest form that reads back equal. The CSV starts with
/// a byte-order mark, since spreadsheets would otherwise read it in the system's code page. What a
/// spreadsheet would take for a formula is prefixed with "'". docs/Reports.md describes each field.
[[nodiscard]] UIAPICOMMON_EXPORT QByteArray reportText(AnalysisReport const & report, ReportFormat format);

/// The same, with the severity from which a case of JUnit fails; of None no case fails. Violations that are
/// waived fail none. The failure counts the violations and lists the worst; what was not checked is skipped
/// with its reason. Control characters, which XML cannot hold, are left out. The other formats are the same
/// for any severity; without one it is Red.
/// \since 0.2
[[nodiscard]] UIAPICOMMON_EXPORT QByteArray reportText(AnalysisReport const & report, ReportFormat format,
                                                       Severity failFrom);

/// Writes reportText() to a file. An old file is replaced as a whole or left unchanged, and the folder must
/// exist. The reason of a failure is translated. Nothing is
/// logged.
[[nodiscard]] UIAPICOMMON_EXPORT Result writeReport(AnalysisReport const & report, ReportFormat format,
                                                    QString const & path);
/// The same, with the severity from which a case of JUnit fails.
/// \since 0.2
[[nodiscard]] UIAPICOMMON_EXPORT Result writeReport(AnalysisReport const & report, ReportFormat format,
                                                    QString const & path, Severity failFrom);

} // namespace KVCAM::UIAPI::Ext
