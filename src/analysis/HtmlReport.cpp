#include "analysis/HtmlReport.h"

#include "analysis/HtmlReportCells.h"
#include "analysis/HtmlReportParts.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace KVCAM::UIAPI::Ext {
namespace {

using Html::Page;
using Html::Texts;

QByteArray heading(Texts const & text, AnalysisReport const & report)
{
    QByteArray out = "<h1>" + text(QT_TRANSLATE_NOOP("HtmlReport", "Analysis report")) + "</h1>\n<dl>";
    for (auto const & [title, value] :
         {std::pair(text(QT_TRANSLATE_NOOP("HtmlReport", "Job")), &report.job()),
          {text(QT_TRANSLATE_NOOP("HtmlReport", "Step")), &report.step()},
          {text(QT_TRANSLATE_NOOP("HtmlReport", "Date")), &report.date()}}) {
        out += "<dt>" + title + "</dt><dd>" + (value->empty() ? QByteArray("–") : Html::isolated(*value)) +
               "</dd>\n";
    }
    return out + "</dl>\n";
}

// The worst first, as everywhere.
QByteArray countsList(Page const & page)
{
    Texts const & text = page.text;
    AnalysisReport const & report = page.report;
    SeverityCounts const counts = report.counts();
    std::size_t accepted = 0;
    for (Html::CheckListing const & check : page.listing.checks) {
        accepted += check.waived;
    }
    QByteArray out = "<ul class=\"counts\">\n";
    for (auto mark = severityPalette.rbegin(); mark != severityPalette.rend(); ++mark) {
        QByteArray const letter(1, Html::letterOf(mark->severity));
        out += "<li class=\"" + letter + "\" data-s=\"" + letter + "\"><span class=\"cell\"><b>" +
               Html::countText(counts[static_cast<std::size_t>(mark->severity)]) + "</b>" +
               text.sign(mark->severity) + "</span></li>\n";
    }
    auto const other = [&out](std::size_t count, QByteArray const & title, char const * link) {
        out += QByteArray("<li><a class=\"cell\" href=\"#") + link + "\"><b>" + Html::countText(count) +
               "</b>" + title + "</a></li>\n";
    };
    if (accepted != 0 || !report.waivers().empty()) {
        other(accepted, text(QT_TRANSLATE_NOOP("HtmlReport", "Waived")), "waived");
    }
    if (!report.notChecked().empty()) {
        other(report.notChecked().size(), text(QT_TRANSLATE_NOOP("HtmlReport", "Not checked")), "unchecked");
    }
    return out + "</ul>\n";
}

QByteArray overviewRow(Page const & page, Html::CheckListing const & check, std::size_t index)
{
    ReportCategory const & category = *check.category;
    QByteArray const name = page.text.checkName(category.name);
    QByteArray out =
        "<tr><td class=\"t w\">" +
        (check.listed.empty()
             ? name
             : "<a href=\"#c" + QByteArray::number(static_cast<qulonglong>(index)) + "\">" + name + "</a>") +
        "</td>";
    for (auto mark = severityPalette.rbegin(); mark != severityPalette.rend(); ++mark) {
        std::size_t const count = category.counts[static_cast<std::size_t>(mark->severity)];
        out += "<td class=\"n\">" +
               (count == 0 ? QByteArray("<span class=\"dim\">0</span>") : Html::countText(count)) + "</td>";
    }
    out += "<td class=\"n\">" + Html::countText(check.waived) + "</td>";
    Unit const unit = page.report.levelUnit();
    for (double Analysis_Ranges_Record::*level :
         {&Analysis_Ranges_Record::redLv, &Analysis_Ranges_Record::yellowLv,
          &Analysis_Ranges_Record::greenLv}) {
        out += "<td class=\"n\">" +
               (category.levels ? page.text.both((*category.levels).*level, unit) : QByteArray("–")) +
               "</td>";
    }
    return out + "</tr>\n";
}

QByteArray overview(Page const & page)
{
    Texts const & text = page.text;
    QByteArray heads = Html::head(text(QT_TRANSLATE_NOOP("HtmlReport", "Check")), 't');
    for (auto mark = severityPalette.rbegin(); mark != severityPalette.rend(); ++mark) {
        heads += Html::head(text.sign(mark->severity), 'n',
                            std::string("n ").append(1, Html::letterOf(mark->severity)).c_str());
    }
    heads += Html::head(text(QT_TRANSLATE_NOOP("HtmlReport", "Waived")), 'n', "n");
    for (Severity const severity : {Severity::Red, Severity::Yellow, Severity::Green}) {
        heads += Html::head(text(QT_TRANSLATE_NOOP("HtmlReport", "Level %1"), {text.sign(severity)}), 'n',
                            std::string("n ").append(1, Html::letterOf(severity)).c_str());
    }
    QByteArray out = "<h2 id=\"checks\">" + text(QT_TRANSLATE_NOOP("HtmlReport", "Checks")) + "</h2>\n";
    if (page.listing.checks.empty()) {
        return out + "<p>" + text(QT_TRANSLATE_NOOP("HtmlReport", "No check was run.")) + "</p>\n";
    }
    out += Html::tableStart(heads);
    for (std::size_t i = 0; i < page.listing.checks.size(); ++i) {
        out += overviewRow(page, page.listing.checks[i], i);
    }
    return out + Html::tableEnd();
}

QByteArray uncheckedSection(Page const & page)
{
    Texts const & text = page.text;
    std::vector<NotChecked> const & notes = page.report.notChecked();
    if (notes.empty()) {
        return {};
    }
    QByteArray out =
        "<h2 id=\"unchecked\">" + text(QT_TRANSLATE_NOOP("HtmlReport", "Not checked")) + "</h2>\n" +
        Html::tableStart(Html::head(text(QT_TRANSLATE_NOOP("HtmlReport", "Check or layer")), 't') +
                         Html::head(text(QT_TRANSLATE_NOOP("HtmlReport", "Reason")), 't'));
    std::size_t const shown = std::min(notes.size(), Html::mostNotes);
    for (std::size_t i = 0; i < shown; ++i) {
        out += "<tr><td class=\"t w\">" + text.checkName(notes[i].name) + "</td><td>" +
               text.reason(notes[i].reason) + "</td></tr>\n";
    }
    out += Html::tableEnd();
    if (shown < notes.size()) {
        out += "<p class=\"dim\">" +
               text(QT_TRANSLATE_NOOP("HtmlReport", "Not listed: %1."),
                    {Html::countText(notes.size() - shown)}) +
               "</p>\n";
    }
    return out;
}

// A section with a link to it, if there is something in it.
struct Section
{
    char const * id;
    QByteArray title;
    QByteArray content;
};

QByteArray navigation(Texts const & text, std::vector<Section> const & sections)
{
    QByteArray links;
    for (Section const & section : sections) {
        if (!section.content.isEmpty()) {
            links += (links.isEmpty() ? "" : " · ") + QByteArray("<a href=\"#") + section.id + "\">" +
                     section.title + "</a>";
        }
    }
    return "<nav aria-label=\"" + text(QT_TRANSLATE_NOOP("HtmlReport", "Sections")) + "\"><p>" + links +
           "</p></nav>\n";
}

QByteArray documentHead(Texts const & text, AnalysisReport const & report)
{
    QByteArray const title = Html::escaped(report.job()) + (report.step().empty() ? "" : " / ") +
                             Html::escaped(report.step()) + (report.job().empty() ? "" : " – ") +
                             text(QT_TRANSLATE_NOOP("HtmlReport", "Analysis report"));
    return QByteArray("<!DOCTYPE html>\n<html lang=\"") + (text.isChinese() ? "zh-Hans" : "en") +
           "\">\n<head>\n<meta charset=\"utf-8\"/>\n<meta http-equiv=\"Content-Security-Policy\" content=\"" +
           Html::contentPolicy() +
           "\"/>\n<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\"/>\n"
           "<meta name=\"referrer\" content=\"no-referrer\"/>\n<title>" +
           title + "</title>\n<style>" + Html::style() + "</style>\n</head>\n";
}

} // namespace

