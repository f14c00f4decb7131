#pragma once

#include "../units/Length.h"
#include "AnalysisRecords.h"
#include "Grade.h"

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Additions to the fixed interface. They are opt-in and change none of its results.
namespace KVCAM::UIAPI::Ext {

/// Number of entries by severity; index with static_cast<std::size_t>(Severity::Red).
using SeverityCounts = std::array<std::size_t, severityCount>;

/// The nets of one measurement's items, UTF-8; empty where there is no such item or its net is not known.
using EntryNets = std::array<std::string, 2>;

/// One measurement of a check.
struct ReportEntry
{
    std::string layer;              ///< name, UTF-8
    int level = 0;                  ///< the engine's level, or the number of the list or group
    int value = 0;                  ///< the engine's own value, in mil rounded down
    std::optional<Length> measured; ///< whole micrometres, see getMeasureValue(); none where kind and
                                    ///< number of points do not agree
    std::optional<KVCAM::API::point> position; ///< micrometres; the middle where two places were measured
    std::vector<KVCAM::API::point> places;     ///< micrometres; one, or one on each of two measured items
    EntryNets nets;                            ///< of the measured items, in the order of `places`
    Severity severity = Severity::None;        ///< by the levels of its category
    std::optional<std::size_t> waiver;         ///< what accepts it, in AnalysisReport::waivers()
};

/// Whether an entry is as bad as a severity or worse, and nobody has accepted it. Never for None.
/// \since 0.2
inline bool isViolation(ReportEntry const & entry, Severity from)
{
    return from != Severity::None && entry.severity >= from && !entry.waiver;
}

/// The measurements of one category.
struct ReportCategory
{
    std::string table; ///< of the category dictionary, "DrillRanges"; `unifiedTable` for unified items
    int number = 0;    ///< of the category in the table, or of the unified item
    std::string name;  ///< "Lines"; "#63" for a number not in the table
    std::optional<Analysis_Ranges_Record> levels; ///< as set by setLevels()
    SeverityCounts counts{};                      ///< of its entries that are not waived
    SeverityCounts waived{};                      ///< of its waived entries
    std::vector<ReportEntry> entries;             ///< by layer, level and the engine's order
};

/// What became of a waiver in a report.
enum class WaiverState : int
{
    Unmatched, ///< no violation is the one that it accepts
    Used,      ///< it accepts a violation
    Expired    ///< its last day has passed: it accepts nothing
};

/// By state, as reports write it.
inline constexpr std::array<char const *, 3> waiverStateNames = {"unmatched", "used", "expired"};

/// The name of a state; that of Unmatched for an invalid number.
constexpr char const * waiverStateName(WaiverState state)
{
    auto const row = static_cast<std::size_t>(state);
    return waiverStateNames[row < waiverStateNames.size() ? row : 0];
}

/// A violation that somebody has accepted.
struct Waiver
{
    std::string id;                             ///< of the violation, see violationId()
    std::string reason;                         ///< one sentence, UTF-8
    std::string author;                         ///< UTF-8
    std::string date;                           ///< when it was accepted, "2026-11-22"
    std::string expires;                        ///< the last day on which it counts; empty: for good
    WaiverState state = WaiverState::Unmatched; ///< set by AnalysisReport::applyWaivers(); in no file
};

/// A check that was not run.
struct NotChecked
{
    std::string table;  ///< as in ReportCategory
    int number = 0;     ///< as in ReportCategory
    std::string name;   ///< filled from the table if empty
    std::string reason; ///< one sentence, UTF-8
};

/// The table of results filed by unified item. Not in the category dictionary.
inline constexpr char const * unifiedTable = "UnifiedItems";

/// Tells the nets of a measurement by table, category, layer, level and place in the engine's list.
using NetLookup = std::function<EntryNets(std::string_view table, int number, std::string const & layer,
                                          int level, std::size_t index)>;

} // namespace KVCAM::UIAPI::Ext
