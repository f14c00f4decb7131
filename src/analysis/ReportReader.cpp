#include "analysis/ReportReader.h"

#include "support/JsonMembers.h"
#include "support/WholeFile.h"

#include <QObject>

#include <algorithm>
#include <array>
#include <limits>
#include <map>
#include <string_view>
#include <utility>

namespace KVCAM::UIAPI::Ext {
namespace {

constexpr qint64 largestReport = qint64(1024) * 1024 * 1024;
constexpr int onlyVersion = 2; // the first one has no places to compare by
constexpr std::size_t mostPlaces = 2;
constexpr std::size_t mostCategories = 2000; // they are searched one after the other; the tables have 500

// What the file says of an entry and what the report finds out itself.
struct Verdict
{
    Severity severity = Severity::None;
    bool isWaived = false;

    friend bool operator!=(Verdict const & a, Verdict const & b)
    {
        return a.severity != b.severity || a.isWaived != b.isWaived;
    }
};

struct ReadCategory
{
    std::string table;
    int number = 0;
    std::optional<Analysis_Ranges_Record> levels;
    std::vector<ReportEntry> entries;
    std::vector<Verdict> verdicts; // one for each of `entries`
};

struct ReadReport
{
    std::string job;
    std::string step;
    std::string date;
    Unit levelUnit = Unit::Inch;
    std::vector<ReadCategory> categories;
    std::vector<NotChecked> notChecked;
    std::vector<Waiver> waivers;
    std::string waiversDate;
    Length waiversTolerance = sameViolationTolerance;
};

bool readOptional(JsonReader & json, std::optional<double> & out)
{
    double value = 0;
    if (json.takeNull()) {
        out.reset();
        return true;
    }
    if (!json.number(value)) {
        return false;
    }
    out = value;
    return true;
}

// One of a few words.
template <class Words>
bool readWord(JsonReader & json, Words const & words, std::size_t & index)
{
    std::string text;
    if (!json.text(text)) {
        return false;
    }
    auto const found = std::find(words.begin(), words.end(), text);
    index = static_cast<std::size_t>(found - words.begin());
    return found != words.end() ||
           json.fail(QObject::tr("\"%1\" is unknown here.").arg(QString::fromStdString(text)));
}

bool readSeverity(JsonReader & json, Severity & out)
{
    static std::array<std::string_view, severityCount> const names = [] {
        std::array<std::string_view, severityCount> made;
        std::transform(severityPalette.begin(), severityPalette.end(), made.begin(),
                       [](SeverityMark const & mark) { return mark.name; });
        return made;
    }();
    std::size_t index = 0;
    bool const isRead = readWord(json, names, index);
    out = isRead ? severityPalette.at(index).severity : Severity::None;
    return isRead;
}

bool readFormat(JsonReader & json)
{
    std::size_t index = 0;
    return readWord(json, std::array<std::string_view, 1>{"analysis-report"}, index);
}

bool readUnit(JsonReader & json, Unit & out)
{
    std::size_t index = 0;
    bool const isRead = readWord(json, std::array<std::string_view, 2>{"mil", "um"}, index);
    out = index == 0 ? Unit::Inch : Unit::Millimetre;
    return isRead;
}

bool readVersion(JsonReader & json)
{
    int version = 0;
    return json.number(version) &&
           (version == onlyVersion ||
            json.fail(QObject::tr("The report is not of version %1 of the format. Write it again.")
                          .arg(onlyVersion)));
}

// A level that is not finite is written as null.
bool readLevel(JsonReader & json, double & out)
{
    std::optional<double> value;
    bool const isRead = readOptional(json, value);
    out = value.value_or(std::numeric_limits<double>::quiet_NaN());
    return isRead;
}

bool readLevels(JsonReader & json, std::optional<Analysis_Ranges_Record> & out)
{
    if (json.takeNull()) {
        return true;
    }
    out.emplace();
    return readMembers(json, {{"red", [&] { return readLevel(json, out->redLv); }},
                              {"yellow", [&] { return readLevel(json, out->yellowLv); }},
                              {"green", [&] { return readLevel(json, out->greenLv); }}});
}

/// Reads entries one after the other; the table of members is made once for all of them.
class EntryReader
{
public:
    explicit EntryReader(JsonReader & json) : m_json(json)
    {
        m_place = {{"x_um", [this] { return m_json.number(m_at.x); }},
                   {"y_um", [this] { return m_json.number(m_at.y); }}};
        m_entry = {{"layer", [this] { return m_json.text(m_read.layer); }},
                   {"level", [this] { return m_json.number(m_read.level); }},
                   {"um", [this] { return readMeasured(); }},
                   {"severity", [this] { return readSeverity(m_json, m_verdict.severity); }},
                   {"x_um", [this] { return readOptional(m_json, m_x); }},
                   {"y_um", [this] { return readOptional(m_json, m_y); }},
                   {"places", [this] { return readPlaces(); }},
                   {"nets", [this] { return readNets(); }},
                   {"waived", [this] { return m_json.boolean(m_verdict.isWaived); }}};
    }

