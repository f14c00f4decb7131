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
    m_shapes = featureShapes(
        m_features, KVCAM::Embedded::featureDrawings(job, step, m_info.name),
        [&job](std::string const & name) { return KVCAM::Embedded::symbolGraphics(job, name); });
}

QColor LayerShapes::colour() const
{
    return LayerColours::shown().of(m_info);
}

QRectF LayerShapes::extent() const
{
    if (m_shapes.empty()) {
        return {};
    }
    QRectF extent = m_shapes.front().box;
    for (FeatureShape const & shape : m_shapes) {
        extent = joined(extent, shape.box);
    }
    return extent;
}

} // namespace Workbench
