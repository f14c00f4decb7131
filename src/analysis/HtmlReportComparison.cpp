#include "analysis/HtmlReportCells.h"
#include "analysis/ReportComparison.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace KVCAM::UIAPI::Ext::Html {
namespace {

// What a reader asks for first comes first; unchanged violations are counted only.
constexpr std::array shownChanges = {Change::New, Change::Worse, Change::Better, Change::Fixed,
                                     Change::NotChecked};

QByteArray changeText(Texts const & text, Change change)
{
    switch (change) {
    case Change::New:
        return text(QT_TRANSLATE_NOOP("HtmlReport", "New"));
    case Change::Fixed:
        return text(QT_TRANSLATE_NOOP("HtmlReport", "Fixed"));
    case Change::Better:
        return text(QT_TRANSLATE_NOOP("HtmlReport", "Better"));
    case Change::Worse:
        return text(QT_TRANSLATE_NOOP("HtmlReport", "Worse"));
    case Change::NotChecked:
        return text(QT_TRANSLATE_NOOP("HtmlReport", "Not checked any more"));
    case Change::Unchanged:
        break;
    }
    return text(QT_TRANSLATE_NOOP("HtmlReport", "Unchanged"));
}

std::optional<KVCAM::API::point> middle(std::vector<KVCAM::API::point> const & places)
{
    if (places.empty()) {
        return std::nullopt;
    }
    KVCAM::API::point const & a = places.front();
    KVCAM::API::point const & b = places.back();
    return KVCAM::API::point{a.x + (b.x - a.x) / 2, a.y + (b.y - a.y) / 2};
}

QByteArray changeRow(Texts const & text, ReportChange const & change)
{
    bool const isGone = change.change == Change::Fixed || change.change == Change::NotChecked;
    bool const isNew = change.change == Change::New;
    auto const sign = [&](bool isThere, Severity severity) {
        return QByteArray("<td class=\"k ") + (isThere ? letterOf(severity) : '-') + "\">" +
               (isThere ? text.sign(severity) : QByteArray("–")) + "</td>";
    };
    return rowStart(isGone ? change.severityBefore : change.severityAfter) + "><td class=\"t\">" +
           text.checkName(change.name) + "</td>" + sign(!isNew, change.severityBefore) +
           lengthCells(text, change.before) + sign(!isGone, change.severityAfter) +
           lengthCells(text, change.after) + "<td class=\"t\">" + isolated(change.layer) +
           "</td><td class=\"k\">" + placeCell(text, middle(change.places)) + "</td><td class=\"t\">" +
           netsCell(change.nets) + "</td><td class=\"id\">" + idCell(text, change.id) + "</td></tr>\n";
}

QByteArray changeHeads(Texts const & text)
{
    return head(text(QT_TRANSLATE_NOOP("HtmlReport", "Check")), 't') +
           head(text(QT_TRANSLATE_NOOP("HtmlReport", "Was")), 0) +
           lengthHeads(text, text(QT_TRANSLATE_NOOP("HtmlReport", "Was"))) +
           head(text(QT_TRANSLATE_NOOP("HtmlReport", "Is")), 0) +
           lengthHeads(text, text(QT_TRANSLATE_NOOP("HtmlReport", "Is"))) +
           head(text(QT_TRANSLATE_NOOP("HtmlReport", "Layer")), 't') +
           head(text(QT_TRANSLATE_NOOP("HtmlReport", "Place")), 'n') +
           head(text(QT_TRANSLATE_NOOP("HtmlReport", "Nets")), 't') +
           head(text(QT_TRANSLATE_NOOP("HtmlReport", "Id")), 0, "id");
}

// Those that are waived are counted apart and not listed: the section of waivers has them.
QByteArray changeTable(Page const & page, Change wanted, std::size_t most)
{
    QByteArray rows;
    std::size_t count = 0;
    for (std::size_t const severity : {3U, 2U, 1U, 0U}) { // the worst ones, if not all are listed
        for (ReportChange const & change : page.options.comparison->changes) {
            Severity const worst = std::max(change.severityBefore, change.severityAfter);
            if (change.change == wanted && !change.waived && static_cast<std::size_t>(worst) == severity &&
                ++count <= most) {
                rows += changeRow(page.text, change);
            }
        }
    }
    if (count == 0) {
        return {};
    }
    return "<h3>" + changeText(page.text, wanted) + " (" + countText(count) + ")</h3>\n" +
           tableStart(changeHeads(page.text)) + rows + tableEnd() +
           (count > most ? "<p class=\"dim\">" +
                               page.text(QT_TRANSLATE_NOOP("HtmlReport", "Not listed: %1."),
                                         {countText(count - most)}) +
                               "</p>\n"
                         : QByteArray());
}

QByteArray countsTable(Texts const & text, ReportComparison const & comparison)
{
    QByteArray rows;
    for (int row = 0; row < changeCount; ++row) {
        auto const index = static_cast<std::size_t>(row);
        rows += "<tr><th scope=\"row\">" + changeText(text, static_cast<Change>(row)) +
                "</th><td class=\"n\">" + countText(comparison.counts[index]) + "</td><td class=\"n\">" +
                countText(comparison.waived[index]) + "</td></tr>\n";
    }
    return tableStart("<td></td>" + head(text(QT_TRANSLATE_NOOP("HtmlReport", "Violations")), 0, "n") +
                      head(text(QT_TRANSLATE_NOOP("HtmlReport", "Waived")), 0, "n")) +
           rows + tableEnd();
}

} // namespace

QByteArray comparisonSection(Page const & page)
{
    if (page.options.comparison == nullptr) {
        return {};
    }
    Texts const & text = page.text;
    ReportComparison const & comparison = *page.options.comparison;
    QByteArray out =
        "<h2 id=\"changes\">" + text(QT_TRANSLATE_NOOP("HtmlReport", "Changes")) + "</h2>\n<p>" +
        text(QT_TRANSLATE_NOOP("HtmlReport", "Compared with the report of %1, step %2, dated %3."),
             {isolated(comparison.before.job), isolated(comparison.before.step),
              comparison.before.date.empty() ? QByteArray("–") : isolated(comparison.before.date)}) +
        "</p>\n";
    for (std::string const & level : comparison.levels) {
        out += "<p>" + text(QT_TRANSLATE_NOOP("HtmlReport", "The levels of %1 differ."), {isolated(level)}) +
               "</p>\n";
    }
    out += countsTable(text, comparison);
    for (Change const change : shownChanges) {
        out += changeTable(page, change, page.options.listedPerCheck);
    }
    return out;
}

} // namespace KVCAM::UIAPI::Ext::Html
