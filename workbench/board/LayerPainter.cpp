#include "board/LayerPainter.h"

#include <QVector>

#include <cmath>

namespace Workbench {

namespace {

constexpr double pointSize = 1.5;       // pixels; smaller shapes are points
constexpr double hairline = 1;          // pixels; strokes up to this width are hairlines
constexpr double roundEndWidth = 3;     // pixels; thinner strokes do not show the form of their ends
constexpr std::size_t lookAtClock = 64; // shapes between two looks at the clock

bool overlap(QRectF const & a, QRectF const & b) // true for boxes without area, too
{
    return a.left() <= b.right() && b.left() <= a.right() && a.top() <= b.bottom() && b.top() <= a.bottom();
}

// Collects points and hairlines, which the painter draws far faster in one call. The order of shapes with the
// same polarity does not matter: they have one colour.
class ShapePainter
{
public:
    ShapePainter(QPainter & painter, QTransform const & boardToPicture, QColor const & colour)
        : m_painter(painter), m_transform(boardToPicture), m_colour(colour), m_scale(boardToPicture.m11())
    {
        usePolarity(true);
    }
    ~ShapePainter() { flush(); }
    ShapePainter(ShapePainter const &) = delete;
    ShapePainter & operator=(ShapePainter const &) = delete;

    void paint(FeatureShape const & shape)
    {
        if (shape.positive != m_positive) {
            flush();
            usePolarity(shape.positive);
        }
        if (std::max(shape.box.width(), shape.box.height()) * m_scale < pointSize) {
            m_points.append(m_transform.map(shape.box.center()));
        } else if (shape.filled) {
            fill(shape);
        } else if (shape.kind == FeatureShape::Kind::Line && shape.penWidth * m_scale <= hairline) {
            m_hairlines.append(m_transform.map(QLineF(shape.place, shape.end)));
        } else {
            stroke(shape);
        }
    }

    void flush()
    {
        m_painter.setTransform({});
        m_painter.setPen(QPen(m_colour, 0));
        m_painter.drawPoints(m_points);
        m_painter.drawLines(m_hairlines);
        m_points.clear();
        m_hairlines.clear();
    }

private:
    void usePolarity(bool positive)
    {
        m_positive = positive;
        m_painter.setCompositionMode(positive ? QPainter::CompositionMode_SourceOver
                                              : QPainter::CompositionMode_DestinationOut);
    }

    void fill(FeatureShape const & shape)
    {
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(m_colour);
        if (shape.kind == FeatureShape::Kind::Pad) {
            QTransform placed = QTransform::fromTranslate(shape.place.x(), shape.place.y()) * m_transform;
            if (shape.mirrored) {
                placed.scale(-1, 1);
            }
            if (shape.angle != 0) {
                placed.rotate(-shape.angle);
            }
            m_painter.setTransform(placed);
        } else {
            m_painter.setTransform(m_transform);
        }
        m_painter.drawPath(shape.path);
    }

    void stroke(FeatureShape const & shape)
    {
        double const width = shape.penWidth * m_scale;
        Qt::PenCapStyle const cap = shape.squareEnds || width < roundEndWidth ? Qt::SquareCap : Qt::RoundCap;
        QPen pen(m_colour, width <= hairline ? 0 : width, Qt::SolidLine, cap, Qt::RoundJoin);
        m_painter.setTransform({});
        m_painter.setPen(pen);
        m_painter.setBrush(Qt::NoBrush);
        if (shape.kind == FeatureShape::Kind::Line) {
            m_painter.drawLine(m_transform.map(QLineF(shape.place, shape.end)));
        } else {
            m_painter.drawPath(m_transform.map(shape.outline()));
        }
    }

    QPainter & m_painter;
    QTransform m_transform;
    QColor m_colour;
    double m_scale;
    bool m_positive = true;
    QVector<QPointF> m_points;
    QVector<QLineF> m_hairlines;
};

} // namespace

std::size_t paintShapes(QPainter & painter, std::vector<FeatureShape> const & shapes,
                        QTransform const & boardToPicture, QRectF const & visible, QColor const & colour,
                        std::size_t from, QDeadlineTimer const & deadline)
{
    painter.setRenderHint(QPainter::Antialiasing);
    ShapePainter shapePainter(painter, boardToPicture, colour);
    std::size_t painted = 0;
    for (std::size_t i = from; i < shapes.size(); ++i) {
        if (!overlap(shapes[i].box, visible)) {
            continue;
        }
        shapePainter.paint(shapes[i]);
        if (++painted % lookAtClock == 0 && deadline.hasExpired()) {
            return i + 1;
        }
    }
    return shapes.size();
}

} // namespace Workbench
