#pragma once

#include <EmbeddedEngine.h>

#include <QPainterPath>
#include <QSizeF>

#include <map>
#include <string>
#include <vector>

namespace Workbench {

/// One feature as a picture, in micrometres with y upwards.
struct FeatureShape
{
    int feature = 0; ///< the feature's index in its layer
    bool positive = true;
    bool filled = true;  ///< else the path is a stroke
    double penWidth = 0; ///< of a stroke
    QPainterPath path;
};

/// The extent of a symbol in micrometres as far as its name tells: the first two sizes. `unit` is 0 when the
/// name's sizes are in mil, 1 for micrometres. An empty size for a user-defined symbol.
QSizeF symbolExtent(std::string const & name, int unit);

/// A simple picture of a layer: pads as upright rectangles, ellipses or crosses, lines and arcs as round
/// strokes, surfaces as filled contours. It is meant for finding one's way, not for judging a board: records
/// carry neither a pad's angle nor an arc's sense, so pads stand upright and the shorter arc is drawn.
std::vector<FeatureShape> featureShapes(std::vector<KVCAM::API::feature_info> const & features,
                                        std::vector<KVCAM::Embedded::SymbolUse> const & symbols);

} // namespace Workbench
