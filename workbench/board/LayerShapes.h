#pragma once

#include "board/FeatureShapes.h"

#include <KVCAM_API.h>

#include <QColor>

#include <string>
#include <vector>

namespace Workbench {

/// The features of a layer in a step and their shapes, read from the engine once.
class LayerShapes
{
public:
    enum class State
    {
        Read,
        CutToTables, ///< the features exist, but not in this copy of the job
        Unreadable
    };
    LayerShapes() = default; ///< no layer, empty
    LayerShapes(std::string const & job, std::string const & step, KVCAM::API::layer_info info);

    KVCAM::API::layer_info const & info() const { return m_info; }
    State state() const { return m_state; }
    QColor colour() const;
    std::vector<KVCAM::API::feature_info> const & features() const { return m_features; }
    /// One per feature, in the same order.
    std::vector<FeatureShape> const & shapes() const { return m_shapes; }
    /// Of everything that is painted, in micrometres; null without features.
    QRectF extent() const;

private:
    KVCAM::API::layer_info m_info;
    State m_state = State::Read;
    std::vector<KVCAM::API::feature_info> m_features;
    std::vector<FeatureShape> m_shapes;
};

} // namespace Workbench
