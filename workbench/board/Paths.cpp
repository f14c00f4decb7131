#include "board/Paths.h"

#include <cmath>
#include <optional>

namespace Workbench {

QTransform placement(QPointF place, double angle, bool mirrored)
{
    // The last one called is the first one done. QTransform itself is exact for 90, 180 and 270.
    QTransform transform = QTransform::fromTranslate(place.x(), place.y());
    transform.scale(mirrored ? -1 : 1, 1);
    double const turn = std::fmod(std::fmod(-angle, 360) + 360, 360);
    return turn == 0 ? transform : transform.rotate(turn);
}

QPainterPath thinned(QPainterPath const & path, double tolerance)
{
    QPainterPath thin;
    thin.setFillRule(path.fillRule());
    QPointF last;
    std::optional<QPointF> skipped;
    auto const isNear = [&](QPointF point) {
        return std::hypot(point.x() - last.x(), point.y() - last.y()) < tolerance;
    };
    auto const catchUp = [&] {
        if (skipped) {
            thin.lineTo(*skipped);
            last = *skipped;
            skipped.reset();
        }
    };
    for (int i = 0; i < path.elementCount(); ++i) {
        QPainterPath::Element const element = path.elementAt(i);
        if (element.isMoveTo()) {
            catchUp();
            thin.moveTo(element);
            last = element;
        } else if (element.isLineTo()) {
            if (isNear(element)) {
                skipped = element;
                continue;
            }
            skipped.reset();
            thin.lineTo(element);
            last = element;
        } else {
            QPointF const second = path.elementAt(i + 1);
            QPointF const end = path.elementAt(i + 2);
            i += 2;
            if (isNear(element) && isNear(second) && isNear(end)) {
                skipped = end;
                continue;
            }
            catchUp();
            thin.cubicTo(element, second, end);
            last = end;
        }
    }
    catchUp();
    return thin;
}

void settle(QPainterPath const & path)
{
    path.boundingRect();
    path.controlPointRect();
}

} // namespace Workbench