QByteArray htmlReport(AnalysisReport const & report, HtmlReportOptions const & options)
{
    Texts const text(options);
    Html::Listing const listing = Html::listingOf(report, options);
    Page const page{report, options, text, listing};
    std::vector<Section> const sections{
        {"checks", text(QT_TRANSLATE_NOOP("HtmlReport", "Checks")), overview(page)},
        {"changes", text(QT_TRANSLATE_NOOP("HtmlReport", "Changes")), Html::comparisonSection(page)},
        {"widths", text(QT_TRANSLATE_NOOP("HtmlReport", "Track widths")), Html::widthsSection(page)},
        {"unchecked", text(QT_TRANSLATE_NOOP("HtmlReport", "Not checked")), uncheckedSection(page)},
        {"pictures", text(QT_TRANSLATE_NOOP("HtmlReport", "Layers")), Html::picturesSection(page)},
        {"violations", text(QT_TRANSLATE_NOOP("HtmlReport", "Measurements")), Html::checksSection(page)},
        {"waived", text(QT_TRANSLATE_NOOP("HtmlReport", "Waived")), Html::waivedSection(page)}};
    QByteArray out = documentHead(text, report) + "<body>\n<header>\n" + heading(text, report) +
                     countsList(page) + "<p class=\"dim\">" +
                     text(QT_TRANSLATE_NOOP("HtmlReport", "Measurements: %1, of which %2 are listed."),
                          {Html::countText(listing.entries), Html::countText(listing.listed)}) +
                     "</p>\n" + navigation(text, sections) + "</header>\n<main>\n";
    for (Section const & section : sections) {
        out += section.content;
    }
    return out + "</main>\n<script>" + Html::script() + "</script>\n</body>\n</html>\n";
}

} // namespace KVCAM::UIAPI::Ext
