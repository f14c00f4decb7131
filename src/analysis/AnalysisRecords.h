#pragma once

#include <kvcam/Records.h>

#include <array>
#include <string>
#include <vector>

/// \addtogroup results
/// The results of the engine's checks: colour levels, replies, results by unified item, and reports of them.
namespace KVCAM::UIAPI {

using KVCAM::API::check_info;
using KVCAM::API::check_reply;
using KVCAM::API::drill_check_item;
using KVCAM::API::layer_info;
using KVCAM::API::signal_check_result;
using KVCAM::API::signal_layers_checks_items;

/// One category of a range file with its three colour levels. The levels are kept exactly as read and have no
/// unit of their own; they may be non-finite.
struct Analysis_Ranges_Record
{
    std::string name;    ///< UTF-8
    double redLv = 0;    ///< "RedLv"
    double yellowLv = 0; ///< "YellowLv"
    double greenLv = 0;  ///< "GreenLv"
};

/// A check item that groups the results of several engine checks. Only the numbers that the library fills or
/// reads are named; any other number may be stored and queried.
enum unified_check_items : int
{
    UNIFIED_LINES = 4,              ///< signal item 46
    UNIFIED_CIRCUIT_TO_CIRCUIT = 5, ///< signal item 3
    UNIFIED_PADS = 6,               ///< signal item 45
    UNIFIED_SMD_TO_SMD = 7,         ///< signal item 12
    UNIFIED_HOLE_SUMMARY = 9,       ///< drill items 2 and 1
    UNIFIED_SLOTS = 10,             ///< set as a whole
    UNIFIED_ANNULAR_RINGS = 11,     ///< signal items 33, 31 and 36
    UNIFIED_HOLE_TO_HOLE = 12,      ///< signal items 14 and 15
    UNIFIED_HOLE_TO_LINE = 13,      ///< signal items 26 and 29
    UNIFIED_ROUT_TO_COPPER = 14,    ///< signal item 43
    UNIFIED_LINE_TO_LINE = 26,      ///< signal item 4
    UNIFIED_CLOSE_PTHS = 39,        ///< drill items 28 and 34
    UNIFIED_CLOSE_VIAS = 40         ///< drill items 29 and 35
};

/// The results of one unified item on one layer, in four groups: the engine's levels 0, 1 and 2 (group 3 is
/// then empty), or the four lists of a signal-layer check.
struct unified_check_result
{
    std::array<std::vector<check_info>, 4> groups; ///< 0 to 3
};

} // namespace KVCAM::UIAPI
