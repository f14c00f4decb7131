#include "analysis/AnalysisReport.h"

#include "analysis/CategoryDictionary.h"
#include "analysis/CategoryTables.h"
#include "analysis/CheckKinds.h"

#include <QDateTime>
#include <QRegularExpression>

#include <algorithm>
#include <functional>
#include <string_view>
#include <utility>

namespace KVCAM::UIAPI::Ext {
namespace {

constexpr int drillLevels = 3;

struct UnifiedName
{
    unified_check_items item;
    std::string_view name;
};

constexpr std::array<UnifiedName, 13> unifiedNames = {{
    {UNIFIED_LINES, "Lines"},
    {UNIFIED_CIRCUIT_TO_CIRCUIT, "Circuit to circuit"},
    {UNIFIED_PADS, "Pads"},
    {UNIFIED_SMD_TO_SMD, "SMD to SMD"},
    {UNIFIED_HOLE_SUMMARY, "Hole summary"},
    {UNIFIED_SLOTS, "Slots"},
    {UNIFIED_ANNULAR_RINGS, "Annular rings"},
    {UNIFIED_HOLE_TO_HOLE, "Hole to hole"},
    {UNIFIED_HOLE_TO_LINE, "Hole to line"},
    {UNIFIED_ROUT_TO_COPPER, "Rout to Copper"},
    {UNIFIED_LINE_TO_LINE, "Line to Line"},
    {UNIFIED_CLOSE_PTHS, "Close PTHs"},
    {UNIFIED_CLOSE_VIAS, "Close VIAs"},
}};

std::string_view unifiedName(int number)
{
    auto const found = std::find_if(unifiedNames.begin(), unifiedNames.end(),
                                    [&](UnifiedName const & entry) { return entry.item == number; });
    return found == unifiedNames.end() ? std::string_view() : found->name;
}

std::string nameOf(std::string_view table, int number)
{
    std::string_view const name =
        table == unifiedTable ? unifiedName(number) : builtInCategoryName(table, number);
    return name.empty() ? "#" + std::to_string(number) : std::string(name);
}

// In checking order: drill, then signal, then the rest. Other tables cannot be added.
int rankOf(std::string_view table)
{
    return table == Categories::drillRanges.name ? 0 : table == Categories::signalLayerRanges.name ? 1 : 2;
}

SeverityCounts sum(std::vector<ReportCategory> const & categories, SeverityCounts ReportCategory::*counts)
{
    SeverityCounts sum{};
    for (ReportCategory const & entry : categories) {
        std::transform(sum.begin(), sum.end(), (entry.*counts).begin(), sum.begin(), std::plus<>());
    }
    return sum;
}

} // namespace

void AnalysisReport::setJobStep(std::string const & job, std::string const & step)
{
    m_job = job;
    m_step = step;
}

bool AnalysisReport::setDate(std::string const & date)
{
    static QRegularExpression const form(R"(\A\d{4}-\d\d-\d\d(T\d\d:\d\d:\d\d(Z|[+-]\d\d:\d\d)?)?\z)");
    QString const text = QString::fromStdString(date);
    bool const isDate = form.match(text).hasMatch() && QDateTime::fromString(text, Qt::ISODate).isValid();
    if (isDate || date.empty()) {
        m_date = date;
    }
    return isDate || date.empty();
}

void AnalysisReport::setNetLookup(NetLookup lookup)
{
    m_nets = std::move(lookup);
}

void AnalysisReport::addDrill(
    std::map<std::string, check_reply<drill_check_item, check_info>> const & replies)
{
    for (auto const & [layer, reply] : replies) {
        for (Categories::Category const & known : Categories::drillRanges) {
            for (int level = 0; level < drillLevels; ++level) {
                auto const & list = reply.list(static_cast<drill_check_item>(known.number), level);
                if (!list.empty()) {
                    append(category(Categories::drillRanges.name, known.number), layer, level, list);
                }
            }
        }
    }
}

void AnalysisReport::addSignal(
    std::map<std::string, std::map<signal_layers_checks_items, signal_check_result>> const & replies)
{
    for (auto const & [layer, reply] : replies) {
        for (auto const & [item, result] : reply) {
            appendAll(category(Categories::signalLayerRanges.name, item), layer, result.lists);
        }
    }
}

void AnalysisReport::addUnified(
    std::map<unified_check_items, std::map<std::string, unified_check_result>> const & results)
{
    for (auto const & [item, layers] : results) {
        ReportCategory & target = category(unifiedTable, item);
        for (auto const & [layer, result] : layers) {
            appendAll(target, layer, result.groups);
        }
    }
}

void AnalysisReport::addEntries(std::string const & table, int number, std::vector<ReportEntry> entries)
{
    std::array<std::string_view, 3> const tables{Categories::drillRanges.name,
                                                 Categories::signalLayerRanges.name, unifiedTable};
    if (std::find(tables.begin(), tables.end(), table) == tables.end()) {
        return;
    }
    ReportCategory & target = category(table, number);
    for (ReportEntry & entry : entries) {
        target.entries.push_back(std::move(entry));
        gradeEntry(target, target.entries.back());
    }
}

void AnalysisReport::addNotChecked(NotChecked check)
{
    if (check.name.empty()) {
        check.name = nameOf(check.table, check.number);
    }
    m_notChecked.push_back(std::move(check));
}

void AnalysisReport::setLevels(std::string const & table, std::vector<Analysis_Ranges_Record> const & records)
{
    auto & levels = m_levels[table];
    levels.clear();
    for (Analysis_Ranges_Record const & record : records) {
        levels.try_emplace(record.name, record);
    }
    if (!m_waivers.empty()) { // those of the other tables too are to be matched anew
        gradeAll();
        return;
    }
    for (ReportCategory & entry : m_categories) {
        if (entry.table == table) {
            grade(entry);
        }
    }
}

void AnalysisReport::setLevelUnit(Unit unit)
{
    m_unit = unit;
    gradeAll();
}

ReportCategory const * AnalysisReport::find(std::string const & table, int number) const
{
    auto const found =
        std::find_if(m_categories.begin(), m_categories.end(), [&](ReportCategory const & entry) {
            return entry.number == number && entry.table == table;
        });
    return found == m_categories.end() ? nullptr : &*found;
}

SeverityCounts AnalysisReport::counts() const
{
    return sum(m_categories, &ReportCategory::counts);
}

SeverityCounts AnalysisReport::waivedCounts() const
{
    return sum(m_categories, &ReportCategory::waived);
}

ReportCategory & AnalysisReport::category(std::string_view table, int number)
{
    auto const position =
        std::lower_bound(m_categories.begin(), m_categories.end(), std::pair(rankOf(table), number),
                         [](ReportCategory const & entry, std::pair<int, int> const & wanted) {
                             return std::pair(rankOf(entry.table), entry.number) < wanted;
                         });
    if (position != m_categories.end() && position->table == table && position->number == number) {
        return *position;
    }
    ReportCategory made;
    made.table = table;
    made.number = number;
    made.name = nameOf(table, number);
    made.levels = levelsOf(made);
    return *m_categories.insert(position, std::move(made));
}

template <class Lists>
void AnalysisReport::appendAll(ReportCategory & category, std::string const & layer,
                               Lists const & lists) const
{
    for (std::size_t level = 0; level < lists.size(); ++level) {
        append(category, layer, static_cast<int>(level), lists[level]);
    }
}

void AnalysisReport::append(ReportCategory & category, std::string const & layer, int level,
                            std::vector<check_info> const & list) const
{
    for (std::size_t i = 0; i < list.size(); ++i) {
        check_info const & info = list[i];
        auto const micrometres = measuredValue(info);
        auto const measured =
            micrometres ? std::optional(Length::fromMicrometres(*micrometres)) : std::nullopt;
        ReportEntry entry{layer, level, info.value, measured, positionOf(info), placesOf(info), {}, {}, {}};
        if (m_nets) {
            entry.nets = m_nets(category.table, category.number, layer, level, i);
        }
        category.entries.push_back(std::move(entry));
        gradeEntry(category, category.entries.back());
    }
}

std::optional<Analysis_Ranges_Record> AnalysisReport::levelsOf(ReportCategory const & category) const
{
    if (auto const table = m_levels.find(category.table); table != m_levels.end()) {
        if (auto const record = table->second.find(category.name); record != table->second.end()) {
            return record->second;
        }
    }
    return std::nullopt;
}

// Entries are counted while being graded.
void AnalysisReport::gradeEntry(ReportCategory & category, ReportEntry & entry) const
{
    entry.severity = category.levels && entry.measured
                         ? gradeMeasured(*category.levels, *entry.measured, m_unit)
                         : Severity::None;
    entry.waiver.reset();
    ++category.counts[static_cast<std::size_t>(entry.severity)];
}

void AnalysisReport::grade(ReportCategory & category) const
{
    category.levels = levelsOf(category);
    category.counts = {};
    category.waived = {};
    for (ReportEntry & entry : category.entries) {
        gradeEntry(category, entry);
    }
}

void AnalysisReport::gradeAll()
{
    for (ReportCategory & category : m_categories) {
        grade(category);
    }
    matchWaivers();
}

std::optional<double> limitOf(ReportCategory const & category, ReportEntry const & entry)
{
    if (!category.levels) {
        return std::nullopt;
    }
    switch (entry.severity) {
    case Severity::Red:
        return category.levels->redLv;
    case Severity::Yellow:
        return category.levels->yellowLv;
    case Severity::Green:
        return category.levels->greenLv;
    case Severity::None:
        break;
    }
    return std::nullopt;
}

} // namespace KVCAM::UIAPI::Ext
