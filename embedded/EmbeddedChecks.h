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
/// drill and rout layers are the positive board layers of those types. Of their pads, lines and arcs
/// (surfaces are not measured) count those that add and do not erase, lie inside the step's profile, have a
/// size, and carry neither `.nomenclature` nor `.string`. Inside means a pad's place, or the two ends and the
/// middle of a line or arc; without a profile everything lies inside. A line or arc whose ends and middle are
/// within half its width of the profile is the outline and no track. Step and repeat is not expanded.
///
/// The records, by table and number, their type and their `points` (micrometres, rounded to the nearest):
/// - signal 46, lines: each line and arc of a copper layer; 1: both ends, width. Arcs count as lines, since a
///   layer's least track width is taken from here.
/// - signal 45, pads: each pad of a copper layer; 5: place, its narrower and its wider side
/// - signal 12, SMD to SMD: each pad with `.smd` and the one nearest to it; 2: the nearest points, spacing
/// - signal 33, 31, 36, annular rings of vias, plated and non-plated holes: each hole on each copper layer on
///   its way; 3: hole, its diameter, pad, its narrower side, ring, offset of the two places
/// - drill 0, 1, 2, summaries: each plated, each non-plated hole, each via; 5: place, diameter twice
/// - unified item 10, slots: each slot of a drill or rout layer; 1: both ends of its middle line, width
///
/// `value` is the width, narrower side, spacing, ring or diameter in mil, rounded down, never below 0; what
/// lacks less than a millionth of the next mil has reached it, since an exact 8 mil may come out of the
/// conversions a little below. Everything saturates. Every record stands in list (level) 0, but the slots
/// stand in list 3, the one that the board's summary counts. Lists ascend by what was measured before any
/// rounding, so a stable sort by the points keeps the smallest value first. The three kinds of ring are
/// sorted into one list, so those of a layer that agree to the micrometre all have the lowest value among
/// them.
///
/// **Shapes.** Exact: round, square and rectangular symbols (all four corners, or none, rounded or cut),
/// ovals, diamonds, octagons, hexagons and triangles, mirrored (left and right exchanged) and then turned.
/// Every other one is measured by an outer shape for spacings, so that none is reported larger than it is,
/// and by an inner one for rings and widths, for the same reason: an ellipse by polygons of 32 sides; a half
/// oval by the rectangle and the oval; a rectangle with some corners rounded or cut by the plain one and by
/// the one with all of them so; thermals, butterflies and moires by the rectangle, oval or circle about them;
/// a symbol of the job's own by the rectangle about its drawing. The last two have no inner shape. A symbol
/// of the job's own that has no drawing, or holds another such symbol, is not measured. The width of a line
/// is that of its symbol across the line's direction; of an arc, its symbol's narrower side.
///
/// **Spacing** is from edge to edge, 0 where pads overlap. The nearest neighbour is found however far it is;
/// of several equally near one is taken; each pair is reported once. Pads of one shape in one place are one
/// pad.
///
/// **Rings.** A hole is as large as the drill layer draws it, whatever size its tool has. Its kind is that of
/// its `.drill` attribute, else of the tool with its code, else of a tool of its size, else plated. It goes
/// through the copper layers whose rows lie between those of its layer's two ends (through all where the
/// matrix names no two). The ring is the least distance from the hole's edge to that of the pad, and of the
/// pads that cover the hole's centre that of the one that leaves most; 0 where the hole breaks out. Other
/// copper about the pad is not seen. Not reported: a hole whose centre no pad covers (a missing pad: signal
/// categories 39 and 40), a pad of a non-plated hole that the drill takes away whole, a pad without an inner
/// shape, a donut whose opening the drill does not take away. Slots have no ring.
///
/// **Slots** are lines, arcs and pads with sides of two lengths. Round pads and lines of no length are holes
/// on a drill layer and nothing on a rout layer. What joins another line or arc of a rout layer end to end, a
/// full circle, and what runs along the profile is the path of the rout and no slot.
///
/// **Negative.** A negative layer draws what is taken away, so nothing is measured there; what erasing
/// features take from others on a positive layer is not seen. Both stand in `notChecked`.
namespace KVCAM::Embedded {

/// Told how far the checks are: `done` of `total`, which stays the same throughout a run; false cancels.
/// It may call the engine, but a change of what has been measured already is not seen. It must not throw.
using CheckProgress = std::function<bool(int done, int total)>;

/// What was not measured and why, in a sentence.
struct NotChecked
{
    std::string table;  ///< "signal" or "drill": whose `item` it is, or what kind of layer
    int item = -1;      ///< -1: no single one; the reason tells what of the layer was not seen
    std::string layer;  ///< empty: every layer
    std::string reason; ///< an English sentence
};

/// What runChecks() measured.
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

/// Runs all checks. About linear in the number of features, however they are spread; only where the upright
/// boxes about many SMD pads overlap (long pads set aslant and close) does each cost more. False, with
/// lastError() set and `out` empty, when the job or step is not open, one of the files needed is damaged, or
/// `progress` cancelled.
KVCAM_API_EXPORT bool runChecks(std::string const & job, std::string const & step, CheckResults & out,
                                CheckProgress const & progress = {});

} // namespace KVCAM::Embedded
