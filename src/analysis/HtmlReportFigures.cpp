#include "analysis/HtmlReportParts.h"
#include "analysis/TrackWidths.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace KVCAM::UIAPI::Ext::Html {
namespace {

constexpr double pictureWidth = 1000; // of the coordinates of the marks
constexpr double leastAspect = 0.01;  // a picture that is narrower or wider has no use
constexpr double markRadius = 9;
constexpr std::size_t mostNumbers = 60;      // marks of a picture that have their row's number beside them
constexpr std::size_t mostMarks = 400;       // of a picture
constexpr std::size_t mostMarksInAll = 2000; // browsers take long for more
constexpr std::size_t leastMarks = 50;       // of a picture, whatever the number of pictures

QByteArray percent(double part)
{
    return QByteArray::number(100 * part, 'f', 2) + '%';
}

QByteArray coordinate(double value)
{
    return QByteArray::number(value, 'f', 1);
}

QByteArray bar(LayerWidth const & width, std::vector<LevelLine> const & levels, double end, Unit unit)
{
    QByteArray out = "<svg height=\"22\" aria-hidden=\"true\">";
    if (width.measured) {
        double const part = std::max(width.measured->to(unit, LengthScale::Small) / end, 0.0);
        out += QByteArray("<rect class=\"") + letterOf(width.severity) +
               "\" x=\"0\" y=\"4\" height=\"14\" width=\"" + percent(part) + "\"/>";
    }
    for (LevelLine const & level : levels) {
        double const part = level.length.to(unit, LengthScale::Small) / end;
        if (part <= 1) {
            out += QByteArray("<line class=\"") + letterOf(level.severity) + "\" x1=\"" + percent(part) +
                   "\" x2=\"" + percent(part) + "\" y1=\"0\" y2=\"22\"/>";
        }
    }
    return out + "</svg>";
}

QByteArray axis(ChartAxis const & axis)
{
    QByteArray out = "<svg height=\"20\" aria-hidden=\"true\">";
    for (int tick = 0; tick * axis.step <= axis.end; ++tick) {
        QByteArray const place = percent(tick * axis.step / axis.end);
        out += "<line class=\"tick\" x1=\"" + place + "\" x2=\"" + place +
               "\" y1=\"0\" y2=\"4\"/><text x=\"" + place + "\" y=\"16\">" +
               QByteArray::number(tick * axis.step) + "</text>";
    }
    return out + "</svg>";
}

// A violation on a picture, in the coordinates of its marks.
struct Mark
{
    double x = 0;
    double y = 0;
    ReportCategory const * category = nullptr;
    ReportEntry const * entry = nullptr;
    std::size_t row = 0; // its number in the list; 0: not listed
};

std::vector<Mark> marksOf(Page const & page, LayerPicture const & picture, double height)
{
    std::vector<Mark> marks;
    for (CheckListing const & check : page.listing.checks) {
        std::map<std::size_t, std::size_t> rows; // numbers by entry
        for (std::size_t i = 0; i < check.listed.size(); ++i) {
            rows.emplace(check.listed[i], check.firstNumber + i);
        }
        for (std::size_t i = 0; i < check.category->entries.size(); ++i) {
            ReportEntry const & entry = check.category->entries[i];
            if (entry.severity == Severity::None || entry.waiver || !entry.position ||
                entry.layer != picture.layer) {
                continue;
            }
            double const x =
                (entry.position->x - picture.left) / (picture.right - picture.left) * pictureWidth;
            double const y = (picture.top - entry.position->y) / (picture.top - picture.bottom) * height;
            if (x >= 0 && x <= pictureWidth && y >= 0 && y <= height) {
                auto const row = rows.find(i);
                marks.push_back({x, y, check.category, &entry, row == rows.end() ? 0 : row->second});
            }
        }
    }
    std::stable_sort(marks.begin(), marks.end(), [](Mark const & a, Mark const & b) {
        return a.entry->severity != b.entry->severity ? a.entry->severity > b.entry->severity
                                                      : (a.row != 0) > (b.row != 0);
    });
    return marks;
}

// Of marks that would cover each other only the worst; its number of others is in what it says.
struct Cluster
{
    Mark mark;
    std::size_t others = 0;
};

std::vector<Cluster> clustersOf(std::vector<Mark> const & marks, double size)
{
    std::vector<Cluster> clusters;
    std::map<std::pair<int, int>, std::size_t> cells;
    for (Mark const & mark : marks) {
        std::pair const cell{static_cast<int>(mark.x / size), static_cast<int>(mark.y / size)};
        auto const [known, isNew] = cells.try_emplace(cell, clusters.size());
        if (isNew) {
            clusters.push_back({mark, 0});
        } else {
            ++clusters[known->second].others;
        }
    }
    return clusters;
}

// Few enough for a browser: where there are many, each stands for a larger area.
std::vector<Cluster> clustersOf(Page const & page, std::vector<Mark> const & marks)
{
    std::size_t const share = mostMarksInAll / std::max<std::size_t>(page.options.pictures.size(), 1);
    double size = markRadius;
    std::vector<Cluster> clusters = clustersOf(marks, size);
    while (clusters.size() > std::clamp(share, leastMarks, mostMarks)) {
        size *= 1.25;
        clusters = clustersOf(marks, size);
    }
    return clusters;
}

QByteArray markText(Page const & page, Cluster const & cluster)
{
    Mark const & mark = cluster.mark;
    QByteArray title = page.text.checkName(mark.category->name).replace("<bdi>", "").replace("</bdi>", "");
    if (mark.entry->measured) {
        for (Unit const unit : {page.text.first(), page.text.second()}) {
            title += (unit == page.text.first() ? ": " : ", ") + lengthText(*mark.entry->measured, unit) +
                     ' ' + unitText(unit);
        }
    }
    if (cluster.others != 0) {
        title +=
            "; " + page.text(QT_TRANSLATE_NOOP("HtmlReport", "%1 more here"), {countText(cluster.others)});
    }
    return title;
}

QByteArray markGraphic(Page const & page, Cluster const & cluster, bool isNumbered)
{
    Mark const & mark = cluster.mark;
    char const letter = letterOf(mark.entry->severity);
    QByteArray const x = coordinate(mark.x);
    QByteArray const row = QByteArray::number(static_cast<qulonglong>(mark.row));
    QByteArray out = QByteArray("<a class=\"") + letter + '"' +
                     (mark.row == 0 ? QByteArray() : " href=\"#v" + row + '"') + "><title>" +
                     markText(page, cluster) + "</title><circle r=\"" + coordinate(markRadius) + "\" cx=\"" +
                     x + "\" cy=\"" + coordinate(mark.y) + "\"/><text x=\"" + x + "\" y=\"" +
                     coordinate(mark.y + 4) + "\">" + letter + "</text>";
    if (isNumbered && mark.row != 0) {
        out += "<text class=\"nr\" x=\"" + coordinate(mark.x + markRadius + 2) + "\" y=\"" +
               coordinate(mark.y + 4) + "\">" + row + "</text>";
    }
    return out + "</a>\n";
}

bool isShowable(LayerPicture const & picture)
{
    constexpr std::array types = {"image/png", "image/jpeg", "image/webp", "image/svg+xml"};
    double const aspect = (picture.top - picture.bottom) / (picture.right - picture.left);
    return std::find(types.begin(), types.end(), picture.mimeType) != types.end() &&
           !picture.bytes.isEmpty() && picture.right > picture.left && std::isfinite(aspect) &&
           aspect >= leastAspect && aspect <= 1 / leastAspect;
}

QByteArray figure(Page const & page, LayerPicture const & picture)
{
    double const height = pictureWidth * (picture.top - picture.bottom) / (picture.right - picture.left);
    std::vector<Mark> const marks = marksOf(page, picture, height);
    std::vector<Cluster> const clusters = clustersOf(page, marks);
    QByteArray const size = "width=\"" + coordinate(pictureWidth) + "\" height=\"" + coordinate(height) + '"';
    QByteArray out =
        "<figure><figcaption><b>" + isolated(picture.layer) + "</b> <span class=\"dim\">" +
        page.text(QT_TRANSLATE_NOOP("HtmlReport", "Violations marked: %1"), {countText(marks.size())}) +
        "</span></figcaption>\n<div class=\"wide\" tabindex=\"0\"><svg class=\"m\" role=\"group\" "
        "viewBox=\"0 0 " +
        coordinate(pictureWidth) + ' ' + coordinate(height) + "\">\n<image preserveAspectRatio=\"none\" " +
        size + " href=\"data:" + QByteArray::fromStdString(picture.mimeType) + ";base64," +
        picture.bytes.toBase64() + "\"/>\n";
    for (std::size_t i = clusters.size(); i-- > 0;) { // the worst on top
        out += markGraphic(page, clusters[i], clusters.size() <= mostNumbers);
    }
    return out + "</svg></div></figure>\n";
}

} // namespace

