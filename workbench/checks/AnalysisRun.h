#pragma once

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

/// The tables and the number that the workbench itself looks at.
inline constexpr char const * drillTable = "DrillRanges";
inline constexpr char const * signalTable = "SignalLayerRanges";
inline constexpr int linesNumber = 46;

/// The narrowest track of a copper layer.
struct LayerWidth
{
    std::string layer;
    std::optional<double> micrometres; ///< none for a layer without tracks
    KVCAM::UIAPI::Ext::Severity severity = KVCAM::UIAPI::Ext::Severity::None;
};

/// The engine's checks on a step of the session's job: run, filed in the library's unified result, and as a
/// report that is graded by the levels of the library. Levels are in mil.
class AnalysisRun
{
public:
    enum class Outcome
    {
        Done,
        Cancelled, ///< by the progress
        Failed     ///< error() says why
    };

    /// The session outlives the run.
    explicit AnalysisRun(Session const & session);

    /// Measures a step and files the replies. A run that was not done leaves the results of the one before.
    Outcome run(std::string const & step, KVCAM::Embedded::CheckProgress const & progress = {});
    /// Why the latest run failed, on one line; empty when it did not.
    QString const & error() const { return m_error; }

    bool hasResult() const { return m_hasResult; }
    /// Valid until the next run; the categories stay in place when levels change.
    KVCAM::UIAPI::Ext::AnalysisReport const & report() const { return m_report; }
    /// The copper layers that were measured, by their row.
    std::vector<LayerWidth> trackWidths() const;
    /// Where a layer stands in the matrix; behind all others for one that it does not have.
    int rowOf(std::string const & layer) const;

    /// Whether the library has levels for one of the measured categories.
    bool hasLevels() const;
    /// Sets a level ("RedLv", "YellowLv" or "GreenLv") in the library and grades the table again.
    void changeLevel(std::string const & table, std::string const & category, char const * level, double mil);
    /// Whether a level of the table was changed and is not in its file.
    bool isUnsaved(std::string const & table) const;
    KVCAM::UIAPI::Ext::Result saveLevels(std::string const & table);

    /// Writes the library's summary of the board as it is; the file is replaced whole.
    KVCAM::UIAPI::Ext::Result writeSummary(QString const & path) const;
    /// Writes the report in the format that the file's name asks for.
    KVCAM::UIAPI::Ext::Result writeReport(QString const & path) const;

private:
    void file(std::string const & step, KVCAM::Embedded::CheckResults & results);
    void noteUnchecked(KVCAM::Embedded::NotChecked const & entry);
    void loadLevels(std::string const & table);

    using Records = std::vector<KVCAM::UIAPI::Analysis_Ranges_Record>;

    Session const & m_session;
    KVCAM::UIAPI::Ext::AnalysisReport m_report;
    std::vector<std::string> m_copper;      ///< by row
    std::map<std::string, Records> m_saved; ///< the levels of each table as its file holds them
    QString m_error;
    bool m_hasResult = false;
};

/// The facts of a run: counts by severity, track widths, how much was not checked. Empty without a result.
QJsonObject toJson(AnalysisRun const & run);

} // namespace Workbench
