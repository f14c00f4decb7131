#include "board/LayerPainter.h"

#include "board/Paths.h"
#include "board/ScanFill.h"

#include <QImage>
#include <QVector>

#include <algorithm>
#include <cmath>

namespace Workbench {

namespace {

constexpr double pointSize = 1.5;      // pixels; smaller shapes are points
constexpr double hairline = 1;         // pixels; strokes up to this width are hairlines
constexpr double roundEndWidth = 3;    // pixels; thinner strokes do not show the form of their ends
constexpr double tooNear = 0.5;        // pixels between vertices
constexpr int mostElements = 512;      // of a path for Qt, whose time may grow with the square
constexpr std::size_t lookAtFlag = 16; // shapes between two looks at it

bool overlap(QRectF const & a, QRectF const & b) // true for boxes without area, too
{
    return a.left() <= b.right() && b.left() <= a.right() && a.top() <= b.bottom() && b.top() <= a.bottom();
}

// The pixels of `area` that a box touches. Boxes may be far larger than an integer.
QRect pixelsOf(QRectF const & box, QRect const & area)
{
    QRectF const frame = box.adjusted(-2, -2, 2, 2) & QRectF(area);
    return frame.toAlignedRect() & area;
}

} // namespace

// Collects points and hairlines, which the painter draws far faster in one call. The order of shapes with the
// same polarity does not matter: they have one colour.
class ShapePainter
{
public:
    using Paths = std::map<FeatureSymbol const *, QPainterPath>; // thinned, at one scale

    ShapePainter(LayerPainter & canvas, QTransform const & boardToPicture, Paths & paths, bool erases = false)
        : m_canvas(canvas)
        , m_painter(canvas.m_painter)
        , m_transform(boardToPicture)
        , m_scale(std::hypot(boardToPicture.m11(), boardToPicture.m12()))
        , m_paths(paths)
        , m_erases(erases)
    {
        usePolarity(true);
    }
    ~ShapePainter() { flush(); }
    ShapePainter(ShapePainter const &) = delete;
    ShapePainter & operator=(ShapePainter const &) = delete;

