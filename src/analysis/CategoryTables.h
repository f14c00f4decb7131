#pragma once

#include <array>
#include <cstddef>
#include <string_view>

/// The result categories of the analysis actions: the engine's numbers and their names. The names are fixed
/// vocabulary, odd spellings and blanks included. Every table is in ascending order of number.
namespace KVCAM::UIAPI::Categories {

struct Category
{
    int number;
    std::string_view name;
};

/// One table under its name in the dictionary, which is usually also the name of a range file.
struct Table
{
    template <std::size_t Count>
    constexpr Table(std::string_view tableName, std::array<Category, Count> const & rows)
        : name(tableName), first(rows.data()), count(Count)
    {}

    std::string_view name;
    Category const * first;
    std::size_t count;

    constexpr Category const * begin() const { return first; }
    constexpr Category const * end() const { return first + count; }
};

inline constexpr std::array<Category, 38> drillRangesRows = {{
    {0, "PTH Summary"},
    {1, "NPTH Summary"},
    {2, "Via Summary"},
    {3, "Plated Slot Summary"},
    {4, "Non Plated Slot Summary"},
    {5, "2nd Drilled Holes"},
    {6, "2nd Drilled PTH Holes"},
    {7, "Tooling Holes"},
    {8, "Mounting Holes"},
    {9, "Duplicate Holes"},
    {10, "Touching Holes"},
    {11, "Close Holes"},
    {12, "Missing Holes"},
    {13, "Extra Holes"},
    {14, "Short_3"},
    {15, "Short_4"},
    {16, "Short_5"},
    {17, "Short_6"},
    {18, "Short_7"},
    {19, "Short_8"},
    {20, "Short_9"},
    {21, "Short_10_up"},
    {22, "NPTH to Rout"},
    {23, "Non Standard Symbol"},
    {24, "Non Standard Feature"},
    {25, "Canned Text"},
    {26, "PTH slot to Rout"},
    {27, "NPTH slot to Rout"},
    {28, "Same Net Close PTHs"},
    {29, "Different Net Close PTHs"},
    {30, "Close NPTHs"},
    {31, "Close PTH2NPTH (isolate)"},
    {32, "Close PTH2NPTH (conn)"},
    {33, "Close PTH2NPTH"},
    {34, "Same Net Close VIAs"},
    {35, "Different Net Close VIAs"},
    {36, "Same Net Close VIA2PTH"},
    {37, "Different Net Close VIA2PTH"},
}};
inline constexpr Table drillRanges{"DrillRanges", drillRangesRows};

inline constexpr std::array<Category, 14> boardDrillRangesRows = {{
    {0, "Via to Via"},
    {1, "Via to PTH"},
    {2, "Via to NPTH"},
    {3, "Via to Rout"},
    {4, "PTH to PTH"},
    {5, "PTH to NPTH"},
    {6, "PTH to Rout"},
    {7, "NPTH to NPTH"},
    {8, "NPTH to Rout"},
    {9, "Laser to Laser"},
    {10, "Laser to Via"},
    {11, "Laser to PTH"},
    {12, "Laser to NPTH"},
    {13, "Laser to Rout"},
}};
inline constexpr Table boardDrillRanges{"BoardDrillRanges", boardDrillRangesRows};

inline constexpr std::array<Category, 86> solderMaskRangesRows = {{
    {0, "PTH annular Ring"},
    {1, "NPTH annular Ring"},
    {2, "Via annular Ring"},
    {3, "SMD annular Ring"},
    {4, "Fiducial To SM"},
    {5, "Pad annular Ring"},
    {6, "VIA Pad annular Ring"},
    {7, "PTH Pad annular Ring"},
    {8, "NPTH Pad annular Ring"},
    {9, "Undrilled Pad annular Ring"},
    {10, "Fully Exposed Line annular Ring"},
    {11, "Partial Exposed Line annular Ring"},
    {12, "SMD Pad Gasket"},
    {13, "Undrilled Pad Gasket"},
    {14, "PTH Pad Gasket"},
    {15, "NPTH Pad Gasket"},
    {16, "NPTH Hole Gasket"},
    {17, "VIA Pad Gasket"},
    {18, "Undrilled Pad and Clearance Same Size"},
    {19, "SMD Pad and Clearance Same Size"},
    {20, "PTH Pad and Clearance Same Size"},
    {21, "NPTH Pad and Clearance Same Size"},
    {22, "NPTH Hole and Clearance Same Size"},
    {23, "VIA Pad and Clearance Same Size"},
    {24, "NPTH touches mask"},
    {25, "Coverage"},
    {26, "Same Net Coverage"},
    {27, "Clearance Cover Several Nets"},
    {28, "AR Larger than Coverage"},
    {29, "Rout spacing"},
    {30, "Missing Rout Clearance"},
    {31, "No bridge"},
    {32, "No bridge (Same Net)"},
    {33, "No Bridge (SMD Pads)"},
    {34, "SMDs Clearance Bridge"},
    {35, "SMD to Pad Clearance Bridge"},
    {36, "Pad to Pad Clearance Bridge"},
    {37, "Pad to Pad Clearance Bridge (Same Net)"},
    {38, "SM slivers"},
    {39, "SM local spacing"},
    {40, "Pad to Pad Spacing"},
    {41, "Pad to Pad Spacing(Same Net)"},
    {42, "Pad to Non-Pad Spacing"},
    {43, "Non-Pad to Non-Pad Spacing"},
    {44, "Fully Exposed Tear Drop Pad"},
    {45, "Missing SMD clearance"},
    {46, "Missing Undrilled Pad clearance"},
    {47, "Missing PTH clearance"},
    {48, "Missing VIA clearance"},
    {49, "Covered VIA to SM"},
    {50, "Missing NPTH clearance"},
    {51, "SMD Partial Clearance"},
    {52, "Undrilled Pad Partial Clearance"},
    {53, "Net Too Large"},
    {54, "Fully Exposed Line"},
    {55, "Partial Clearance on VIA drilled pad"},
    {56, "Partial Clearance on NPTH drilled pad"},
    {57, "Partial Clearance on PTH drilled pad"},
    {58, "Partial SMD Clearance annular Ring"},
    {59, "Partial SMD Clearance gasket"},
    {60, "Partial Undrilled Pad Clearance annular Ring"},
    {61, "Partial Undrilled Pad Clearance gasket"},
    {62, "Via to SMD Clearance"},
    {63, "PTH to SMD Clearance"},
    {64, "NPTH to SMD Clearance"},
    {65, "Ignored Net"},
    {66, "Clearance to Clearance Connection"},
    {67, "Feature too small to check"},
    {68, "** Not in Use **"},
    {69, "BGA Annular Ring"},
    {70, "Coverage to line"},
    {71, "Coverage to Pad"},
    {72, "Coverage to Surface"},
    {73, "BGA Pad Gasket"},
    {74, "BGA Pad and Clearance Same Size"},
    {75, "BGAs Clearance Bridge"},
    {76, "BGA to Pad Clearance Bridge"},
    {77, "BGA Partial Clearance"},
    {78, "Missing BGA clearance"},
    {79, "Partial BGA Clearance annular Ring"},
    {80, "Partial BGA Clearance gasket"},
    {81, "Via to BGA Clearance"},
    {82, "PTH to BGA Clearance"},
    {83, "NPTH to BGA Clearance"},
    {84, "No Bridge (BGA Pads)"},
    {85, "SM local spacing"},
}};
inline constexpr Table solderMaskRanges{"SolderMaskRanges", solderMaskRangesRows};

inline constexpr std::array<Category, 82> signalLayerRangesRows = {{
    {0, "Pad to pad"},
    {1, "Pad to circuit"},
    {2, "SMD to circuit"},
    {3, "Circuit to circuit"},
    {4, "Line to Line"},
    {5, "Circuit to Line"},
    {6, "Text to text"},
    {7, "Spacing length"},
    {8, "Same Net Spacing"},
    {9, "CAD Self Spacing"},
    {10, "CAD Short"},
    {11, "ToePrint to ToePrint"},
    {12, "SMD to SMD"},
    {13, "SMD to Pad"},
    {14, "Via to Via"},
    {15, "PTH to PTH"},
    {16, "Exposed to Exposed"},
    {17, "Covered to Covered"},
    {18, "Exposed to Covered"},
    {19, "Exposed to Exposed(Same net)"},
    {20, "Covered to Covered(Same net)"},
    {21, "Exposed to Covered(Same net)"},
    {22, "Exposed to Fully Covered"},
    {23, "NPTH to pad"},
    {24, "NPTH to circuit"},
    {25, "PTH to Copper"},
    {26, "PTH to Line"},
    {27, "PTH to Pad"},
    {28, "VIA to Copper"},
    {29, "VIA to Line"},
    {30, "VIA to Pad"},
    {31, "PTH Annular ring"},
    {32, "PTH (Comp) Annular ring"},
    {33, "VIA Annular ring"},
    {34, "Laser Via Annular ring"},
    {35, "Photo Via Annular ring"},
    {36, "NPTH Annular ring"},
    {37, "PTH Registration"},
    {38, "NPTH Registration"},
    {39, "Missing Pad for VIA"},
    {40, "Missing Pad for PTH"},
    {41, "Missing Cu for VIA"},
    {42, "NPTH touches Copper"},
    {43, "Rout to Copper"},
    {44, "Missing Cu for Plated Rout"},
    {45, "Pads"},
    {46, "Lines"},
    {47, "Non standard rotated lines"},
    {48, "Shaved Lines"},
    {49, "Inconsistent Line Width"},
    {50, "Arcs"},
    {51, "Shaved Arcs"},
    {52, "Inconsistent Arc Width"},
    {53, "Line Neckdown"},
    {54, "Text"},
    {55, "Text Fields"},
    {56, "Slivers"},
    {57, "Local Spacing"},
    {58, "Stubs"},
    {59, "SMD Pitch"},
    {60, "BGA Pitch"},
    {61, "Zero Width Or Too Thin Features"},
    {62, "SMD Pads"},
    {64, "Shaved SMD"},
    {65, "Shaved BGA"},
    {66, "SMD Packages"},
    {67, "Conductor width"},
    {68, "Plated Rout Annular Ring"},
    {69, "Incoming Trace to Hole"},
    {70, "Net Too Large"},
    {71, "Ignored Net"},
    {72, "Pad to Pad Connection"},
    {73, "Pad to Cu Connection"},
    {74, "Pad to Line Connection"},
    {75, "Feature too small to check"},
    {76, "BGA to circuit(spacing)"},
    {77, "Feature to feature(spacing)"},
    {78, "BGA to BGA(spacing)"},
    {79, "BGA to Pad(spacing)"},
    {80, "Pad to line(spacing)"},
    {81, "Pad to surface(spacing)"},
    {82, "VIA to Copper(Same net)"},
}};
inline constexpr Table signalLayerRanges{"SignalLayerRanges", signalLayerRangesRows};

inline constexpr std::array<Category, 11> surfaceAnalyzerRangesRows = {{
    {0, "Self-intersection in surface"},
    {1, "Self-intersection in symbol"},
    {2, "Problematic surface"},
    {3, "Wrong nesting for island"},
    {4, "Wrong nesting for hole"},
    {5, "Small Polygon"},
    {6, "Small Polygon in symbol"},
    {7, "Fold"},
    {8, "Fold in symbol"},
    {9, "Small edge in surface"},
    {10, "Small edge in symbol"},
}};
inline constexpr Table surfaceAnalyzerRanges{"SurfaceAnalyzerRanges", surfaceAnalyzerRangesRows};

inline constexpr std::array<Category, 27> silkScreenRangesRows = {{
    {0, "SM Clearance"},
    {1, "SMD Clearance"},
    {2, "PTH pads Clearance"},
    {3, "Via pads Clearance"},
    {4, "NPTH pads Clearance"},
    {5, "Undrilled pads Clearance"},
    {6, "NPTH clearance"},
    {7, "PTH clearance"},
    {8, "Via clearance"},
    {9, "Rout clearance"},
    {10, "Line width"},
    {11, "Arc width"},
    {12, "Pad width"},
    {13, "Surface width"},
    {14, "Zero Line width"},
    {15, "Shaved Line"},
    {16, "Shaved Arc"},
    {17, "Shaved Pad"},
    {18, "Shaved Surface"},
    {19, "Inconsistent Line Width"},
    {20, "Inconsistent Arc Width"},
    {21, "Inconsistent Surface Width"},
    {22, "Text width"},
    {23, "Text height"},
    {24, "SS to SS spacing"},
    {25, "SS Over Text"},
    {26, "SS Over Channel"},
}};
inline constexpr Table silkScreenRanges{"SilkScreenRanges", silkScreenRangesRows};

inline constexpr std::array<Category, 31> prePareRangesRows = {{
    {0, "Org step check"},
    {1, "Org solder paste top layer check"},
    {2, "Org silk screen top layer check"},
    {3, "Org solder mask top layer check"},
    {4, "Org signal top layer check"},
    {5, "Org signal layers check"},
    {6, "Org signal bot layer check"},
    {7, "Org solder mask bottom layer check"},
    {8, "Org silk screen bottom layer check"},
    {9, "Org solder paste bottom layer check"},
    {10, "Org drill layers check"},
    {11, "Org rout layer check"},
    {12, "Org zero point check"},
    {13, "Net step check"},
    {14, "Net outerline layer check"},
    {15, "Net profile check"},
    {16, "Net clip outerline check"},
    {17, "Net clip outside check"},
    {18, "Prepare smd pad sold check"},
    {19, "Prepare step check"},
    {20, "Prepare line2surface check"},
    {21, "Prepare signal layer negative check"},
    {22, "Prepare signal layer attribute check"},
    {23, "Prepare drill layer negative check"},
    {24, "Prepare drill layer attribute check"},
    {25, "Prepare solder mask layer negative check"},
    {26, "Prepare solder mask feature check"},
    {27, "Prepare solder mask sold check"},
    {28, "Prepare outer layer drillpad check"},
    {29, "Prepare board layer symbol size check"},
    {30, "Prepare step drill pad poisition check"},
}};
inline constexpr Table prePareRanges{"PrePareRanges", prePareRangesRows};

inline constexpr std::array<Category, 19> solderMaskOptRangesRows = {{
    {0, "No Violations"},
    {1, "Violations (Optimal)"},
    {2, "Opt.Cover Only"},
    {3, "Opt.Clear Only"},
    {4, "Violations (Minimal)"},
    {5, "Gasket Removed"},
    {6, "Bridges (All)"},
    {7, "Bridges (Violations)"},
    {8, "Bridges (Positive)"},
    {9, "Bridges (Net Intersected)"},
    {10, "Cannot Bridge"},
    {11, "Too dense"},
    {12, "Problems"},
    {13, "Resize Problem"},
    {14, "Oversized Clearances"},
    {15, "Partial   Clearances"},
    {16, "Small     Clearances"},
    {17, "Shave Avoided"},
    {18, "Shaves"},
}};
inline constexpr Table solderMaskOptRanges{"SolderMaskOptRanges", solderMaskOptRangesRows};

inline constexpr std::array<Category, 19> signalLayerOptRangesRows = {{
    {1, "ARG repaired"},
    {2, "ARG violation(min)"},
    {3, "ARG violation(opt)"},
    {4, "Pad enlarge > limit"},
    {5, "annular_ring"},
    {6, "Spacing"},
    {7, "Pth2c"},
    {8, "NPth2c"},
    {9, "Spacing repaired"},
    {10, "H2Cu repaired"},
    {11, "Spacing violation(min)"},
    {12, "Spacing violation(opt)"},
    {13, "H2Cu violation"},
    {14, "Same net space"},
    {15, "Same Net Spacing Violation"},
    {16, "Same Net Spacing Violation repaired"},
    {17, "Polygon shave"},
    {18, "Filled polygon shave"},
    {19, "Unfillable polygon shave"},
}};
inline constexpr Table signalLayerOptRanges{"SignalLayerOptRanges", signalLayerOptRangesRows};

inline constexpr std::array<Category, 10> teardropsRangesRows = {{
    {1, "Full Teardrops"},
    {2, "One Sided Teardrops"},
    {3, "Shortened Teardrops"},
    {4, "Missing Teardrops"},
    {5, "Problematic Teardrops"},
    {6, "Suspected Thermal"},
    {7, "Spacing Violations"},
    {8, "Line Too Narrow"},
    {9, "Updated Teardrops Size"},
    {10, "Suspected Teardrop"},
}};
inline constexpr Table teardropsRanges{"TeardropsRanges", teardropsRangesRows};

inline constexpr std::array<Category, 4> nfpRemovalRows = {{
    {1, "Isolated"},
    {2, "Duplicate"},
    {3, "Drilled Over"},
    {4, "Covered"},
}};
inline constexpr Table nfpRemoval{"NFPRemoval", nfpRemovalRows};

inline constexpr std::array<Category, 3> padSnappingRangesRows = {{
    {0, "Snapped pads"},
    {1, "Un Snapped pads"},
    {2, "Spacing problems"},
}};
inline constexpr Table padSnappingRanges{"PadSnappingRanges", padSnappingRangesRows};

inline constexpr std::array<Category, 38> powerGroundRangesRows = {{
    {0, "NPTH to Copper"},
    {1, "NPTH to Plane"},
    {2, "PTH Annular Ring"},
    {3, "PTH to Copper"},
    {4, "PTH to Plane"},
    {5, "Via Annular Ring"},
    {6, "Via to Copper"},
    {7, "Via to Plane"},
    {8, "PTH Partial touch Copper"},
    {9, "Via Partial touch Copper"},
    {10, "PTH contains Clearance"},
    {11, "Via contains Clearance"},
    {13, "NPTH contains Copper"},
    {14, "NPTH Registration"},
    {15, "PTH Registration"},
    {16, "Via Registration"},
    {17, "Missing Cu for Via"},
    {18, "Spot NFP"},
    {19, "Rout to Copper"},
    {20, "Missing Rout Clearance"},
    {21, "Slivers"},
    {22, "Local Spacing"},
    {23, "Spoke Width"},
    {24, "Thermal connect Reduction"},
    {25, "Complex Thermal Geometry"},
    {26, "Thermal Air Gap"},
    {27, "Small Spoke Width"},
    {28, "NFP Spacing"},
    {29, "NFP Spacing(pos)"},
    {30, "Plane Spacing"},
    {31, "Segmentation Lines"},
    {32, "Net Too Large"},
    {33, "Ignored Net"},
    {34, "NPTH Annular Ring"},
    {35, "Isolated Drill"},
    {36, "Mechanical Via Annular Ring"},
    {37, "Laser Via Annular Ring"},
    {38, "Photo Via Annular Ring"},
}};
inline constexpr Table powerGroundRanges{"PowerGroundRanges", powerGroundRangesRows};

inline constexpr std::array<Category, 27> powerGroundOptRangesRows = {{
    {1, "Via AirGap Not Modified"},
    {2, "Via AirGap Modified"},
    {3, "Via Spacing Not Modified"},
    {4, "Via Spacing Modified"},
    {5, "Via AR Not Modified"},
    {6, "Via AR Partially Modified"},
    {7, "Via AR Modified"},
    {8, "Via Clr Not Modified"},
    {9, "Via Clr Partially Modified"},
    {10, "Via Clr Modified"},
    {11, "PTH AirGap Not Modified"},
    {12, "PTH AirGap Modified"},
    {13, "PTH Spacing Not Modified"},
    {14, "PTH Spacing Modified"},
    {15, "PTH AR Not Modified"},
    {16, "PTH AR Partially Modified"},
    {17, "PTH AR Modified"},
    {18, "PTH Clr Not Modified"},
    {19, "PTH Clr Partially Modified"},
    {20, "PTH Clr Modified"},
    {21, "NPTH Clr Not Modified"},
    {22, "NPTH Clr Partially Modified"},
    {23, "NPTH Clr Modified"},
    {24, "NPTH Pad Is Not Clearance"},
    {25, "Unsupported Drilled Shape"},
    {26, "Pad Misregistration"},
    {27, "Build Donut"},
}};
inline constexpr Table powerGroundOptRanges{"PowerGroundOptRanges", powerGroundOptRangesRows};

/// In the order in which the dictionary registers them.
inline constexpr std::array<Table, 14> tables = {
    {drillRanges, boardDrillRanges, solderMaskRanges, signalLayerRanges, surfaceAnalyzerRanges,
     silkScreenRanges, prePareRanges, solderMaskOptRanges, signalLayerOptRanges, teardropsRanges, nfpRemoval,
     padSnappingRanges, powerGroundRanges, powerGroundOptRanges}};

/// Whether the numbers of a table run from `first` to `last` without a gap except at `unassigned` (-1: none).
constexpr bool runs(Table const & table, int first, int last, int unassigned = -1)
{
    int expected = first;
    for (Category const & category : table) {
        expected += expected == unassigned ? 1 : 0;
        if (category.number != expected || category.name.empty()) {
            return false;
        }
        ++expected;
    }
    return expected == last + 1;
}

constexpr std::size_t total()
{
    std::size_t sum = 0;
    for (Table const & table : tables) {
        sum += table.count;
    }
    return sum;
}

static_assert(total() == 409);
static_assert(runs(drillRanges, 0, 37));
static_assert(runs(boardDrillRanges, 0, 13));
static_assert(runs(solderMaskRanges, 0, 85));
static_assert(runs(signalLayerRanges, 0, 82, 63));
static_assert(runs(surfaceAnalyzerRanges, 0, 10));
static_assert(runs(silkScreenRanges, 0, 26));
static_assert(runs(prePareRanges, 0, 30));
static_assert(runs(solderMaskOptRanges, 0, 18));
static_assert(runs(signalLayerOptRanges, 1, 19));
static_assert(runs(teardropsRanges, 1, 10));
static_assert(runs(nfpRemoval, 1, 4));
static_assert(runs(padSnappingRanges, 0, 2));
static_assert(runs(powerGroundRanges, 0, 38, 12));
static_assert(runs(powerGroundOptRanges, 1, 27));

} // namespace KVCAM::UIAPI::Categories
