#pragma once

#include "ui/Units.h"

#include <EmbeddedEngine.h>

#include <QPainterPath>
#include <QPointF>
#include <QRectF>

#include <string>
#include <vector>

namespace Workbench {

/// How one feature is drawn, in micrometres with y upwards. A layer may hold a hundred thousand, so the pads
/// of one symbol share their path, and a line is just its two ends.
struct FeatureShape
{
    enum class Kind : char
    {
        Pad,  ///< `path` around the origin, to be turned, mirrored and moved to `place`
        Line, ///< from `place` to `end`; no path
        Path  ///< an arc or a surface: `path` in board coordinates
    };
    Kind kind = Kind::Path;
    bool positive = true;
    bool filled = true;      ///< otherwise the path or line is stroked
    bool squareEnds = false; ///< of a stroke; otherwise round
    bool mirrored = false;   ///< of a pad: about its vertical axis, after it is turned
    int feature = 0;         ///< index in its layer
    Unit unit = Unit::Inch;  ///< of the sizes in the feature's symbol name
    double penWidth = 0;     ///< of a stroke; 0: a hairline at every zoom
    double angle = 0;        ///< degrees clockwise
    QPointF place;
    QPointF end;
    QPainterPath path;
    QRectF box; ///< of everything that is painted

    /// The path or line in board coordinates.
    QPainterPath outline() const;
};

/// Shapes of a layer's features, in order; `drawings` has one entry per feature. A user-defined symbol is
/// drawn as a cross of hairlines, since its graphics are in separate files. Lines and arcs are as wide as the
/// smaller extent of their symbol, with square ends for squares and rectangles and round ends otherwise.
std::vector<FeatureShape> featureShapes(std::vector<KVCAM::API::feature_info> const & features,
                                        std::vector<KVCAM::Embedded::FeatureDrawing> const & drawings);

} // namespace Workbench
