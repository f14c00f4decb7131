#include "board/LayerShapes.h"

#include "ui/LayerColours.h"

#include <utility>

namespace Workbench {

LayerShapes::LayerShapes(std::string const & job, std::string const & step, KVCAM::API::layer_info info)
    : m_info(std::move(info)), m_features(KVCAM::Embedded::features(job, step, m_info.name))
{
    if (!KVCAM::Embedded::lastError().empty()) {
        m_state = State::Unreadable;
    } else if (KVCAM::Embedded::isCutToTables(job, step, m_info.name)) {
        m_state = State::CutToTables;
    }
    m_drawings = KVCAM::Embedded::featureDrawings(job, step, m_info.name);
    m_symbols = FeatureSymbols(
        [job](std::string const & name) { return KVCAM::Embedded::symbolGraphics(job, name); });
    m_symbols.findAll(m_features, m_drawings);
}

std::vector<FeatureShape> const & LayerShapes::shapes() const
{
    std::call_once(m_isMade, [this] {
        m_shapes = featureShapes(m_features, m_drawings, m_symbols);
        m_drawings = {};
        m_symbols = FeatureSymbols(SymbolSource());
    });
    return m_shapes;
}

QColor LayerShapes::colour() const
{
    return LayerColours::shown().of(m_info);
}

QRectF LayerShapes::extent() const
{
    if (shapes().empty()) {
        return {};
    }
    QRectF extent = shapes().front().box;
    for (FeatureShape const & shape : shapes()) {
        extent = joined(extent, shape.box);
    }
    return extent;
}

} // namespace Workbench
