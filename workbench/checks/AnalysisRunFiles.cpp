#include "checks/AnalysisRun.h"
#include "checks/ReportPictures.h"
#include "job/ReportFormat.h"
#include "ui/CategoryNames.h"
#include "ui/EnglishTexts.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QSaveFile>

#include <numeric>
#include <optional>
#include <set>
#include <string>

namespace Workbench {

using namespace KVCAM::UIAPI;

Ext::Result AnalysisRun::writeSummary(QString const & path) const
{
    std::string text;
    Unified_AnalysisResult::instance()->jsonoutput(text);
    auto const size = static_cast<qint64>(text.size());
    QSaveFile file(path);
    file.setDirectWriteFallback(true); // for a directory without write access
    bool const isWritten = file.open(QIODevice::WriteOnly) && file.write(text.data(), size) == size &&
                           file.flush() && file.commit();
    if (!isWritten) {
        return {false,
                QCoreApplication::translate("Workbench", "The file \"%1\" cannot be written.").arg(path)};
    }
    return {true, {}};
}

Ext::Result AnalysisRun::writeReport(QString const & path, ReportChoices const & choices) const
{
    auto const format = reportFormat(path);
    if (!format) {
        return {false, QCoreApplication::translate(
                           "Workbench", "The name of a report must end in %1; that of \"%2\" does not.")
                           .arg(reportEndings(), path)};
    }
    auto const write = [&](Ext::AnalysisReport const & report) {
        return *format == Ext::ReportFormat::Html ? writeHtml(report, path, choices)
                                                  : Ext::writeReport(report, *format, path, choices.failFrom);
    };
    if (state() == State::Current) {
        return write(m_report);
    }
    Ext::AnalysisReport outdated = m_report;
    outdated.addNotChecked({signalTable, -1, "Out of date",
                            state() == State::Changed
                                ? "The step has been changed since it was measured."
                                : "Levels have been raised beyond the spacings that were listed."});
    return write(outdated);
}

Ext::Result AnalysisRun::writeHtml(Ext::AnalysisReport const & report, QString const & path,
                                   ReportChoices const & choices) const
{
    std::set<std::string> layers(m_copper.begin(), m_copper.end());
    for (Ext::ReportCategory const & category : report.categories()) {
        for (Ext::ReportEntry const & entry : category.entries) {
            if (entry.severity != Ext::Severity::None) {
                layers.insert(entry.layer);
            }
        }
    }
    std::optional<Ext::ReportComparison> comparison;
    if (choices.baseline != nullptr) {
        comparison = Ext::compareReports(*choices.baseline, report);
    }
    Ext::HtmlReportOptions options;
    options.language = getCurrentLanguageMode() == LANGUAGE_CHINESE ? Ext::ReportLanguage::SimplifiedChinese
                                                                    : Ext::ReportLanguage::English;
    options.firstUnit = choices.firstUnit;
    options.pictures = reportPictures(m_session, report.step(), layers);
    options.copperLayers = m_copper;
    options.dataFile = choices.dataFile;
    options.comparison = comparison ? &*comparison : nullptr;
    options.checkNames = shownName;
    options.sentences = [](std::string const & english) {
        return inScreenLanguage(QString::fromStdString(english));
    };
    return Ext::writeHtmlReport(report, options, path);
}

QJsonObject toJson(AnalysisRun const & run)
{
    if (!run.hasResult()) {
        return {};
    }
    QJsonObject counts;
    Ext::SeverityCounts const sums = run.report().counts();
    for (Ext::SeverityMark const & mark : Ext::severityPalette) {
        counts[QLatin1String(mark.name)] = static_cast<double>(sums[static_cast<std::size_t>(mark.severity)]);
    }
    QJsonArray widths;
    for (Ext::LayerWidth const & width : run.trackWidths().layers) {
        QJsonObject entry{{"layer", QString::fromStdString(width.layer)},
                          {"um", QJsonValue()},
                          {"mil", QJsonValue()},
                          {"severity", Ext::markOf(width.severity).name}};
        if (width.measured) {
            entry["um"] = width.measured->toMicrometres();
            entry["mil"] = width.measured->toMil();
        }
        widths.append(entry);
    }
    Ext::SeverityCounts const waived = run.report().waivedCounts();
    return {{"counts", counts},
            {"waived", static_cast<double>(std::accumulate(waived.begin(), waived.end(), std::size_t{0}))},
            {"track widths", widths},
            {"not checked", static_cast<int>(run.report().notChecked().size())}};
}

} // namespace Workbench
