#include "checks/AnalysisRun.h"

#include "checks/Levels.h"

#include <QDate>
#include <QDateTime>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <utility>

namespace Workbench {

using namespace KVCAM::UIAPI;

namespace {

constexpr std::array levelTables{drillTable, signalTable, Ext::unifiedTable};

using RestResult = std::map<unified_check_items, std::map<std::string, unified_check_result>>;

RestResult unifiedItems(decltype(KVCAM::Embedded::CheckResults::rest) const & rest)
{
    RestResult items;
    for (auto const & [item, layers] : rest) {
        auto & target = items[static_cast<unified_check_items>(item)];
        for (auto const & [layer, lists] : layers) {
            target[layer].groups = lists;
        }
    }
    return items;
}

// The categories that are measured between nets up to the largest level.
constexpr std::array signalSpacings{3, 4, 14, 15, 26, 29, 43};
constexpr std::array drillSpacings{28, 29, 34, 35};

// In mil; 0 without levels.
double largestSpacingLevel()
{
    double largest = 0;
    auto const add = [&largest](char const * table, auto const & numbers) {
        std::vector<Analysis_Ranges_Record> records;
        getRanges(table, records);
        for (Analysis_Ranges_Record const & record : records) {
            bool const isSpacing = std::any_of(numbers.begin(), numbers.end(), [&](int number) {
                return getRangesName(table, number) == record.name;
            });
            for (Level const & level : allLevels) {
                largest = isSpacing ? std::fmax(largest, record.*level.value) : largest;
            }
        }
    };
    add(signalTable, signalSpacings);
    add(drillTable, drillSpacings);
    return largest;
}

// Equal, or both not a number.
bool isSame(double a, double b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

bool isSame(Analysis_Ranges_Record const & a, Analysis_Ranges_Record const & b)
{
    return a.name == b.name && std::all_of(allLevels.begin(), allLevels.end(), [&](Level const & level) {
               return isSame(a.*level.value, b.*level.value);
           });
}

int operationsOn(std::string const & job, std::string const & step)
{
    return Ext::undoCount(QString::fromStdString(job), QString::fromStdString(step));
}

} // namespace

AnalysisRun::AnalysisRun(Session const & session) : m_session(session)
{
    for (char const * table : levelTables) {
        getRanges(table, m_saved[table]);
        loadLevels(table);
    }
}

AnalysisRun::Outcome AnalysisRun::run(std::string const & step,
                                      KVCAM::Embedded::CheckProgress const & progress)
{
    bool isCancelled = false;
    KVCAM::Embedded::CheckResults results;
    auto const report = [&](int done, int total) {
        isCancelled = progress && !progress(done, total);
        return !isCancelled;
    };
    KVCAM::Embedded::CheckOptions const options{largestSpacingLevel()};
    bool const isDone = KVCAM::Embedded::runChecks(m_session.job(), step, results, report, options);
    m_error.clear();
    if (isDone) {
        m_freshness.measured(step, operationsOn(m_session.job(), step));
        m_reach = std::max(options.spacingReach, KVCAM::Embedded::CheckOptions().spacingReach);
        file(step, results);
        return Outcome::Done;
    }
    if (isCancelled) {
        return Outcome::Cancelled;
    }
    m_error = QString::fromStdString(KVCAM::Embedded::lastError()).simplified();
    return Outcome::Failed;
}

AnalysisRun::State AnalysisRun::state() const
{
    if (m_freshness.isChanged()) {
        return State::Changed;
    }
    return m_hasResult && largestSpacingLevel() > m_reach ? State::TooShort : State::Current;
}

void AnalysisRun::noteOperations()
{
    if (m_hasResult) {
        m_freshness.seen(m_report.step(), operationsOn(m_session.job(), m_report.step()));
    }
}

void AnalysisRun::file(std::string const & step, KVCAM::Embedded::CheckResults & results)
{
    std::vector<layer_info> layers;
    m_copper.clear();
    for (Session::Layer const & layer : m_session.layers()) {
        layers.push_back(layer.info);
        if (results.signal.count(layer.info.name) != 0) {
            m_copper.push_back(layer.info.name);
        }
    }
    RestResult rest = unifiedItems(results.rest);

    Unified_AnalysisResult & unified = *Unified_AnalysisResult::instance();
    unified.setJobStep(m_session.job(), step);
    unified.setLayerInfo(std::move(layers));
    unified.setDrillCheckResult(results.drill);
    unified.setSignalLayerCheckResult(results.signal);
    unified.setRestResult(rest);

    m_report = {};
    m_report.setJobStep(m_session.job(), step);
    m_report.setDate(QDateTime::currentDateTimeUtc().toString(Qt::ISODate).toStdString());
    for (char const * table : levelTables) {
        loadLevels(table);
    }
    m_report.setNetLookup([&nets = results.recordNets](std::string_view table, int number,
                                                       std::string const & layer, int level,
                                                       std::size_t index) {
        bool const isListed = level == 0 && (table == drillTable || table == signalTable);
        return isListed ? nets.of(table == drillTable ? "drill" : "signal", number, layer, index)
                        : Ext::EntryNets{};
    });
    m_report.addDrill(results.drill);
    m_report.addSignal(results.signal);
    rest.erase(UNIFIED_SLOTS); // without levels; the same slots are among the drill items, which have some
    m_report.addUnified(rest);
    m_report.setNetLookup({}); // the results end before the report
    m_report.addNotChecked({signalTable, -1, "Nets", results.nets});
    for (KVCAM::Embedded::NotChecked const & entry : results.notChecked) {
        noteUnchecked(entry);
    }
    noteCategoriesWithoutCheck();
    applyWaivers();
    m_hasResult = true;
}

void AnalysisRun::setWaivers(std::vector<Ext::Waiver> waivers)
{
    m_waivers = std::move(waivers);
    if (m_hasResult) {
        applyWaivers();
    }
}

// Read again: somebody else may have added one.
Ext::Result AnalysisRun::waive(Ext::Waiver const & waiver, QString const & path)
{
    std::vector<Ext::Waiver> waivers;
    if (QFileInfo::exists(path)) {
        if (Ext::Result read = Ext::readWaivers(path, waivers); !read.ok) {
            return read;
        }
    }
    waivers.push_back(waiver);
    Ext::Result written = Ext::writeWaivers(waivers, path);
    if (written.ok) {
        setWaivers(std::move(waivers));
    }
    return written;
}

void AnalysisRun::applyWaivers()
{
    m_report.applyWaivers(m_waivers, QDate::currentDate().toString(Qt::ISODate).toStdString());
}

void AnalysisRun::noteUnchecked(KVCAM::Embedded::NotChecked const & entry)
{
    std::string const table = entry.table == "drill"    ? drillTable
                              : entry.table == "signal" ? signalTable
                                                        : Ext::unifiedTable;
    std::string name; // empty for a note on all layers: the report names it
    if (entry.item < 0) {
        name = entry.layer;
    } else if (!entry.layer.empty()) {
        name = getRangesName(table, entry.item) + ", " + entry.layer;
    }
    m_report.addNotChecked({table, entry.item, name, entry.reason});
}

// In one entry for each table: there are many of them.
void AnalysisRun::noteCategoriesWithoutCheck()
{
    std::set<std::pair<std::string, std::string>> known; // by table and name
    for (int const item : KVCAM::Embedded::checkedDrillItems) {
        known.emplace(drillTable, getRangesName(drillTable, item));
    }
    for (int const item : KVCAM::Embedded::checkedSignalItems) {
        known.emplace(signalTable, getRangesName(signalTable, item));
    }
    for (Ext::ReportCategory const & category : m_report.categories()) {
        known.emplace(category.table, category.name);
    }
    for (Ext::NotChecked const & entry : m_report.notChecked()) {
        known.emplace(entry.table, entry.name);
    }
    for (Ext::RangeSource const & file : Ext::loadedRangeFiles()) {
        Records records;
        getRanges(file.name, records);
        std::string names;
        for (Analysis_Ranges_Record const & record : records) {
            if (known.emplace(file.name, record.name).second) {
                names += (names.empty() ? "" : ", ") + record.name;
            }
        }
        if (!names.empty()) {
            m_report.addNotChecked({file.name, -1, file.name, "The engine has no check for: " + names + '.'});
        }
    }
}

void AnalysisRun::loadLevels(std::string const & table)
{
    Records records;
    getRanges(table, records);
    m_report.setLevels(table, records);
}

Ext::TrackWidths AnalysisRun::trackWidths() const
{
    return Ext::trackWidths(m_report, m_copper);
}

bool AnalysisRun::hasLevels() const
{
    auto const & categories = m_report.categories();
    return std::any_of(categories.begin(), categories.end(),
                       [](Ext::ReportCategory const & category) { return category.levels.has_value(); });
}

void AnalysisRun::changeLevel(std::string const & table, std::string const & category, char const * level,
                              double mil)
{
    changeRangesValue(table, category, level, mil);
    loadLevels(table);
}

bool AnalysisRun::isUnsaved(std::string const & table) const
{
    auto const saved = m_saved.find(table);
    if (saved == m_saved.end()) {
        return false;
    }
    Records now;
    getRanges(table, now);
    return !std::equal(now.begin(), now.end(), saved->second.begin(), saved->second.end(),
                       [](auto const & a, auto const & b) { return isSame(a, b); });
}

Ext::Result AnalysisRun::saveLevels(std::string const & table)
{
    Ext::Result result = Ext::saveRanges(table);
    if (result.ok) {
        getRanges(table, m_saved[table]);
    }
    return result;
}

} // namespace Workbench
