#pragma once

#include "checks/CheckContext.h"
#include "checks/DrillChecks.h"
#include "checks/ItemShapes.h"

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace KVCAM::Embedded {

inline constexpr std::uint32_t nothing = std::numeric_limits<std::uint32_t>::max();

/// What an item of a copper layer is, as bits.
enum CopperKind : std::uint8_t
{
    copperTrack = 1, ///< a line or arc that is not text
    copperPth = 2,   ///< the wall of a plated hole, or a pad around its centre
    copperVia = 4,   ///< the same of a via
    copperPad = 8,   ///< a pad that is not text
    copperOther = 16,
    anyCopper = 31
};

/// A feature of a copper layer, or the wall of a plated hole on this layer.
struct CopperItem
{
    std::uint32_t feature = nothing; ///< of a wall: nothing
    std::uint32_t hole = nothing;    ///< of a wall
    std::uint32_t net = nothing;
    std::uint32_t owner = nothing; ///< of a wall: the pad of its net around the hole's centre
    std::uint32_t wall = nothing;  ///< of such a pad: its latest wall; of a wall: the previous one
    std::uint8_t kinds = copperOther;
};

/// What spacings are measured between on a copper layer: by item, the area and the rest.
struct CopperLayer
{
    std::string name;
    int row = 0;
    ItemShapes shapes;
    std::vector<CopperItem> items;
};

/// A hole or slot with a conducting wall.
struct PlatedHole
{
    std::uint32_t layer = 0; ///< of PlatedHoles::layers
    std::uint32_t feature = 0;
    std::uint32_t net = nothing;
    bool via = false;
    int firstRow = 0;
    int lastRow = 0;
    API::point place; ///< the middle of a round hole, the start of a slot
};

struct PlatedHoles
{
    std::vector<API::layer_info> layers;
    ItemShapes shapes;
    std::vector<PlatedHole> list; ///< by item
};

/// The plated holes and slots of the drill and rout layers.
PlatedHoles collectHoles(CheckContext & context, std::vector<API::layer_info> const & layers);

/// The copper of a layer that is on the board or touches its profile: features that add, whatever they are,
/// but not the lines of the outline; and the walls of the holes that pass through.
CopperLayer collectCopper(CheckContext & context, API::layer_info const & layer, PlatedHoles const & holes);

/// The paths of the rout layers without the plated ones, and the profile.
ItemShapes collectRout(CheckContext & context, std::vector<API::layer_info> const & layers);

} // namespace KVCAM::Embedded
