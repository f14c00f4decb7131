#include "board/PanelSteps.h"

#include "board/Paths.h"

#include <EmbeddedEngine.h>

#include <QPolygonF>

#include <iterator>

namespace Workbench {

namespace {

constexpr int mostOutlines = 10'000;
constexpr std::size_t mostDrawn = 1000;

} // namespace

PanelSteps::PanelSteps(std::string job, std::string const & step) : m_job(std::move(job))
{
    std::map<std::string, QPainterPath> profiles;
    for (auto const & each : KVCAM::Embedded::stepPlacements(m_job, step, mostOutlines)) {
        auto const [profile, isNew] = profiles.try_emplace(each.name);
        if (isNew) {
            profile->second = profilePath(m_job, each.name);
            settle(profile->second);
        }
        QTransform const place = placement({each.x, each.y}, each.angle, each.mirrored);
        m_outlines.push_back({profile->second, place});
        if (m_places.size() < mostDrawn) {
            m_places.push_back({each.name, place});
        }
    }
}

PictureTask::Layer PanelSteps::shapes(KVCAM::API::layer_info const & layer)
{
    PictureTask::Layer placed;
    if (layer.name.empty()) { // none is shown
        return placed;
    }
    for (Place const & place : m_places) {
        auto & known = m_known[{place.step, layer.name}];
        if (known == nullptr) {
            known = std::make_shared<LayerShapes const>(m_job, place.step, layer);
        }
        if (!known->features().empty()) {
            placed.push_back({known, place.transform});
        }
    }
    return placed;
}

QRectF PanelSteps::extent(KVCAM::API::layer_info const & layer)
{
    QRectF extent;
    for (PictureTask::Shapes const & placed : shapes(layer)) {
        extent |= placed.place.mapRect(placed.layer->extent());
    }
    return extent;
}

void PanelSteps::keep(std::set<std::string> const & layers)
{
    for (auto known = m_known.begin(); known != m_known.end();) {
        known = layers.count(known->first.second) != 0 ? std::next(known) : m_known.erase(known);
    }
}

QPainterPath profilePath(std::string const & job, std::string const & step)
{
    QPainterPath path;
    for (auto const & outline : KVCAM::Embedded::profileOutlines(job, step)) {
        QPolygonF polygon;
        for (KVCAM::API::point const & corner : outline) {
            polygon << QPointF(corner.x, corner.y);
        }
        path.addPolygon(polygon);
        path.closeSubpath();
    }
    return path;
}

} // namespace Workbench
