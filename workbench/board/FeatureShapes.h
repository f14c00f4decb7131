#pragma once

#include "ui/Units.h"

#include <EmbeddedEngine.h>

#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <QTransform>

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Workbench {

struct FeatureSymbol;
class FeatureSymbols;

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
    std::shared_ptr<FeatureSymbol const> symbol; ///< of a pad; null otherwise
    QRectF box;                                  ///< of everything that is painted

    /// The path or line in board coordinates.
    QPainterPath outline() const;
    /// The same on a widget, to point the feature out: without what is below a pixel, or its box if more than
    /// `room` elements would be left.
    QPainterPath marking(QTransform const & boardToWidget, int room) const;
};

/// What the pads of one symbol share.
struct FeatureSymbol
{
    QPainterPath path;               ///< of a job's own, some outline, and otherwise what is painted
    std::vector<FeatureShape> parts; ///< what is painted of a job's own, about its origin
    QRectF box;
    bool filled = true;       ///< otherwise the path is stroked by a hairline
    bool erases = false;      ///< some parts are negative; they erase the parts before them only
    bool isSquare = false;    ///< strokes have square ends
    double width = 0;         ///< of a stroke drawn with it
    int nesting = 0;          ///< symbols within symbols
    std::size_t elements = 0; ///< of the paths of all parts
};

/// Gives the drawing of one of the job's own symbols; empty if there is none.
using SymbolSource = std::function<KVCAM::Embedded::SymbolGraphics(std::string const & name)>;

/// Shapes of a layer's features, in order; `drawings` has one entry per feature. A job's own symbol is drawn
/// as `source` says, and without it, as a cross of hairlines. Lines and arcs are as wide as the smaller
/// extent of their symbol, with square ends for squares and rectangles and round ends otherwise.
std::vector<FeatureShape> featureShapes(std::vector<KVCAM::API::feature_info> const & features,
                                        std::vector<KVCAM::Embedded::FeatureDrawing> const & drawings,
                                        SymbolSource const & source = {});
/// The same with symbols that are known already.
std::vector<FeatureShape> featureShapes(std::vector<KVCAM::API::feature_info> const & features,
                                        std::vector<KVCAM::Embedded::FeatureDrawing> const & drawings,
                                        FeatureSymbols & symbols);

/// The smallest box around two. Unlike QRectF::united(), it counts those without area.
QRectF joined(QRectF const & a, QRectF const & b);

} // namespace Workbench
