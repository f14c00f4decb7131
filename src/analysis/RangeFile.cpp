#include "analysis/RangeFile.h"

#include "support/PlainJson.h"
#include "units/DecimalText.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QLatin1String>
#include <QLocale>
#include <QString>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string_view>
#include <utility>

namespace KVCAM::UIAPI::RangeFile {
namespace {

constexpr std::string_view listKey = "rangesList";
constexpr std::string_view nameKey = "name";

QLatin1String latin(std::string_view text)
{
    return QLatin1String(text.data(), static_cast<int>(text.size()));
}

bool isSame(double a, double b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

// Of equal keys the last counts, as in a document.
bool readPlainRecord(PlainJson & json, Analysis_Ranges_Record & record)
{
    return json.object([&](std::string_view key) {
        std::string_view text;
        bool const isText = json.text(text);
        auto const level = std::find_if(levels.begin(), levels.end(),
                                        [key](Level const & entry) { return key == entry.key; });
        if (level != levels.end()) {
            record.*level->value = latinDecimalValue(latin(text));
        } else if (key == nameKey) {
            record.name = text;
        }
        return isText;
    });
}

} // namespace

std::optional<Records> readPlainRecords(QByteArray const & bytes)
{
    PlainJson json(bytes);
    Records records;
    int lists = 0;
    bool const isPlain = json.object([&](std::string_view key) {
        ++lists;
        return key == listKey && json.array([&] { return readPlainRecord(json, records.emplace_back()); });
    });
    return isPlain && lists == 1 && json.isAtEnd() ? std::optional(std::move(records)) : std::nullopt;
}

std::optional<Records> readRecords(QJsonDocument const & document)
{
    QJsonValue const list = document.object().value(latin(listKey));
    if (!list.isArray()) {
        return std::nullopt;
    }
    QJsonArray const array = list.toArray();
    Records records;
    records.reserve(static_cast<std::size_t>(array.size()));
    for (QJsonValue const element : array) {
        QJsonObject const object = element.toObject();
        Analysis_Ranges_Record & record = records.emplace_back();
        record.name = object.value(latin(nameKey)).toString().toStdString();
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
    QJsonArray array = top.value(latin(listKey)).toArray();
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
    top[latin(listKey)] = array;
    document.setObject(top);
    return change;
}

} // namespace KVCAM::UIAPI::RangeFile