    bool read(ReadCategory & out)
    {
        m_read = {};
        m_verdict = {};
        if (!readMembers(m_json, m_entry)) {
            return false;
        }
        if (m_x && m_y) {
            m_read.position = KVCAM::API::point{*m_x, *m_y};
        }
        out.entries.push_back(std::move(m_read));
        out.verdicts.push_back(m_verdict);
        return true;
    }

private:
    bool readMeasured()
    {
        std::optional<double> value;
        if (!readOptional(m_json, value)) {
            return false;
        }
        m_read.measured = value ? std::optional(Length::fromMicrometres(*value)) : std::nullopt;
        return true;
    }

    bool readPlaces()
    {
        return m_json.array([this] {
            if (m_read.places.size() == mostPlaces) {
                return m_json.fail(QObject::tr("A measurement has at most two places."));
            }
            bool const isRead = readMembers(m_json, m_place);
            m_read.places.push_back(m_at);
            return isRead;
        });
    }

    bool readNets()
    {
        std::size_t count = 0;
        bool const isRead = m_json.array([&] {
            if (count == m_read.nets.size()) {
                return m_json.fail(QObject::tr("A measurement has two nets."));
            }
            std::string & net = m_read.nets.at(count++);
            return m_json.takeNull() || m_json.text(net);
        });
        return isRead &&
               (count == m_read.nets.size() || m_json.fail(QObject::tr("A measurement has two nets.")));
    }

