#pragma once

#include <kvcam/Records.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <map>
#include <string>
#include <tuple>
#include <vector>

/// \addtogroup default_checks
/// The checks of the default engine: measures a step of an open job, with its current deletions. The job
/// itself is never changed. docs/Checks.md says what is measured, how and how exactly; in short:
///
/// - signal 46 and 45: the widths of tracks and pads; 12: spacings of SMD pads; 31, 33, 36: rings
/// - signal 3, 4, 14, 15, 26, 29: the spacing of each item to the nearest copper of another net; 43: to the
///   rout and the profile; drill 28, 29, 34, 35: between holes of a net and of different nets; up to a reach
/// - drill 0, 1, 2: the holes; unified 10: the slots
///
/// `points` are micrometres, rounded to the nearest. `value` is the measure in mil, rounded down, never below
/// 0. Records are in list (level) 0, except slots, which are in list 3, and ascend by the unrounded measure.
/// Where a shape is approximated, no result is too large.
namespace KVCAM::Embedded {

/// Receives the progress: `done` of `total`, which is constant during a run. Return false to cancel. It may
/// call the engine, but changes to anything already measured are ignored. It must not throw.
using CheckProgress = std::function<bool(int done, int total)>;

/// The drill items that runChecks() measures. A reply cannot tell an item that found nothing from one without
/// a check.
inline constexpr std::array checkedDrillItems{0, 1, 2, 3, 4, 28, 29, 34, 35};
/// The signal items that runChecks() measures.
inline constexpr std::array checkedSignalItems{3, 4, 12, 14, 15, 26, 29, 31, 33, 36, 43, 45, 46};

/// What was not measured, and why.
struct NotChecked
{
    std::string table;  ///< "signal" or "drill": the table of `item`, or the kind of layer
    int item = -1;      ///< -1: no particular item; the reason says what was ignored on the layer
    std::string layer;  ///< empty: every layer
    std::string reason; ///< an English sentence
};

/// The nets of the measured items, where the step's eda/data names them.
struct RecordNets
{
    /// By item of a record: the number of its name, or `unknown`.
    using Numbers = std::array<std::uint32_t, 2>;
    /// No such item, or one whose net has no name.
    static constexpr std::uint32_t unknown = std::numeric_limits<std::uint32_t>::max();

    std::vector<std::string> names; ///< as in the file
    /// By table ("signal" or "drill"), item and layer: for each record of list 0 the nets of its items, in
    /// the order of its points. Lists of which no net is known are left out.
    std::map<std::tuple<std::string, int, std::string>, std::vector<Numbers>> lists;

    /// The names for a record; empty where unknown, and for a record that there is not.
    std::array<std::string, 2> of(std::string const & table, int item, std::string const & layer,
                                  std::size_t index) const
    {
        auto const list = lists.find({table, item, layer});
        if (list == lists.end() || index >= list->second.size()) {
            return {};
        }
        auto const name = [this](std::uint32_t number) {
            return number < names.size() ? names[number] : std::string();
        };
        return {name(list->second[index][0]), name(list->second[index][1])};
    }
};

/// What a caller may choose.
struct CheckOptions
{
    /// Greater spacings of the net-based checks are not listed, in mil; less than 20 counts as 20. Meant for
    /// the largest level that they are graded by.
    double spacingReach = 20;
};

/// The results of runChecks().
struct CheckResults
{
    /// By copper layer. Each has every signal item above, empty if there is nothing to measure.
    std::map<std::string, std::map<API::signal_layers_checks_items, API::signal_check_result>> signal;
    /// By drill layer, all of them, and by the rout layers that have slots.
    std::map<std::string, API::check_reply<API::drill_check_item, API::check_info>> drill;
    /// By unified item (only 10), then by drill and rout layer, all of them; four lists.
    std::map<int, std::map<std::string, std::array<std::vector<API::check_info>, 4>>> rest;
    /// What was ignored on single layers, and Rout to Copper without a rout layer or profile.
    std::vector<NotChecked> notChecked;
    /// A sentence on where the nets come from that the spacings are measured between.
    std::string nets;
    /// Which nets the records are of.
    RecordNets recordNets;
};

/// Runs all checks. Roughly linear in the number of features, whatever their distribution; only SMD pads
/// whose bounding boxes overlap in large numbers (long pads, rotated and close together) cost more each.
/// Returns false, with lastError() set and `out` empty, if the job or step is not open, a file it needs is
/// damaged, or `progress` cancelled.
KVCAM_API_EXPORT bool runChecks(std::string const & job, std::string const & step, CheckResults & out,
                                CheckProgress const & progress = {});
/// The same with options.
KVCAM_API_EXPORT bool runChecks(std::string const & job, std::string const & step, CheckResults & out,
                                CheckProgress const & progress, CheckOptions const & options);

} // namespace KVCAM::Embedded
