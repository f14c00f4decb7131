#pragma once

#include "board/BoardPicture.h"
#include "board/LayerShapes.h"

#include <QRectF>

#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace Workbench {

/// The steps that a panel repeats, in their places. Of the first 10,000 the profiles are drawn, and of the
/// first 1,000 of them also the features; a panel of a small file may have any number.
class PanelSteps
{
public:
    PanelSteps(std::string job, std::string const & step);

    std::vector<PictureTask::Outline> const & outlines() const { return m_outlines; }
    /// The shapes of a layer in each place where it has any; read once.
    PictureTask::Layer shapes(KVCAM::API::layer_info const & layer);
    /// Of these shapes; null without any.
    QRectF extent(KVCAM::API::layer_info const & layer);
    /// Forgets the layers that are not named.
    void keep(std::set<std::string> const & layers);

private:
    struct Place
    {
        std::string step;
        QTransform transform;
    };

    std::string m_job;
    std::vector<Place> m_places;
    std::vector<PictureTask::Outline> m_outlines;
    std::map<std::pair<std::string, std::string>, std::shared_ptr<LayerShapes const>> m_known; // step, layer
};

/// A step's profile in micrometres; empty without one.
QPainterPath profilePath(std::string const & job, std::string const & step);

} // namespace Workbench
