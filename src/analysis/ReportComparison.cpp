#include "analysis/ReportComparison.h"

#include "analysis/ReportFormats.h"
#include "analysis/ViolationMatch.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <string_view>
#include <tuple>
#include <utility>

namespace KVCAM::UIAPI::Ext {
namespace {

// A violation of a report.
struct Found
{
    ReportCategory const * category;
    ReportEntry const * entry;
};

struct Violations
{
    std::vector<Found> found;
    std::vector<MatchedViolation> matched; ///< one for each of `found`
};

Violations violationsOf(AnalysisReport const & report)
{
    Violations violations;
    for (ReportCategory const & category : report.categories()) {
        if (category.entries.size() == category.counts[static_cast<std::size_t>(Severity::None)]) {
            continue;
        }
        std::vector<int> const copies = Formats::copyNumbers(category);
        for (std::size_t i = 0; i < category.entries.size(); ++i) {
            ReportEntry const & entry = category.entries[i];
            if (entry.severity != Severity::None) {
                violations.found.push_back({&category, &entry});
                violations.matched.push_back({Formats::copyId(category, entry, copies[i]),
                                              violationName(category, entry), entry.measured});
            }
        }
    }
    return violations;
}

// Tells which checks the later report did not run and the earlier one did.
class Unchecked
{
public:
    Unchecked(AnalysisReport const & before, AnalysisReport const & after) : m_after(after)
    {
        std::set<std::tuple<std::string, int, std::string, std::string>> known;
        for (NotChecked const & check : before.notChecked()) {
            known.emplace(check.table, check.number, check.name, check.reason);
        }
        for (NotChecked const & check : after.notChecked()) {
            if (known.count({check.table, check.number, check.name, check.reason}) == 0) {
                m_checks.emplace(check.table, check.number, check.name);
            }
        }
    }

    bool contains(ReportCategory const & category, std::string const & layer) const
    {
        bool const hasCategory =
            category.table == "DrillRanges" || m_after.find(category.table, category.number) != nullptr;
        return !hasCategory || m_checks.count({category.table, category.number, category.name}) != 0 ||
               m_checks.count({category.table, category.number, category.name + ", " + layer}) != 0 ||
               m_checks.count({category.table, -1, layer}) != 0;
    }

private:
    AnalysisReport const & m_after;
    std::set<std::tuple<std::string, int, std::string>> m_checks;
};

// `category` is the later report's.
Change changeOf(ReportEntry const & before, ReportCategory const & category, ReportEntry const & after)
{
    if (before.severity != after.severity) {
        return before.severity < after.severity ? Change::Worse : Change::Better;
    }
    if (before.measured == after.measured || !category.levels) {
        return Change::Unchanged;
    }
    bool const isWorse = senseOf(*category.levels) == Sense::SmallerIsWorse
                             ? after.measured < before.measured
                             : before.measured < after.measured;
    return isWorse ? Change::Worse : Change::Better;
}

ReportChange described(Change change, Found const & found, MatchedViolation & violation)
{
    ReportChange out;
    out.change = change;
    out.table = found.category->table;
    out.number = found.category->number;
    out.name = found.category->name;
    out.layer = found.entry->layer;
    out.id = std::move(violation.id);
    out.places = found.entry->places;
    out.nets = found.entry->nets;
    out.waived = found.entry->waiver.has_value();
    return out;
}

void setBefore(ReportChange & change, ReportEntry const & entry)
{
    change.before = entry.measured;
    change.severityBefore = entry.severity;
}

void setAfter(ReportChange & change, ReportEntry const & entry)
{
    change.after = entry.measured;
    change.severityAfter = entry.severity;
}

void sortChanges(std::vector<ReportChange> & changes)
{
    auto const worst = [](ReportChange const & change) {
        return -static_cast<int>(std::max(change.severityBefore, change.severityAfter));
    };
    std::sort(changes.begin(), changes.end(), [&](ReportChange const & a, ReportChange const & b) {
        // The tables' names are in the order of a report's categories.
        return std::tuple(std::string_view(a.table), a.number, std::string_view(a.layer), a.change, worst(a),
                          std::string_view(a.id)) < std::tuple(std::string_view(b.table), b.number,
                                                               std::string_view(b.layer), b.change, worst(b),
                                                               std::string_view(b.id));
    });
}

// Equal, or both not a number.
bool isEqual(double a, double b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

bool isEqual(std::optional<Analysis_Ranges_Record> const & a, std::optional<Analysis_Ranges_Record> const & b)
{
    if (!a || !b) {
        return a.has_value() == b.has_value();
    }
    return isEqual(a->redLv, b->redLv) && isEqual(a->yellowLv, b->yellowLv) &&
           isEqual(a->greenLv, b->greenLv);
}

std::vector<std::string> changedLevels(AnalysisReport const & before, AnalysisReport const & after)
{
    std::vector<std::string> names;
    for (ReportCategory const & category : after.categories()) {
        ReportCategory const * const earlier = before.find(category.table, category.number);
        bool const isSame = before.levelUnit() == after.levelUnit() || !category.levels;
        if (earlier != nullptr && !(isSame && isEqual(earlier->levels, category.levels))) {
            names.push_back(category.table + ": " + category.name);
        }
    }
    return names;
}

ComparedReport summaryOf(AnalysisReport const & report)
{
    return {report.job(), report.step(), report.date(), report.counts(), report.waivedCounts()};
}

} // namespace

ReportComparison compareReports(AnalysisReport const & before, AnalysisReport const & after, Length tolerance)
{
    ReportComparison comparison;
    comparison.before = summaryOf(before);
    comparison.after = summaryOf(after);
    comparison.tolerance = tolerance;
    comparison.levels = changedLevels(before, after);

    Violations earlier = violationsOf(before);
    Violations later = violationsOf(after);
    auto const matches = matchViolations(earlier.matched, later.matched, tolerance);
    std::vector<ReportChange> & changes = comparison.changes;
    std::vector<bool> isFound(earlier.found.size());
    for (std::size_t i = 0; i < matches.size(); ++i) {
        Found const & found = later.found[i];
        changes.push_back(described(Change::New, found, later.matched[i]));
        setAfter(changes.back(), *found.entry);
        if (matches[i]) {
            ReportEntry const & entry = *earlier.found[*matches[i]].entry;
            changes.back().change = changeOf(entry, *found.category, *found.entry);
            setBefore(changes.back(), entry);
            isFound[*matches[i]] = true;
        }
    }
    Unchecked const unchecked(before, after);
    for (std::size_t i = 0; i < isFound.size(); ++i) {
        if (!isFound[i]) {
            Found const & found = earlier.found[i];
            bool const isUnchecked = unchecked.contains(*found.category, found.entry->layer);
            changes.push_back(
                described(isUnchecked ? Change::NotChecked : Change::Fixed, found, earlier.matched[i]));
            setBefore(changes.back(), *found.entry);
        }
    }
    sortChanges(changes);
    for (ReportChange const & change : changes) {
        ChangeCounts & counts = change.waived ? comparison.waived : comparison.counts;
        ++counts[static_cast<std::size_t>(change.change)];
    }
    return comparison;
}

} // namespace KVCAM::UIAPI::Ext
