#pragma once

#include "../units/Length.h"
#include "../units/Unit.h"
#include "AnalysisReport.h"
#include "Grade.h"
#include "ReportRecords.h"
#include "UIAPICommonExport.h"

#include <optional>
#include <string>
#include <vector>

/// \addtogroup results
namespace KVCAM::UIAPI::Ext {

/// The narrowest track of a layer.
struct LayerWidth
{
    std::string layer;                  ///< name, UTF-8
    std::optional<Length> measured;     ///< none for a layer without tracks
    Severity severity = Severity::None; ///< by the levels of the check
};

/// A level as a line across a chart.
struct LevelLine
{
    Severity severity = Severity::None; ///< of what is at the level
    Length length;                      ///< never negative
};

/// What a chart of the track widths of a report shows.
struct TrackWidths
{
    std::vector<LayerWidth> layers; ///< a bar for each
    std::vector<LevelLine> levels;  ///< those of the check that are numbers and not negative, red first
};

/// The axis of a chart, in the small unit of its lengths.
struct ChartAxis
{
    double end = 1;    ///< above 0
    double step = 0.2; ///< between two ticks: 1, 2 or 5 and a power of ten; at most six fit
};

/// The narrowest track of each layer of a report: first the given layers in their order, also without a
/// track, then the others by name. Empty if tracks were not checked. \since 0.2
[[nodiscard]] UIAPICOMMON_EXPORT TrackWidths trackWidths(AnalysisReport const & report,
                                                         std::vector<std::string> const & layers);

/// An axis on which all bars fit, and all levels but those far beyond the bars, which would flatten them.
/// \since 0.2
[[nodiscard]] UIAPICOMMON_EXPORT ChartAxis trackWidthAxis(TrackWidths const & widths, Unit unit);

} // namespace KVCAM::UIAPI::Ext
