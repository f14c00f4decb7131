#pragma once

#include <EmbeddedEngine.h>

#include <QPainterPath>
#include <QSizeF>

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
    int unit = 0;        ///< what the sizes in the feature's symbol name are in: 0 mil, 1 micrometre
    QPainterPath path;
};

/// The extent of a symbol in micrometres as far as its name tells. `unit` is 0 when the name's sizes are in
/// mil, 1 for micrometres. An empty size for a user-defined symbol.
QSizeF symbolExtent(std::string const & name, int unit);

/// A simple picture of a layer: pads as ellipses, rectangles or crosses, lines and arcs as round strokes,
/// surfaces as filled contours. It is meant for finding one's way, not for judging a board: a pad shows the
/// outer shape of its symbol's family, and a user-defined symbol is a cross. One shape for each feature, in
/// order; `drawings` has an entry for each as well.
std::vector<FeatureShape> featureShapes(std::vector<KVCAM::API::feature_info> const & features,
                                        std::vector<KVCAM::Embedded::FeatureDrawing> const & drawings);

} // namespace Workbench
