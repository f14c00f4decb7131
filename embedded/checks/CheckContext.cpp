#include "checks/CheckContext.h"

#include "formats/JobPaths.h"
#include "formats/LineReader.h"
#include "state/EngineState.h"

#include <algorithm>
#include <utility>

namespace KVCAM::Embedded {
namespace {

constexpr std::size_t chunk = 4096; // features between two progress reports
constexpr std::size_t stageLength = 1000;

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
    if (job().graphics(m_step, layer.name).cutToTables) {
        note({table, -1, layer.name, "The job holds no features of this layer, only their tables."});
    }
    int erasing = 0;
    int unknown = 0;
    std::string example;
    std::size_t size = 0;
    for (std::size_t begin = 0; begin == 0 || begin < size; begin += chunk) {
        Job const & owner = job();
        LayerGraphics const & graphics = job().graphics(m_step, layer.name);
        size = graphics.file.features.size();
        for (std::size_t i = begin; i < std::min(begin + chunk, size); ++i) {
            Feature const & feature = graphics.file.features[i];
            if (graphics.deleted[i] || (feature.marks & (markNomenclature | markString)) != 0) {
                continue;
            }
            erasing += feature.positive ? 0 : 1;
            if (!feature.positive || feature.symbol < 0 || !m_area.holds(feature)) {
                continue;
            }
            SymbolEntry const & symbol = graphics.file.symbols.at(feature.symbol);
            SymbolShape const & shape = m_shapes.find(owner, symbol);
            bool const pen = feature.kind != 'P' && (shape.inner.corners.empty() || shape.opening > 0);
            if (shape.kind == SymbolShape::Kind::Drawn && !pen) {
                visit(feature, shape);
            } else if (shape.kind != SymbolShape::Kind::Empty) {
                ++unknown;
                example = symbol.name;
            }
        }
        reportProgress(std::min(begin + chunk, size), std::max<std::size_t>(2 * size, 1));
    }
    if (erasing != 0) {
        note({table, -1, layer.name,
              "Erasing features (" + std::to_string(erasing) + "): what they take from others is not seen."});
    }
    if (unknown != 0) {
        note({table, -1, layer.name,
              "Features drawn with symbols that cannot be measured so (" + std::to_string(unknown) +
                  "), such as " + example + '.'});
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
