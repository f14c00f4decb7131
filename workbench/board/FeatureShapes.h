#pragma once

#include "ui/Units.h"

#include <EmbeddedEngine.h>

#include <QPainterPath>
#include <QPointF>
#include <QRectF>

#include <string>
#include <vector>

namespace Workbench {

/// One feature as a picture, in micrometres with y upwards. A layer may hold a hundred thousand, so the pads
/// of a symbol share its path, and a line is its two ends.
struct FeatureShape
{
    enum class Kind : char
    {
        Pad,  ///< `path` stands about the origin and is turned by `angle` and moved to `place`
        Line, ///< from `place` to `end`, without a path
        Path  ///< an arc or a surface: `path` as it lies on the board
    };
    Kind kind = Kind::Path;
    bool positive = true;
    bool filled = true;      ///< else the path or line is a stroke
    bool squareEnds = false; ///< of a stroke; else they are round
    bool mirrored = false;   ///< of a pad: about its upright axis, before it is turned
    int feature = 0;         ///< the feature's index in its layer
    int unit = inchUnit;     ///< of the sizes in the feature's symbol name
    double penWidth = 0;     ///< of a stroke; 0: a hairline at every zoom
    double angle = 0;        ///< degrees clockwise
    QPointF place;
    QPointF end;
    QPainterPath path;
    QRectF box; ///< of all that is painted

    /// The path or line where it lies on the board.
    QPainterPath outline() const;
};

/// Pictures of a layer's features, in order; `drawings` has an entry for each as well. A user-defined symbol
/// is a cross of hairlines: what it looks like stands in files of its own. A line or arc is drawn with the
/// smaller extent of its symbol, with square ends for squares and rectangles and else with round ones.
std::vector<FeatureShape> featureShapes(std::vector<KVCAM::API::feature_info> const & features,
                                        std::vector<KVCAM::Embedded::FeatureDrawing> const & drawings);

} // namespace Workbench
