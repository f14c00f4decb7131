#include "analysis/HtmlReportCells.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace KVCAM::UIAPI::Ext::Html {
namespace {

QByteArray waiverCells(Page const & page, ReportEntry const & entry)
{
    std::vector<Waiver> const & waivers = page.report.waivers();
    Waiver const waiver = *entry.waiver < waivers.size() ? waivers[*entry.waiver] : Waiver();
    QByteArray const expires =
        waiver.expires.empty()
            ? QByteArray()
            : "<br/><small>" +
                  page.text(QT_TRANSLATE_NOOP("HtmlReport", "until %1"), {isolated(waiver.expires)}) +
                  "</small>";
    return "<td class=\"t\"><bdi>" + escaped(QString::fromStdString(waiver.reason), longestSentence) +
           "</bdi></td><td class=\"t\">" + isolated(waiver.author) + "</td><td class=\"k\">" +
           isolated(waiver.date) + expires + "</td>";
}

// Waivers that accept nothing: somebody has to look at them.
QByteArray idleWaivers(Page const & page)
{
    QByteArray rows;
    std::size_t count = 0;
    for (Waiver const & waiver : page.report.waivers()) {
        if (waiver.state == WaiverState::Used || ++count > mostNotes) {
            continue;
        }
        bool const isExpired = waiver.state == WaiverState::Expired;
        rows += "<tr><td class=\"k\">" +
                (isExpired ? page.text(QT_TRANSLATE_NOOP("HtmlReport", "expired"))
                           : page.text(QT_TRANSLATE_NOOP("HtmlReport", "matches no violation"))) +
                "</td><td class=\"t\"><code>" + escaped(QString::fromStdString(waiver.id), longestSentence) +
                "</code></td><td class=\"t\"><bdi>" +
                escaped(QString::fromStdString(waiver.reason), longestSentence) +
                "</bdi></td><td class=\"t\">" + isolated(waiver.author) + "</td><td class=\"k\">" +
                isolated(waiver.date) + "</td><td class=\"k\">" + isolated(waiver.expires) + "</td></tr>\n";
    }
    if (count == 0) {
        return {};
    }
    Texts const & text = page.text;
    return "<h3>" + text(QT_TRANSLATE_NOOP("HtmlReport", "Waivers that accept nothing")) + "</h3>\n" +
           tableStart(head(text(QT_TRANSLATE_NOOP("HtmlReport", "Why")), 't') +
                      head(text(QT_TRANSLATE_NOOP("HtmlReport", "Id")), 't') +
                      head(text(QT_TRANSLATE_NOOP("HtmlReport", "Reason")), 't') +
                      head(text(QT_TRANSLATE_NOOP("HtmlReport", "Accepted by")), 't') +
                      head(text(QT_TRANSLATE_NOOP("HtmlReport", "On")), 't') +
                      head(text(QT_TRANSLATE_NOOP("HtmlReport", "Until")), 't')) +
           rows + tableEnd() +
           (count > mostNotes ? "<p class=\"dim\">" +
                                    text(QT_TRANSLATE_NOOP("HtmlReport", "Not listed: %1."),
                                         {countText(count - mostNotes)}) +
                                    "</p>\n"
                              : QByteArray());
}

} // namespace

QByteArray waivedSection(Page const & page)
{
    Texts const & text = page.text;
    QByteArray rows;
    std::size_t listed = 0;
    std::size_t all = 0;
    for (CheckListing const & check : page.listing.checks) {
        all += check.waived;
        for (std::size_t const i : check.accepted) {
            if (++listed > page.options.listedInAll) {
                continue;
            }
            ReportEntry const & entry = check.category->entries[i];
            rows += rowStart(entry.severity) + "><td class=\"t\">" + text.checkName(check.category->name) +
                    "</td>" + measurementCells(page, *check.category, entry) + waiverCells(page, entry) +
                    "</tr>\n";
        }
    }
    QByteArray const idle = idleWaivers(page);
    if (rows.isEmpty() && idle.isEmpty()) {
        return {};
    }
    QByteArray out = "<h2 id=\"waived\">" + text(QT_TRANSLATE_NOOP("HtmlReport", "Waived")) + "</h2>\n";
    if (!rows.isEmpty()) {
        out +=
            "<p>" +
            text(QT_TRANSLATE_NOOP(
                "HtmlReport", "These violations have been accepted. They are in none of the other counts.")) +
            "</p>\n" +
            tableStart(head(text(QT_TRANSLATE_NOOP("HtmlReport", "Check")), 't') + measurementHeads(text) +
                       head(text(QT_TRANSLATE_NOOP("HtmlReport", "Reason")), 't') +
                       head(text(QT_TRANSLATE_NOOP("HtmlReport", "Accepted by")), 't') +
                       head(text(QT_TRANSLATE_NOOP("HtmlReport", "On")), 't')) +
            rows + tableEnd() + leftOutNote(page, all - std::min(listed, page.options.listedInAll));
    }
    return out + idle;
}

} // namespace KVCAM::UIAPI::Ext::Html