QByteArray widthsSection(Page const & page)
{
    TrackWidths const widths = trackWidths(page.report, page.options.copperLayers);
    if (widths.layers.empty()) {
        return {};
    }
    Texts const & text = page.text;
    ChartAxis const scale = trackWidthAxis(widths, text.first());
    QByteArray rows;
    for (LayerWidth const & width : widths.layers) {
        QByteArray value = text(QT_TRANSLATE_NOOP("HtmlReport", "no tracks"));
        QByteArray sign;
        if (width.measured) {
            value = lengthText(*width.measured, text.first()) + ' ' + unitText(text.first()) + " (" +
                    lengthText(*width.measured, text.second()) + ' ' + unitText(text.second()) + ')';
            sign = text.sign(width.severity);
        }
        rows += QByteArray("<tr class=\"") + letterOf(width.severity) +
                "\"><th scope=\"row\" class=\"t w\">" + isolated(width.layer) + "</th><td class=\"bar\">" +
                bar(width, widths.levels, scale.end, text.first()) + "</td><td class=\"k\">" + value +
                "</td><td class=\"k\">" + sign + "</td></tr>\n";
    }
    return "<h2 id=\"widths\">" + text(QT_TRANSLATE_NOOP("HtmlReport", "Narrowest track of each layer")) +
           "</h2>\n<div class=\"wide\" tabindex=\"0\"><table class=\"bars\"><tbody>\n" + rows +
           "<tr><td class=\"dim\">" + unitText(text.first()) + "</td><td class=\"bar\">" + axis(scale) +
           "</td><td></td><td></td></tr>\n</tbody></table></div>\n";
}

QByteArray picturesSection(Page const & page)
{
    QByteArray out;
    for (LayerPicture const & picture : page.options.pictures) {
        if (isShowable(picture)) {
            out += figure(page, picture);
        }
    }
    if (out.isEmpty()) {
        return out;
    }
    return "<h2 id=\"pictures\">" + page.text(QT_TRANSLATE_NOOP("HtmlReport", "Layers")) +
           "</h2>\n<p class=\"dim\">" +
           page.text(QT_TRANSLATE_NOOP(
               "HtmlReport", "Each mark is a violation; the number beside it is that of its row below. Marks "
                             "that would cover each other are shown as one, the worst.")) +
           "</p>\n" + out;
}

} // namespace KVCAM::UIAPI::Ext::Html
