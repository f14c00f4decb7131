#pragma once

#include "board/FeatureShapes.h"

#include <UIAPICommon.h>

#include <QPainterPath>
#include <QPointF>

#include <vector>

namespace Workbench {

/// What a place may snap to. Nothing is owned.
struct SnapTargets
{
    std::vector<FeatureShape> const & shapes;
    QPainterPath const & profile;
    double grid = 0;  ///< micrometres; 0 for none
    double reach = 0; ///< micrometres; what is farther away does not count, except the grid
};

/// The point that a place on the board snaps to, or the place itself if there is none within reach.
///
/// Centre: of pads, arcs and surfaces. Skeleton: the nearest point of tracks and arcs without their width,
/// and the centres of pads. Middle: of tracks and arcs. Arc: the nearest point of arcs without their width.
/// Edge: the nearest point of an outline. Crossing: of two tracks. Profile: its nearest point. Advanced: the
/// nearest of centres, ends, middles and crossings; without any, of the skeletons.
QPointF snapped(QPointF place, KVCAM::UIAPI::SNAP_TYPE_MODE mode, SnapTargets const & targets);

} // namespace Workbench
