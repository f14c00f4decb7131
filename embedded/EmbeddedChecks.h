#pragma once

#include <kvcam/Records.h>

#include <array>
#include <functional>
#include <map>
#include <string>
#include <vector>

/// The checks of the default engine: what it measures on a step of an opened job, with the deletions as they
/// stand. The job itself is never changed.
///
/// **What is measured.** Copper layers are the positive board layers of type signal, power_ground and mixed;
/// drill and rout layers are the positive board layers of those types. Of them count the features that add
/// (not those that erase), lie inside the step's profile, have a size, and carry neither `.nomenclature` nor
/// `.string`. Inside means a pad's place, or the two ends and the middle of a line or arc; without a profile
/// everything lies inside. A line or arc that runs along the profile, nearer than half its width, is the
/// outline and no track. Step and repeat is not expanded.
///
/// The records, by table and number, their type and their `points` (micrometres, rounded to the nearest):
/// - signal 46, lines: each line and arc of a copper layer; 1: both ends, width
/// - signal 45, pads: each pad of a copper layer; 5: place, its narrower and its wider side
/// - signal 12, SMD to SMD: each pad with `.smd` and the one nearest to it; 2: the nearest points, spacing
/// - signal 33, 31, 36, annular rings of vias, plated and non-plated holes: each hole on each copper layer
/// that
///   it goes through; 3: hole, its diameter, pad, its narrower side, ring, offset of the centres
/// - drill 0, 1, 2, summaries: each plated, each non-plated hole, each via; 5: place, diameter twice
/// - unified item 10, slots: each slot of a drill or rout layer; 1: both ends of its middle line, width
///
/// `value` is the width, smaller side, spacing, ring or diameter in mil, rounded down, never below 0; a size
/// that is a whole number of mil but for rounding errors of a millionth counts as whole. Everything
/// saturates. Every record stands in list (level) 0, but the slots stand in list 3, which is the one that the
/// board's summary counts. Lists ascend by what was measured, so a stable sort by the points keeps the
/// smallest value first. Where rings of the three kinds agree to the micrometre on a layer, all of them get
/// the lowest value of these, since the three lists are sorted into one.
///
/// Arcs count as lines, since the summary takes a layer's least track width from there.
///
/// **Shapes.** Exact: round, square and rectangular symbols (corners rounded or cut, all four of them),
/// ovals, diamonds, octagons, hexagons and triangles, turned and mirrored. Every other one is measured by an
/// outer shape, so that no spacing is reported larger than it is, and on an inner one, so that no ring is: an
/// ellipse by polygons of 32 sides about it and in it; a half oval and a rectangle with some corners rounded
/// or cut by the rectangle and by the same with all corners so; thermals, butterflies and moires by the
/// rectangle or circle about them. A symbol of the job's own is measured by the rectangle about its drawing;
/// one whose drawing is missing or holds such symbols itself is not measured. The width of a line that is
/// drawn with a symbol other than a round one is that of the symbol across the line's direction; of an arc,
/// the symbol's narrower side.
///
/// **Spacing** is edge to edge, 0 where pads overlap. The nearest neighbour is found however far it is; of
/// several equally near one is taken; each pair is reported once. Pads of one shape in one place are one pad.
///
/// **Rings.** A hole is as large as the drill layer draws it, whatever size its tool has. Its kind is that of
/// its `.drill` attribute, else of the tool with its code, else of a tool of its size, else plated. It goes
/// through the copper layers between the first and last of its layer by row (all of them when the matrix
/// names none). The ring is the least distance from the hole's edge to that of the pad, of the pad that
/// leaves most where several cover the hole's centre; 0 where the hole breaks out. Other copper about the pad
/// is not seen. Not reported: a hole whose centre no pad covers (a missing pad, which are signal categories
/// 39 and 40), a pad of a non-plated hole that the drill takes away whole, pads that are not solid (thermals,
/// butterflies, moires, the job's own; a donut counts where the drill takes its opening away). Slots have no
/// ring.
///
/// **Negative.** A negative layer draws what is taken away, so nothing is measured there; what erasing
/// features take from others on a positive layer is not seen. Both stand in `notChecked`.
namespace KVCAM::Embedded {

/// Told how far the checks are: `done` of `total`, which stays the same throughout a run; false cancels.
/// It may call the engine, but what it changes in layers already measured is not seen. It must not throw.
using CheckProgress = std::function<bool(int done, int total)>;

/// What was not measured and why, in a sentence.
struct NotChecked
{
    std::string table; ///< "signal" or "drill", whose `item` it is; "rest" for a unified item
    int item = -1;     ///< -1: every item of the table on that layer
    std::string layer; ///< empty: every layer
    std::string reason;
};

struct CheckResults
{
    /// By copper layer; each has every signal item above, empty where there is nothing to measure.
    std::map<std::string, std::map<API::signal_layers_checks_items, API::signal_check_result>> signal;
    /// By drill layer, each of them.
    std::map<std::string, API::check_reply<API::drill_check_item, API::check_info>> drill;
    /// By unified item (10 alone) and by drill and rout layer, each of them; four lists.
    std::map<int, std::map<std::string, std::array<std::vector<API::check_info>, 4>>> rest;
    /// What needs a net list or a rout outline, then what single layers leave out.
    std::vector<NotChecked> notChecked;
};

/// Runs all checks. About linear in the number of features. False, with lastError() set and `out` empty, when
/// the job or step is not open, one of the files needed is damaged, or `progress` cancelled.
KVCAM_API_EXPORT bool runChecks(std::string const & job, std::string const & step, CheckResults & out,
                                CheckProgress const & progress = {});

} // namespace KVCAM::Embedded
