#pragma once

#include <kvcam/Records.h>

#include <array>
#include <functional>
#include <map>
#include <string>
#include <vector>

/// The checks of the default engine: measures a step of an open job, with its current deletions. The job
/// itself is never changed.
///
/// **What is measured.** Copper layers are the positive board layers of type signal, power_ground and mixed;
/// drill and rout layers are the positive board layers of those types. Pads, lines and arcs count if they are
/// positive, lie inside the step's profile, have a size, and carry neither `.nomenclature` nor `.string`.
/// Surfaces are not measured. Inside means a pad's place, or both ends and the middle of a line or arc;
/// without a profile everything is inside. A line or arc whose ends and middle are within half its width of
/// the profile is the outline, not a track. Step and repeat is not expanded.
///
/// The records by table and number, with their type and `points` (micrometres, rounded to the nearest):
/// - signal 46, lines: each line and arc of a copper layer; 1: both ends, width. Arcs count as lines, since
///   the layer's least track width is taken from this item.
/// - signal 45, pads: each pad of a copper layer; 5: place, narrower side, wider side
/// - signal 12, SMD to SMD: each pad with `.smd` and its nearest neighbour; 2: the nearest points, spacing
/// - signal 33, 31, 36, annular rings of vias, plated and non-plated holes: each hole on each copper layer it
///   passes through; 3: hole, its diameter, pad, its narrower side, ring, offset between the two places
/// - drill 0, 1, 2, summaries: each plated hole, non-plated hole, via; 5: place, diameter twice
/// - unified item 10, slots: each slot of a drill or rout layer; 1: both ends of its centre line, width
///
/// `value` is the width, narrower side, spacing, ring or diameter in mil, rounded down, never below 0. A
/// value less than a millionth of a mil short of the next mil counts as that mil, since an exact 8 mil can
/// come out of the conversions slightly low. Everything saturates. Records are in list (level) 0, except
/// slots, which are in list 3, the list that the board's summary counts. Lists ascend by the unrounded
/// measure, so a stable sort by the points keeps the smallest value first. The three kinds of ring are merged
/// into one list, so rings of a layer that agree to the micrometre all get the lowest of their values.
///
/// **Shapes.** Exact, including mirroring (left and right exchanged) followed by rotation: round, square and
/// rectangular symbols (all four corners, or none, rounded or cut), ovals, diamonds, octagons, hexagons and
/// triangles. All others use an outer shape for spacings and an inner shape for rings and widths, so that no
/// result is too large: an ellipse uses 32-sided polygons; a half oval the rectangle and the oval; a
/// rectangle with some corners rounded or cut the plain rectangle and the rectangle with all corners so;
/// thermals, butterflies and moires the enclosing rectangle, oval or circle; a symbol of the job's own the
/// rectangle enclosing its drawing. The last two have no inner shape. A symbol of the job's own that has no
/// drawing, or contains another such symbol, is not measured. The width of a line is its symbol's width
/// across the line's direction; the width of an arc is its symbol's narrower side.
///
/// **Spacing** is edge to edge, 0 where pads overlap. There is no distance limit for the nearest neighbour.
/// If several are equally near, one of them is taken. Each pair is reported once. Pads of the same shape in
/// the same place count as one pad.
///
/// **Rings.** A hole has the size drawn on the drill layer, whatever the size of its tool. Its kind comes
/// from its `.drill` attribute, else from the tool with its code, else from a tool of its size, else it is
/// plated. It passes through the copper layers between the two ends of its drill layer (through all if the
/// matrix does not name both). The ring is the least distance from the hole's edge to the pad's edge; of the
/// pads that cover the hole's centre, the one that leaves most counts; 0 where the hole breaks out. Other
/// copper around the pad is ignored. Not reported: a hole whose centre no pad covers (a missing pad: signal
/// categories 39 and 40), a pad of a non-plated hole that is drilled away completely, a pad without an inner
/// shape, a donut whose opening is not drilled away. Slots have no ring.
///
/// **Slots** are lines, arcs, and pads whose sides differ in length. Round pads and lines of zero length are
/// holes on a drill layer and are ignored on a rout layer. A rout element that joins another line or arc end
/// to end, a full circle, or anything along the profile is the rout path, not a slot.
///
/// **Negative.** A negative layer draws what is removed, so nothing is measured there. On a positive layer,
/// what negative features remove from others is ignored. Both are listed in `notChecked`.
namespace KVCAM::Embedded {

/// Receives the progress: `done` of `total`, which is constant during a run. Return false to cancel. It may
/// call the engine, but changes to anything already measured are ignored. It must not throw.
using CheckProgress = std::function<bool(int done, int total)>;

/// What was not measured, and why.
struct NotChecked
{
    std::string table;  ///< "signal" or "drill": the table of `item`, or the kind of layer
    int item = -1;      ///< -1: no particular item; the reason says what was ignored on the layer
    std::string layer;  ///< empty: every layer
    std::string reason; ///< an English sentence
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
    /// By drill layer; all of them.
    std::map<std::string, API::check_reply<API::drill_check_item, API::check_info>> drill;
    /// By unified item (only 10), then by drill and rout layer, all of them; four lists.
    std::map<int, std::map<std::string, std::array<std::vector<API::check_info>, 4>>> rest;
    /// What was ignored on single layers, and Rout to Copper without a rout layer or profile.
    std::vector<NotChecked> notChecked;
    /// A sentence on where the nets come from that the spacings are measured between.
    std::string nets;
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
