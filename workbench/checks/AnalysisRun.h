#pragma once

#include "checks/Freshness.h"
#include "job/Session.h"

#include <EmbeddedChecks.h>
#include <UIAPICommon.h>

#include <QJsonObject>
#include <QString>

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace Workbench {

/// The range tables, and the number of the track check, that the workbench itself uses.
inline constexpr char const * drillTable = "DrillRanges";
inline constexpr char const * signalTable = "SignalLayerRanges";
inline constexpr int linesNumber = 46;

/// What formats of reports take beside the report.
struct ReportChoices
{
    KVCAM::UIAPI::Ext::Severity failFrom =
        KVCAM::UIAPI::Ext::Severity::Red;                              ///< a case of JUnit fails from it on
    KVCAM::UIAPI::Ext::Unit firstUnit = KVCAM::UIAPI::Ext::Unit::Inch; ///< of each length in HTML
    QString dataFile; ///< name of the file that HTML gives for all measurements; may be empty
    KVCAM::UIAPI::Ext::AnalysisReport const * baseline = nullptr; ///< with which HTML compares
};

/// The engine's checks on a step of the session's job. The results are filed in the library's unified result,
/// and in a report graded by the library's levels. Levels are in mil.
class AnalysisRun
{
public:
    enum class Outcome
    {
        Done,
        Cancelled, ///< by the progress callback
        Failed     ///< see error()
    };

    /// The session outlives the run.
    explicit AnalysisRun(Session const & session);

    /// Checks a step and files the results. Unless done, the previous results stay.
    Outcome run(std::string const & step, KVCAM::Embedded::CheckProgress const & progress = {});
    /// Why the latest run failed, on one line; empty if it did not.
    QString const & error() const { return m_error; }

    /// Accepts violations, in the results that there are and in those of later runs.
    void setWaivers(std::vector<KVCAM::UIAPI::Ext::Waiver> waivers);
    /// Adds a waiver to a file, which is made if it is not there, and accepts what the file then holds.
    KVCAM::UIAPI::Ext::Result waive(KVCAM::UIAPI::Ext::Waiver const & waiver, QString const & path);

    bool hasResult() const { return m_hasResult; }
    /// How the results differ from what a new run would find.
    enum class State
    {
        Current,
        Changed, ///< the step has changed since
        TooShort ///< levels are beyond the spacings that were listed
    };
    State state() const;
    /// Looks whether the measured step has changed. Call it after each operation.
    void noteOperations();
    /// Valid until the next run; categories keep their place when levels change.
    KVCAM::UIAPI::Ext::AnalysisReport const & report() const { return m_report; }
    /// Of the copper layers, by row.
    KVCAM::UIAPI::Ext::TrackWidths trackWidths() const;

    /// Whether the library has levels for any of the measured categories.
    bool hasLevels() const;
    /// Sets a level ("RedLv", "YellowLv" or "GreenLv") in the library and regrades the table.
    void changeLevel(std::string const & table, std::string const & category, char const * level, double mil);
    /// Whether the table has changed levels that are not in its file.
    bool isUnsaved(std::string const & table) const;
    KVCAM::UIAPI::Ext::Result saveLevels(std::string const & table);

    /// Writes the library's summary of the board unchanged, whatever the state; the file is replaced as a
    /// whole.
    KVCAM::UIAPI::Ext::Result writeSummary(QString const & path) const;
    /// Writes the report in the format given by the file's name. If it is not current, it says so among what
    /// was not checked. HTML is in the language of the screen, and shows the copper layers and those that
    /// have violations.
    KVCAM::UIAPI::Ext::Result writeReport(QString const & path, ReportChoices const & choices = {}) const;

private:
    void file(std::string const & step, KVCAM::Embedded::CheckResults & results);
    void noteUnchecked(KVCAM::Embedded::NotChecked const & entry);
    void noteCategoriesWithoutCheck();
    void applyWaivers();
    void loadLevels(std::string const & table);
    KVCAM::UIAPI::Ext::Result writeHtml(KVCAM::UIAPI::Ext::AnalysisReport const & report,
                                        QString const & path, ReportChoices const & choices) const;

    using Records = std::vector<KVCAM::UIAPI::Analysis_Ranges_Record>;

    Session const & m_session;
    KVCAM::UIAPI::Ext::AnalysisReport m_report;
    std::vector<std::string> m_copper;      ///< by row
    std::map<std::string, Records> m_saved; ///< by table, as in its file
    std::vector<KVCAM::UIAPI::Ext::Waiver> m_waivers;
    QString m_error;
    Freshness m_freshness;
    double m_reach = 0; ///< mil; what was listed up to
    bool m_hasResult = false;
};

/// The facts of a run: counts by severity, track widths, number of unchecked items. Empty without a result.
QJsonObject toJson(AnalysisRun const & run);

} // namespace Workbench
