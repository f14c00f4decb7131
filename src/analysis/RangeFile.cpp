#include "analysis/RangeFile.h"

#include "units/DecimalText.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QLocale>
#include <QString>

#include <algorithm>
#include <cmath>

namespace KVCAM::UIAPI::RangeFile {
namespace {

constexpr char const * listKey = "rangesList";
constexpr char const * nameKey = "name";

bool isSame(double a, double b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

} // namespace

std::optional<Records> readRecords(QJsonDocument const & document)
{
    QJsonValue const list = document.object().value(QLatin1String(listKey));
    if (!list.isArray()) {
        return std::nullopt;
    }
    QJsonArray const array = list.toArray();
    Records records;
    records.reserve(static_cast<std::size_t>(array.size()));
    for (QJsonValue const element : array) {
        QJsonObject const object = element.toObject();
        Analysis_Ranges_Record & record = records.emplace_back();
        record.name = object.value(QLatin1String(nameKey)).toString().toStdString();
        for (Level const & level : levels) {
            record.*level.value = decimalValue(object.value(QLatin1String(level.key)).toString());
        }
    }
    return records;
}

Change writeLevels(QJsonDocument & document, Records const & loaded, Records const & records)
{
    std::optional<Records> const current = readRecords(document);
    if (!current || !std::equal(current->begin(), current->end(), loaded.begin(), loaded.end(),
                                [](auto const & a, auto const & b) { return a.name == b.name; })) {
        return Change::Stale;
    }
    QJsonObject top = document.object();
    QJsonArray array = top.value(QLatin1String(listKey)).toArray();
    Change change = Change::Nothing;
    for (std::size_t i = 0; i < records.size(); ++i) {
        for (Level const & level : levels) {
            double const value = records[i].*level.value;
            if (isSame(value, loaded[i].*level.value)) {
                continue;
            }
            QJsonValueRef element = array[static_cast<int>(i)];
            if (!element.isObject()) {
                return Change::NoRecord;
            }
            QJsonObject object = element.toObject();
            object[QLatin1String(level.key)] = QString::number(value, 'g', QLocale::FloatingPointShortest);
            element = object;
            change = Change::Changed;
        }
    }
    top[QLatin1String(listKey)] = array;
    document.setObject(top);
    return change;
}

} // namespace KVCAM::UIAPI::RangeFile