    void paint(std::vector<FeatureShape> const & shapes)
    {
        QRectF const area = QRectF(m_canvas.m_area).adjusted(-2, -2, 2, 2);
        std::size_t painted = 0;
        for (FeatureShape const & shape : shapes) {
            if (overlap(m_transform.mapRect(shape.box), area)) {
                if (++painted % lookAtFlag == 0 && m_canvas.m_cancelled) {
                    return;
                }
                paint(shape);
            }
        }
    }

private:
    void paint(FeatureShape const & shape)
    {
        if (shape.positive != m_positive) {
            flush();
            usePolarity(shape.positive);
        }
        if (std::max(shape.box.width(), shape.box.height()) * m_scale < pointSize) {
            m_points.append(m_transform.map(shape.box.center()));
        } else if (shape.symbol != nullptr && !shape.symbol->parts.empty()) {
            paintParts(shape);
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
        if (m_points.isEmpty() && m_hairlines.isEmpty()) {
            return;
        }
        m_painter.setTransform({});
        m_painter.setPen(QPen(m_canvas.m_colour, 0));
        m_tool = Tool::Other;
        m_painter.drawPoints(m_points);
        m_painter.drawLines(m_hairlines);
        m_points.clear();
        m_hairlines.clear();
    }

    void usePolarity(bool positive)
    {
        m_positive = positive;
        m_painter.setCompositionMode(positive != m_erases ? QPainter::CompositionMode_SourceOver
                                                          : QPainter::CompositionMode_DestinationOut);
    }

    // A symbol of the job's own. If parts of it erase others, it is painted apart, since they must not erase
    // what is below the pad.
    void paintParts(FeatureShape const & shape)
    {
        QTransform const placed = placement(shape.place, shape.angle, shape.mirrored) * m_transform;
        bool const erases = shape.positive == m_erases;
        if (!shape.symbol->erases) {
            ShapePainter(m_canvas, placed, m_paths, erases).paint(shape.symbol->parts);
        } else {
            QRect const frame = pixelsOf(m_transform.mapRect(shape.box), m_canvas.m_area);
            QImage apart(frame.size(), QImage::Format_ARGB32_Premultiplied);
            if (apart.isNull()) {
                return;
            }
            apart.fill(Qt::transparent);
            QPainter painter(&apart);
            painter.setRenderHint(QPainter::Antialiasing);
            LayerPainter canvas(painter, apart.rect(), m_canvas.m_colour, m_canvas.m_cancelled);
            ShapePainter(canvas, placed * QTransform::fromTranslate(-frame.x(), -frame.y()), m_paths)
                .paint(shape.symbol->parts);
            painter.end();
            m_canvas.m_steps += canvas.m_steps;
            m_painter.setTransform({});
            m_painter.drawImage(frame.topLeft(), apart);
        }
        usePolarity(shape.positive); // the parts have changed both
        m_tool = Tool::Other;
    }

    void fill(FeatureShape const & shape)
    {
        if (m_tool != Tool::Fill) {
            m_painter.setPen(Qt::NoPen);
            m_painter.setBrush(m_canvas.m_colour);
            m_tool = Tool::Fill;
        }
        if (shape.kind == FeatureShape::Kind::Pad) {
            m_painter.setTransform(placement(shape.place, shape.angle, shape.mirrored) * m_transform);
            if (shape.symbol.use_count() == 1) { // of no other pad
                return fill(thinned(shape.path, tooNear / m_scale), shape);
            }
            auto const [known, isNew] = m_paths.try_emplace(shape.symbol.get());
            if (isNew) {
                known->second = thinned(shape.path, tooNear / m_scale);
            }
            fill(known->second, shape);
        } else {
            m_painter.setTransform(m_transform);
            fill(thinned(shape.path, tooNear / m_scale), shape);
        }
    }

    void fill(QPainterPath const & path, FeatureShape const & shape)
    {
        if (path.elementCount() <= mostElements || path.fillRule() != Qt::OddEvenFill) {
            m_painter.drawPath(path);
            return;
        }
        QTransform const transform = m_painter.transform();
        QRect const frame = pixelsOf(m_transform.mapRect(shape.box), m_canvas.m_area);
        ScanFill scan{path, transform, frame, m_canvas.m_colour, m_canvas.m_cancelled};
        QImage const inside = scan.run();
        m_canvas.m_steps += scan.steps;
        m_painter.setTransform({});
        m_painter.drawImage(frame.topLeft(), inside);
    }

    void stroke(FeatureShape const & shape)
    {
        double const width = shape.penWidth * m_scale;
        Qt::PenCapStyle const cap = shape.squareEnds || width < roundEndWidth ? Qt::SquareCap : Qt::RoundCap;
        m_painter.setTransform({});
        if (m_tool != Tool::Pen || m_penWidth != width || m_cap != cap) {
            m_painter.setPen(
                QPen(m_canvas.m_colour, width <= hairline ? 0 : width, Qt::SolidLine, cap, Qt::RoundJoin));
            m_painter.setBrush(Qt::NoBrush);
            m_tool = Tool::Pen;
            m_penWidth = width;
            m_cap = cap;
        }
        if (shape.kind == FeatureShape::Kind::Line) {
            m_painter.drawLine(m_transform.map(QLineF(shape.place, shape.end)));
        } else {
            m_painter.drawPath(m_transform.map(shape.outline()));
        }
    }

    // What the painter is set to. Pens and brushes of the toolkit share counters, over which threads that set
    // them for each shape wait for each other.
    enum class Tool
    {
        Other,
        Fill,
        Pen
    };

    LayerPainter & m_canvas;
    QPainter & m_painter;
    Tool m_tool = Tool::Other;
    double m_penWidth = 0;
    Qt::PenCapStyle m_cap = Qt::FlatCap;
    QTransform m_transform;
    double m_scale;
    Paths & m_paths;
    bool m_erases; // positive shapes erase, since they are parts of a negative pad
    bool m_positive = true;
    QVector<QPointF> m_points;
    QVector<QLineF> m_hairlines;
};

void LayerPainter::paint(std::vector<FeatureShape> const & shapes, QTransform const & boardToPicture)
{
    m_painter.setRenderHint(QPainter::Antialiasing);
    ShapePainter::Paths paths;
    ShapePainter(*this, boardToPicture, paths).paint(shapes);
}

} // namespace Workbench
