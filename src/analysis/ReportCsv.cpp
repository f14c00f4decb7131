#include "analysis/ReportFormats.h"

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace KVCAM::UIAPI::Ext::Formats {
namespace {

// In the order of the head line. New ones come last, since readers may count.
enum Column : int
{
    recordColumn,
    tableColumn,
    numberColumn,
    categoryColumn,
    layerColumn,
    levelColumn,
    micrometreColumn,
    milColumn,
    limitColumn,
    severityColumn,
    xColumn,
    yColumn,
    countColumn,
    textColumn,
    idColumn,
    firstNetColumn,
    secondNetColumn,
    firstPlaceColumn, // and its y, and both of the second place
    waivedColumn = firstPlaceColumn + 4,
    columnCount
};

// What a spreadsheet takes for the beginning of a formula. East Asian versions also accept full-width signs.
bool isFormulaSign(QChar c)
{
    return QStringLiteral("=+-@＝＋－＠").contains(c);
}

// What may be dropped before a formula: blanks, invisible marks, and quotes where cells are split elsewhere.
bool isPassedOver(QChar c)
{
    return c.isSpace() || c == '"' || c.category() == QChar::Other_Format ||
           c.category() == QChar::Other_Control;
}

// Whether a cell begins after it where it is not the comma that separates cells.
bool endsCell(QChar c)
{
    return c == ';' || c == '\t' || c == '\r' || c == '\n';
}

// Puts a ' before each cell that a spreadsheet would execute.
QString withoutFormulas(QString text)
{
    if (!text.isEmpty() && endsCell(text[0]) && text[0] != ';') {
        text.prepend('\'');
    }
    int cell = 0;
    bool mayBegin = true; // only what is passed over was in the cell so far
    for (int i = 0; i < text.size(); ++i) {
        if (endsCell(text[i])) {
            cell = i + 1;
            mayBegin = true;
        } else if (mayBegin && isFormulaSign(text[i])) {
            text.insert(cell, '\'');
            ++i;
            mayBegin = false;
        } else {
            mayBegin = mayBegin && isPassedOver(text[i]);
        }
    }
    return text;
}

QByteArray csvText(std::string const & text)
{
    bool const isPlain =
        text.find_first_not_of("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789"
                               "_. ()/%#~,") == std::string::npos;
    QByteArray const bytes =
        isPlain ? QByteArray(text.data(), static_cast<int>(text.size()))
                : withoutFormulas(QString::fromStdString(text)).toUtf8().replace('"', "\"\"");
    return '"' + bytes + '"';
}

// The fields in ascending order of column; the others stay empty.
void appendCsvLine(QByteArray & out, std::initializer_list<std::pair<int, QByteArray>> fields)
{
    int column = 0;
    for (auto const & [number, text] : fields) {
        out.append(number - column, ',').append(text);
        column = number;
    }
    out.append(columnCount - 1 - column, ',').append("\r\n");
}

void appendCsvEntry(QByteArray & out, ReportCategory const & category, ReportEntry const & entry, int copy)
{
    auto const coordinate = [&](std::size_t place, double KVCAM::API::point::*member) {
        return place < entry.places.size() ? numberText(entry.places[place].*member) : QByteArray();
    };
    auto const net = [](std::string const & name) { return name.empty() ? QByteArray() : csvText(name); };
    appendCsvLine(out, {{recordColumn, "measurement"},
                        {tableColumn, csvText(category.table)},
                        {numberColumn, QByteArray::number(category.number)},
                        {categoryColumn, csvText(category.name)},
                        {layerColumn, csvText(entry.layer)},
                        {levelColumn, QByteArray::number(entry.level)},
                        {micrometreColumn, numberText(inUnit(entry.measured, Unit::Millimetre))},
                        {milColumn, numberText(inUnit(entry.measured, Unit::Inch))},
                        {limitColumn, numberText(limitOf(category, entry))},
                        {severityColumn, markOf(entry.severity).name},
                        {xColumn, entry.position ? numberText(entry.position->x) : QByteArray()},
                        {yColumn, entry.position ? numberText(entry.position->y) : QByteArray()},
                        {idColumn, csvText(copyId(category, entry, copy))},
                        {firstNetColumn, net(entry.nets[0])},
                        {secondNetColumn, net(entry.nets[1])},
                        {firstPlaceColumn, coordinate(0, &KVCAM::API::point::x)},
                        {firstPlaceColumn + 1, coordinate(0, &KVCAM::API::point::y)},
                        {firstPlaceColumn + 2, coordinate(1, &KVCAM::API::point::x)},
                        {firstPlaceColumn + 3, coordinate(1, &KVCAM::API::point::y)},
                        {waivedColumn, entry.waiver ? "1" : "0"}});
}

} // namespace

QByteArray csv(AnalysisReport const & report)
{
    QByteArray out = "\xEF\xBB\xBFrecord,table,number,category,layer,level,value_um,value_mil,limit_";
    out += smallUnitName(report.levelUnit());
    out += ",severity,x_um,y_um,count,text,id,net_1,net_2,x1_um,y1_um,x2_um,y2_um,waived\r\n";
    appendCsvLine(out, {{recordColumn, "job"}, {textColumn, csvText(report.job())}});
    appendCsvLine(out, {{recordColumn, "step"}, {textColumn, csvText(report.step())}});
    if (!report.date().empty()) {
        appendCsvLine(out, {{recordColumn, "date"}, {textColumn, csvText(report.date())}});
    }
    SeverityCounts const counts = report.counts();
    for (SeverityMark const & mark : severityPalette) {
        auto const count = static_cast<qulonglong>(counts[static_cast<std::size_t>(mark.severity)]);
        appendCsvLine(
            out,
            {{recordColumn, "count"}, {severityColumn, mark.name}, {countColumn, QByteArray::number(count)}});
    }
    for (ReportCategory const & category : report.categories()) {
        std::vector<int> const copies = copyNumbers(category);
        auto copy = copies.begin();
        for (ReportEntry const & entry : category.entries) {
            appendCsvEntry(out, category, entry, *copy++);
        }
    }
    for (NotChecked const & check : report.notChecked()) {
        appendCsvLine(out, {{recordColumn, "not_checked"},
                            {tableColumn, csvText(check.table)},
                            {numberColumn, QByteArray::number(check.number)},
                            {categoryColumn, csvText(check.name)},
                            {textColumn, csvText(check.reason)}});
    }
    return out;
}

} // namespace KVCAM::UIAPI::Ext::Formats
