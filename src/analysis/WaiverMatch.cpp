#include "analysis/AnalysisReport.h"
#include "analysis/ReportFormats.h"
#include "analysis/ViolationMatch.h"

#include <set>
#include <string_view>
#include <tuple>
#include <utility>

namespace KVCAM::UIAPI::Ext {
namespace {

using Check = std::tuple<std::string_view, int, std::string_view>; // table, number and layer

bool isExpired(Waiver const & waiver, std::string const & today)
{
    return !waiver.expires.empty() && waiver.expires < today;
}

} // namespace

void AnalysisReport::applyWaivers(std::vector<Waiver> waivers, std::string const & today, Length tolerance)
{
    m_waivers = std::move(waivers);
    m_today = today;
    m_waiverTolerance = tolerance;
    gradeAll();
}

// No entry is waived yet.
void AnalysisReport::matchWaivers()
{
    std::vector<MatchedViolation> accepted;
    std::vector<std::size_t> waiverOf; // by `accepted`
    for (std::size_t i = 0; i < m_waivers.size(); ++i) {
        Waiver & waiver = m_waivers[i];
        waiver.state = isExpired(waiver, m_today) ? WaiverState::Expired : WaiverState::Unmatched;
        auto name = waiver.state == WaiverState::Unmatched ? parseViolationId(waiver.id) : std::nullopt;
        if (name) {
            accepted.push_back({waiver.id, std::move(*name), {}});
            waiverOf.push_back(i);
        }
    }
    std::set<Check> checks;
    for (MatchedViolation const & each : accepted) {
        checks.emplace(each.name.table, each.name.number, each.name.layer);
    }
    std::vector<MatchedViolation> violations;
    std::vector<std::pair<ReportCategory *, ReportEntry *>> entries; // by `violations`
    for (ReportCategory & category : m_categories) {
        auto const first = checks.lower_bound({category.table, category.number, {}});
        if (first == checks.end() || std::get<0>(*first) != category.table ||
            std::get<1>(*first) != category.number) {
            continue;
        }
        std::vector<int> const copies = Formats::copyNumbers(category);
        for (std::size_t i = 0; i < category.entries.size(); ++i) {
            ReportEntry & entry = category.entries[i];
            ViolationName name = violationName(category, entry);
            if (entry.severity != Severity::None &&
                checks.count({name.table, name.number, name.layer}) != 0) {
                violations.push_back({Formats::copyId(category, entry, copies[i]), std::move(name), {}});
                entries.emplace_back(&category, &entry);
            }
        }
    }
    auto const matches = matchViolations(accepted, violations, m_waiverTolerance);
    for (std::size_t i = 0; i < matches.size(); ++i) {
        if (matches[i]) {
            auto const [category, entry] = entries[i];
            auto const severity = static_cast<std::size_t>(entry->severity);
            entry->waiver = waiverOf[*matches[i]];
            m_waivers[*entry->waiver].state = WaiverState::Used;
            --category->counts[severity];
            ++category->waived[severity];
        }
    }
}

} // namespace KVCAM::UIAPI::Ext
