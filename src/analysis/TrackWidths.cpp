#include "analysis/TrackWidths.h"

#include "analysis/CategoryTables.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

namespace KVCAM::UIAPI::Ext {
namespace {

constexpr int linesNumber = 46;
constexpr int mostTicks = 6;
constexpr double farthestLevel = 4; // of the longest bar

double inSmallUnit(Length length, Unit unit)
{
    return length.to(unit, LengthScale::Small);
}

// A round number that divides a length into at most `mostTicks` parts.
double tickStep(double length)
{
    double const least = length / mostTicks;
    double const decade = std::pow(10.0, std::floor(std::log10(least)));
    for (double const factor : {1.0, 2.0, 5.0}) {
        if (factor * decade >= least) {
            return factor * decade;
        }
    }
    return 10 * decade;
}

} // namespace

TrackWidths trackWidths(AnalysisReport const & report, std::vector<std::string> const & layers)
{
    TrackWidths widths;
    ReportCategory const * const lines =
        report.find(std::string(Categories::signalLayerRanges.name), linesNumber);
    if (lines == nullptr) {
        return widths;
    }
    std::map<std::string, LayerWidth> found;
    for (ReportEntry const & entry : lines->entries) {
        LayerWidth & width = found.try_emplace(entry.layer, LayerWidth{entry.layer, {}, {}}).first->second;
        if (entry.measured && (!width.measured || *entry.measured < *width.measured)) {
            width.measured = entry.measured;
            width.severity = entry.severity;
        }
    }
    for (std::string const & layer : layers) {
        auto known = found.extract(layer);
        widths.layers.push_back(known.empty() ? LayerWidth{layer, {}, {}} : std::move(known.mapped()));
    }
    for (auto & [layer, width] : found) {
        widths.layers.push_back(std::move(width));
    }
    if (lines->levels) {
        for (auto const & [severity, value] : {std::pair(Severity::Red, lines->levels->redLv),
                                               {Severity::Yellow, lines->levels->yellowLv},
                                               {Severity::Green, lines->levels->greenLv}}) {
            if (std::isfinite(value) && value >= 0) {
                widths.levels.push_back(
                    {severity, Length::from(value, report.levelUnit(), LengthScale::Small)});
            }
        }
    }
    return widths;
}

ChartAxis trackWidthAxis(TrackWidths const & widths, Unit unit)
{
    double bars = 0;
    for (LayerWidth const & width : widths.layers) {
        bars = std::max(bars, inSmallUnit(width.measured.value_or(Length()), unit));
    }
    double end = bars;
    for (LevelLine const & level : widths.levels) {
        double const length = inSmallUnit(level.length, unit);
        end = bars == 0 || length <= farthestLevel * bars ? std::max(end, length) : end;
    }
    end = end > 0 ? 1.05 * end : 1;
    return {end, tickStep(end)};
}

} // namespace KVCAM::UIAPI::Ext
