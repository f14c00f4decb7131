#include "analysis/HtmlReportCells.h"
#include "analysis/ReportFormats.h"

namespace KVCAM::UIAPI::Ext::Html {
namespace {

constexpr int mmDecimals = 3;
constexpr int inchDecimals = 4;

QByteArray largeText(double micrometres, Unit unit)
{
    return Length::fromMicrometres(micrometres)
        .text(unit, LengthScale::Large, unit == Unit::Inch ? inchDecimals : mmDecimals)
        .toLatin1();
}

QByteArray placeText(KVCAM::API::point const & place, Unit unit)
{
    return largeText(place.x, unit) + ", " + largeText(place.y, unit) + (unit == Unit::Inch ? " in" : " mm");
}

// As the level was given, and in the other unit.
QByteArray limitCells(Page const & page, ReportCategory const & category, ReportEntry const & entry)
{
    Unit const given = page.report.levelUnit();
    std::optional<double> const limit = limitOf(category, entry);
    QByteArray out;
    for (Unit const unit : {page.text.first(), page.text.second()}) {
        QByteArray const shown = !limit ? QByteArray("–")
                                 : unit == given
                                     ? Formats::numberText(limit)
                                     : lengthText(Length::from(*limit, given, LengthScale::Small), unit);
        out += "<td class=\"n\">" + shown + "</td>";
    }
    return out;
}

} // namespace

QByteArray placeCell(Texts const & text, std::optional<KVCAM::API::point> const & place)
{
    return place ? placeText(*place, text.first()) + "<br/><small>" + placeText(*place, text.second()) +
                       "</small>"
                 : QByteArray("–");
}

QByteArray netsCell(EntryNets const & nets)
{
    QByteArray const first = isolated(nets[0]);
    QByteArray const second = nets[0] == nets[1] ? QByteArray() : isolated(nets[1]);
    return first + (first.isEmpty() || second.isEmpty() ? "" : "<br/>") + second;
}

QByteArray idCell(Texts const & text, std::string const & id)
{
    return "<details><summary>" + text(QT_TRANSLATE_NOOP("HtmlReport", "id")) + "</summary><code>" +
           escaped(QString::fromStdString(id), longestSentence) + "</code></details>";
}

QByteArray lengthCells(Texts const & text, std::optional<Length> length)
{
    QByteArray out;
    for (Unit const unit : {text.first(), text.second()}) {
        out += "<td class=\"n\">" + (length ? lengthText(*length, unit) : QByteArray("–")) + "</td>";
    }
    return out;
}

QByteArray head(QByteArray const & title, char kind, char const * classes)
{
    QByteArray const sorted = kind == 0 ? QByteArray() : QByteArray(" data-k=\"") + kind + '"';
    QByteArray const named = *classes == 0 ? QByteArray() : QByteArray(" class=\"") + classes + '"';
    return "<th scope=\"col\"" + named + sorted + '>' + title + "</th>";
}

QByteArray lengthHeads(Texts const & text, QByteArray const & title)
{
    return head(title + ", " + unitText(text.first()), 'n', "n") +
           head(title + ", " + unitText(text.second()), 'n', "n");
}

QByteArray measurementHeads(Texts const & text)
{
    return head(text(QT_TRANSLATE_NOOP("HtmlReport", "Severity")), 's') +
           lengthHeads(text, text(QT_TRANSLATE_NOOP("HtmlReport", "Measured"))) +
           lengthHeads(text, text(QT_TRANSLATE_NOOP("HtmlReport", "Limit"))) +
           head(text(QT_TRANSLATE_NOOP("HtmlReport", "Layer")), 't') +
           head(text(QT_TRANSLATE_NOOP("HtmlReport", "Place")), 'n') +
           head(text(QT_TRANSLATE_NOOP("HtmlReport", "Nets")), 't');
}

QByteArray measurementCells(Page const & page, ReportCategory const & category, ReportEntry const & entry)
{
    return "<td class=\"k\">" + page.text.sign(entry.severity) + "</td>" +
           lengthCells(page.text, entry.measured) + limitCells(page, category, entry) + "<td class=\"t\">" +
           isolated(entry.layer) + "</td><td class=\"k\">" + placeCell(page.text, entry.position) +
           "</td><td class=\"t\">" + netsCell(entry.nets) + "</td>";
}

QByteArray rowStart(Severity severity)
{
    return QByteArray("<tr class=\"") + letterOf(severity) + "\"";
}

QByteArray leftOutNote(Page const & page, std::size_t count)
{
    if (count == 0) {
        return {};
    }
    Texts const & text = page.text;
    QByteArray const source =
        page.options.dataFile.isEmpty()
            ? text(QT_TRANSLATE_NOOP("HtmlReport", "The JSON report of the same run holds all of them."))
            : text(QT_TRANSLATE_NOOP("HtmlReport", "%1 holds all of them."),
                   {"<bdi>" + escaped(page.options.dataFile) + "</bdi>"});
    return "<p class=\"dim\">" +
           text(QT_TRANSLATE_NOOP("HtmlReport", "Measurements that are counted but not listed: %1."),
                {countText(count)}) +
           ' ' + source + "</p>\n";
}

QByteArray tableStart(QByteArray const & heads)
{
    return "<div class=\"wide\" tabindex=\"0\"><table>\n<thead><tr>" + heads + "</tr></thead>\n<tbody>\n";
}

QByteArray tableEnd()
{
    return "</tbody></table></div>\n";
}

} // namespace KVCAM::UIAPI::Ext::Html
