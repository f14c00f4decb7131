#include "analysis/HtmlReportCells.h"
#include "analysis/ViolationId.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace KVCAM::UIAPI::Ext::Html {
namespace {

QByteArray levelsNote(Page const & page, ReportCategory const & category)
{
    if (!category.levels) {
        return "<p class=\"dim\">" +
               page.text(QT_TRANSLATE_NOOP("HtmlReport",
                                           "There are no levels for this check: nothing is graded.")) +
               "</p>\n";
    }
    Analysis_Ranges_Record const & levels = *category.levels;
    QByteArray out;
    for (auto const & [severity, level] : {std::pair(Severity::Red, levels.redLv),
                                           {Severity::Yellow, levels.yellowLv},
                                           {Severity::Green, levels.greenLv}}) {
        out += (out.isEmpty() ? "" : " · ") + QByteArray("<span class=\"k ") + letterOf(severity) + "\">" +
               page.text.sign(severity) + ": " + page.text.both(level, page.report.levelUnit()) + "</span>";
    }
    QByteArray const sense =
        senseOf(levels) == Sense::SmallerIsWorse
            ? page.text(QT_TRANSLATE_NOOP(
                  "HtmlReport", "A measurement has the severity of a level that it does not exceed."))
            : page.text(QT_TRANSLATE_NOOP("HtmlReport",
                                          "A measurement has the severity of a level that it reaches."));
    return "<p>" + page.text(QT_TRANSLATE_NOOP("HtmlReport", "Levels")) + ": " + out +
           ". <span class=\"dim\">" + sense + "</span></p>\n";
}

QByteArray checkTable(Page const & page, CheckListing const & check, std::size_t index)
{
    ReportCategory const & category = *check.category;
    std::vector<std::string> const ids = violationIds(category);
    QByteArray out = "<section id=\"c" + QByteArray::number(static_cast<qulonglong>(index)) + "\">\n<h3>" +
                     page.text.checkName(category.name) + "</h3>\n" + levelsNote(page, category) +
                     tableStart(head(page.text(QT_TRANSLATE_NOOP("HtmlReport", "No.")), 'n', "n") +
                                measurementHeads(page.text) +
                                head(page.text(QT_TRANSLATE_NOOP("HtmlReport", "Id")), 0, "id"));
    std::size_t number = check.firstNumber;
    for (std::size_t const i : check.listed) {
        ReportEntry const & entry = category.entries[i];
        QByteArray const name = QByteArray::number(static_cast<qulonglong>(number++));
        out += rowStart(entry.severity) + " id=\"v" + name + "\"><td class=\"n\">" + name + "</td>" +
               measurementCells(page, category, entry) + "<td class=\"id\">" + idCell(page.text, ids[i]) +
               "</td></tr>\n";
    }
    std::size_t const all = category.entries.size() - check.waived;
    return out + tableEnd() + leftOutNote(page, all - check.listed.size()) + "</section>\n";
}

} // namespace

QByteArray checksSection(Page const & page)
{
    QByteArray out;
    for (std::size_t i = 0; i < page.listing.checks.size(); ++i) {
        CheckListing const & check = page.listing.checks[i];
        if (!check.listed.empty()) {
            out += checkTable(page, check, i);
        }
    }
    return out.isEmpty() ? out
                         : "<h2 id=\"violations\">" +
                               page.text(QT_TRANSLATE_NOOP("HtmlReport", "Measurements, the worst first")) +
                               "</h2>\n<p class=\"hint dim\" hidden=\"hidden\">" +
                               page.text(QT_TRANSLATE_NOOP(
                                   "HtmlReport",
                                   "A click on the title of a column sorts the table; a click on a severity "
                                   "at the top of the page shows or hides its rows and marks.")) +
                               "</p>\n" + out;
}

} // namespace KVCAM::UIAPI::Ext::Html