    JsonReader & m_json;
    std::vector<JsonMember> m_entry;
    std::vector<JsonMember> m_place;
    ReportEntry m_read;
    Verdict m_verdict;
    KVCAM::API::point m_at;
    std::optional<double> m_x;
    std::optional<double> m_y;
};

bool readCategory(JsonReader & json, EntryReader & entry, std::vector<ReadCategory> & out)
{
    if (out.size() == mostCategories) {
        return json.fail(QObject::tr("There are too many categories."));
    }
    ReadCategory & category = out.emplace_back();
    return readMembers(json, {{"table", [&] { return json.text(category.table); }},
                              {"number", [&] { return json.number(category.number); }},
                              {"levels", [&] { return readLevels(json, category.levels); }},
                              {"entries", [&] { return json.array([&] { return entry.read(category); }); }}});
}

bool readNotChecked(JsonReader & json, std::vector<NotChecked> & out)
{
    NotChecked & check = out.emplace_back();
    return readMembers(json, {{"table", [&] { return json.text(check.table); }},
                              {"number", [&] { return json.number(check.number); }},
                              {"name", [&] { return json.text(check.name); }},
                              {"reason", [&] { return json.text(check.reason); }}});
}

bool readWaiver(JsonReader & json, std::vector<Waiver> & out)
{
    Waiver & waiver = out.emplace_back();
    return readMembers(json, {{"id", [&] { return json.text(waiver.id); }},
                              {"reason", [&] { return json.text(waiver.reason); }},
                              {"author", [&] { return json.text(waiver.author); }},
                              {"date", [&] { return json.text(waiver.date); }},
                              {"expires", [&] { return json.takeNull() || json.text(waiver.expires); }}});
}

// How the waivers were applied: on which day, and how far markers might have moved.
bool readWaiving(JsonReader & json, ReadReport & out)
{
    double tolerance = 0;
    bool const isRead = readMembers(
        json, {{"today", [&] { return json.text(out.waiversDate); }},
               {"tolerance_um", [&] { return json.number(tolerance); }},
               {"waivers", [&] { return json.array([&] { return readWaiver(json, out.waivers); }); }}});
    out.waiversTolerance = Length::fromMicrometres(tolerance);
    return isRead;
}

bool readAll(JsonReader & json, ReadReport & out)
{
    EntryReader entry(json);
    return readMembers(
               json, {{"format", [&] { return readFormat(json); }},
                      {"version", [&] { return readVersion(json); }},
                      {"job", [&] { return json.text(out.job); }},
                      {"step", [&] { return json.text(out.step); }},
                      {"date", [&] { return json.text(out.date); }, false},
                      {"levelUnit", [&] { return readUnit(json, out.levelUnit); }},
                      {"categories",
                       [&] { return json.array([&] { return readCategory(json, entry, out.categories); }); }},
                      {"notChecked",
                       [&] { return json.array([&] { return readNotChecked(json, out.notChecked); }); }},
                      {"waiving", [&] { return readWaiving(json, out); }, false}}) &&
           json.end();
}

// Empty if the report can be made of what was read.
QString makeReport(ReadReport & read, AnalysisReport & out)
{
    out.setJobStep(read.job, read.step);
    if (!out.setDate(read.date)) {
        return QObject::tr("\"%1\" is unknown here.").arg(QString::fromStdString(read.date));
    }
    out.setLevelUnit(read.levelUnit);
    std::map<std::string, std::vector<Analysis_Ranges_Record>> levels;
    for (ReadCategory & category : read.categories) {
        bool const isRepeated = out.find(category.table, category.number) != nullptr;
        out.addEntries(category.table, category.number, {});
        ReportCategory const * const added = out.find(category.table, category.number);
        if (added == nullptr || isRepeated) {
            return QObject::tr("The category %1 of the table \"%2\" is unknown or there twice.")
                .arg(QString::number(category.number), QString::fromStdString(category.table));
        }
        if (category.levels) {
            category.levels->name = added->name;
            levels[category.table].push_back(*category.levels);
        }
    }
    for (auto const & [table, records] : levels) {
        out.setLevels(table, records);
    }
    for (ReadCategory & category : read.categories) {
        out.addEntries(category.table, category.number, std::move(category.entries));
    }
    for (NotChecked & check : read.notChecked) {
        out.addNotChecked(std::move(check));
    }
    out.applyWaivers(std::move(read.waivers), read.waiversDate, read.waiversTolerance);
    for (ReadCategory const & category : read.categories) {
        std::vector<ReportEntry> const & entries = out.find(category.table, category.number)->entries;
        for (std::size_t i = 0; i < entries.size(); ++i) {
            if (category.verdicts[i] != Verdict{entries[i].severity, entries[i].waiver.has_value()}) {
                return QObject::tr(
                           "A severity or waiver in the category %1 of the table \"%2\" does not follow "
                           "from the levels and waivers.")
                    .arg(QString::number(category.number), QString::fromStdString(category.table));
            }
        }
    }
    return {};
}

} // namespace

Result parseReport(QByteArray const & bytes, AnalysisReport & out)
{
    JsonReader json(bytes);
    ReadReport read;
    if (!readAll(json, read)) {
        return {false, json.error()};
    }
    AnalysisReport report;
    if (QString const reason = makeReport(read, report); !reason.isEmpty()) {
        return {false, reason};
    }
    out = std::move(report);
    return {};
}

Result readReport(QString const & path, AnalysisReport & out)
{
    WholeFile::Content const content = WholeFile::read(path, {}, largestReport);
    Result const result = content.status == WholeFile::ReadStatus::Ok ? parseReport(content.bytes, out)
                                                                      : Result{false, content.reason};
    return result
               ? result
               : Result{false, QObject::tr("The report \"%1\" cannot be read: %2").arg(path, result.reason)};
}

} // namespace KVCAM::UIAPI::Ext
