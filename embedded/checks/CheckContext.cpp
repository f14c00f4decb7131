#include "checks/CheckContext.h"

#include "formats/JobPaths.h"
#include "formats/LineReader.h"
#include "geometry/Region.h"
#include "geometry/Stroke.h"
#include "state/EngineState.h"

#include <algorithm>
#include <map>
#include <utility>

namespace KVCAM::Embedded {
namespace {

constexpr std::size_t chunk = 4096; // features between two progress reports
constexpr std::size_t stageLength = 1000;
constexpr std::size_t mostSymbols = 100; // that are named

// Whether copper lies beyond the board's edge. The edge itself, drawn as a line, does not.
bool leavesBoard(BoardArea const & area, Feature const & feature, SymbolShape const & shape)
{
    if (shape.kind != SymbolShape::Kind::Drawn) {
        return !area.holds(feature) && area.holdsSome(feature);
    }
    auto const & p = feature.points;
    bool const arc = feature.kind == 'A';
    double const far = reach(shape.outer, {}) + (arc ? 2 * distance(p[0], p[2]) : 0);
    Box box = boxOf(p[0]);
    include(box, feature.kind == 'P' ? p[0] : p[1]);
    if (!area.passes({box.left - far, box.bottom - far, box.right + far, box.top + far})) {
        return false;
    }
    Region copper;
    if (feature.kind == 'P') {
        copper = placed(shape.isLarge ? Region{{shape.outer}, {}} : shape.copper,
                        placement(p[0], feature.angle, feature.mirrored));
    } else if (arc) {
        constexpr double enough = 64;
        Arc const path{p[0], p[1], p[2], feature.clockwise};
        double const pieces = arcPieces(path);
        copper.pieces = swept(shape.outer, path, static_cast<std::size_t>(pieces < enough ? pieces : enough));
    } else {
        copper.pieces = {swept(shape.outer, p[0], p[1])};
    }
    bool const isEdge = feature.kind != 'P' && area.isOutline(feature, shape.narrower);
    return !isEdge && area.crosses(copper);
}

// What of a layer is not measured.
struct Ignored
{
    bool missing = false;
    bool cutToTables = false;
    int erasing = 0;
    int texts = 0;
    int surfaces = 0;
    int smdSurfaces = 0;
    int outside = 0;
    int leaving = 0;
    std::map<std::string, std::pair<int, std::string>> symbols; // number of features and reason by name

    // Whether a feature is to be measured if it is on the board; counts it otherwise.
    bool isGraphic(Feature const & feature)
    {
        if ((feature.marks & (markNomenclature | markString)) != 0) {
            ++texts;
        } else if (!feature.positive) {
            ++erasing;
        } else if (feature.symbol < 0) {
            ++surfaces;
            smdSurfaces += (feature.marks & markSmd) != 0 ? 1 : 0;
        } else {
            return true;
        }
        return false;
    }

    void add(std::string const & name, SymbolShape const & shape)
    {
        auto & [count, reason] = symbols[name];
        ++count;
        if (reason.empty()) {
            reason = !shape.problem.empty() ? shape.problem
                     : shape.kind == SymbolShape::Kind::Drawn
                         ? "the width of a line drawn with it cannot be measured"
                         : "this symbol cannot be measured";
        }
    }

    std::vector<std::string> reasons(bool copper) const
    {
        std::vector<std::string> all;
        auto const add = [&all](int count, std::string const & what, std::string const & rest) {
            if (count != 0) {
                all.push_back(what + " (" + std::to_string(count) + ')' + rest);
            }
        };
        if (cutToTables) {
            all.emplace_back("The job holds no features of this layer, only their tables.");
        }
        if (missing) {
            all.emplace_back("The job holds no features file of this layer.");
        }
        add(erasing, "Erasing features", ": what they take from others is not seen.");
        add(texts, "Texts, marked as .nomenclature or .string", " are not measured.");
        add(surfaces, "Surfaces",
            copper ? ": their narrow places are not measured, and none counts as a pad."
                   : " are not measured as holes or slots.");
        add(copper ? smdSurfaces : 0, "Surfaces marked as SMD pads", ": their spacing is not measured.");
        add(leaving, "Tracks and pads that cross or leave the outline", ": they are measured all the same.");
        add(outside, "Features outside the outline", " are not measured.");
        std::size_t named = 0;
        int unnamed = 0;
        for (auto const & [name, ignored] : symbols) {
            if (++named <= mostSymbols) {
                add(ignored.first, "Features drawn with \"" + name + '"', ": " + ignored.second + '.');
            } else {
                unnamed += ignored.first;
            }
        }
        add(unnamed, "Features drawn with more such symbols", " are not measured.");
        return all;
    }
};

} // namespace

CheckContext::CheckContext(std::string const & job, std::string const & step, CheckProgress const & progress)
    : m_job(job)
    , m_step(lowerCase(step))
    , m_progress(progress)
    , m_area(EngineState::get().job(job).step(m_step).profile)
{}

Job & CheckContext::job() const
{
    return EngineState::get().job(m_job);
}

void CheckContext::forEachMeasurable(API::layer_info const & layer, char const * table, Visit const & visit)
{
    bool const copper = std::string(table) == "signal";
    Ignored ignored;
    std::size_t size = 0;
    for (std::size_t begin = 0; begin == 0 || begin < size; begin += chunk) {
        Job const & owner = job();
        LayerGraphics const & graphics = job().graphics(m_step, layer.name);
        size = graphics.file.features.size();
        ignored.missing = graphics.missing;
        ignored.cutToTables = graphics.cutToTables;
        for (std::size_t i = begin; i < std::min(begin + chunk, size); ++i) {
            Feature const & feature = graphics.file.features[i];
            if (graphics.deleted[i] || !ignored.isGraphic(feature)) {
                continue;
            }
            SymbolEntry const & symbol = graphics.file.symbols.at(feature.symbol);
            bool const inside = m_area.holds(feature);
            if (!inside && !copper) {
                ++ignored.outside;
                continue;
            }
            SymbolShape const & shape = m_shapes.find(owner, symbol);
            bool const leaves = copper && leavesBoard(m_area, feature, shape);
            ignored.leaving += leaves ? 1 : 0;
            bool const pen = feature.kind != 'P' && (shape.inner.corners.empty() || shape.opening > 0);
            if (!inside && !leaves) {
                ++ignored.outside;
            } else if (shape.kind == SymbolShape::Kind::Drawn && !pen) {
                visit(static_cast<std::uint32_t>(i), feature, shape);
            } else if (shape.kind != SymbolShape::Kind::Empty || !shape.problem.empty()) {
                ignored.add(symbol.name, shape);
            }
        }
        reportProgress(std::min(begin + chunk, size), std::max<std::size_t>(2 * size, 1));
    }
    for (std::string & reason : ignored.reasons(copper)) {
        note({table, -1, layer.name, std::move(reason)});
    }
}

void CheckContext::endStage()
{
    ++m_stage;
    reportProgress(0, 1);
}

void CheckContext::reportProgress(std::size_t done, std::size_t total) const
{
    std::size_t const now = m_stage * stageLength + stageLength * done / total;
    if (m_progress && !m_progress(static_cast<int>(now), static_cast<int>(m_stages * stageLength))) {
        throw JobError(m_job + ": the checks were cancelled");
    }
}

} // namespace KVCAM::Embedded
