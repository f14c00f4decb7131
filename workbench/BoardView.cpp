#include "BoardView.h"

#include <UIAPICommon.h>

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <QWheelEvent>

#include <cmath>
#include <utility>

namespace Workbench {

namespace {

using namespace KVCAM::UIAPI;

constexpr int scaleMargin = 28;    // pixels left of the length scale
constexpr double zoomStep = 1.5;   // of a key
constexpr double wheelStep = 1.25; // of a notch of the wheel
constexpr double closeZoom = 4;    // at which a place is looked at
constexpr double markRadius = 9;   // pixels

QColor layerColour(layer_info const & layer)
{
    static std::pair<char const *, char const *> const colours[] = {
        {"signal", "#b5582a"},      {"power_ground", "#8c4a86"}, {"mixed", "#8c4a86"},
        {"solder_mask", "#2e7d4f"}, {"solder_paste", "#6b7280"}, {"silk_screen", "#3f51b5"},
        {"drill", "#1f2937"},       {"rout", "#1f2937"},
    };
    for (auto const & [type, colour] : colours) {
        if (layer.type == type) {
            return colour;
        }
    }
    return "#44617b";
}

} // namespace

BoardView::BoardView(std::string job, std::string step, int unit, QWidget * parent)
    : QWidget(parent), m_job(std::move(job)), m_step(std::move(step))
{
    setMouseTracking(true);
    setMinimumSize(320, 260);
    setCursor(Qt::CrossCursor);

    for (auto const & outline : KVCAM::Embedded::profileOutlines(m_job, m_step)) {
        QPolygonF polygon;
        for (point const & corner : outline) {
            polygon << QPointF(corner.x, corner.y);
        }
        m_profile.addPolygon(polygon);
        m_profile.closeSubpath();
    }
    Step_Config config;
    config.view = handle();
    config.show_param.unit = unit;
    insertStepConfig(config);
    connect(Ext::Notifier::instance(), &Ext::Notifier::viewChanged, this, [this](void const * view) {
        if (view == handle()) {
            update();
        }
    });
}

void BoardView::showLayer(layer_info const & layer)
{
    m_layer = layer.name;
    m_colour = layerColour(layer);
    m_features = KVCAM::Embedded::features(m_job, m_step, m_layer);
    m_shapes = featureShapes(m_features, KVCAM::Embedded::featureDrawings(m_job, m_step, m_layer));
    QRectF extent = m_profile.boundingRect();
    if (extent.isEmpty()) { // a step without a profile is shown as large as its features
        for (FeatureShape const & shape : m_shapes) {
            extent |= shape.path.boundingRect();
        }
    }
    m_port.setExtent(extent);
    m_marked = -1;
    m_picture = {};
    update();
}

void BoardView::markFeature(int feature)
{
    m_marked = feature;
    update();
}

QString BoardView::positionText(double x, double y) const
{
    return QString("x %1 y %2 %3")
        .arg(getUnitJudgeStringMetric(handle(), x), getUnitJudgeStringMetric(handle(), y),
             QString::fromStdString(getUnitStringType(handle(), 0)));
}

QString BoardView::sizeText(double width, double height) const
{
    return QString("%1 x %2 %3")
        .arg(getUnitJudgeStringMetric(handle(), width), getUnitJudgeStringMetric(handle(), height),
             QString::fromStdString(getUnitStringType(handle(), 0)));
}

void BoardView::setMarks(std::vector<Mark> marks)
{
    m_marks = std::move(marks);
    update();
}

void BoardView::centreOn(double x, double y)
{
    if (!std::isfinite(x) || !std::isfinite(y)) {
        return;
    }
    m_port.zoomAbout(rect().center(), std::max(closeZoom / zoom(), 1.0));
    m_port.centreOn({x, y});
    changePort();
}

void BoardView::zoomHome()
{
    m_port.home();
    changePort();
}

void BoardView::zoomIn()
{
    m_port.zoomAbout(QRectF(rect()).center(), zoomStep);
    changePort();
}

void BoardView::zoomOut()
{
    m_port.zoomAbout(QRectF(rect()).center(), 1 / zoomStep);
    changePort();
}

void BoardView::pan(QPointF fraction)
{
    m_port.drag({-fraction.x() * width(), fraction.y() * height()});
    changePort();
}

void BoardView::changePort()
{
    m_picture = {};
    update();
    emit portChanged();
}

int BoardView::markAt(QPointF pixel) const
{
    for (std::size_t i = m_marks.size(); i-- > 0;) {
        QPointF const place = boardToWidget().map(QPointF(m_marks[i].x, m_marks[i].y));
        if (QLineF(place, pixel).length() <= markRadius) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

void BoardView::paintEvent(QPaintEvent * /*event*/)
{
    QTransform const transform = boardToWidget();
    if (m_picture.isNull()) {
        qreal const ratio = devicePixelRatioF();
        m_picture = QPixmap(size() * ratio);
        m_picture.setDevicePixelRatio(ratio);
        m_picture.fill(Qt::white);
        QPainter painter(&m_picture);
        painter.setRenderHint(QPainter::Antialiasing);
        paintBoard(painter, transform);
    }
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_picture);
    painter.setRenderHint(QPainter::Antialiasing);
    for (FeatureShape const & shape : m_shapes) {
        if (shape.feature == m_marked) {
            QPainterPath const path = transform.map(shape.path);
            painter.setPen(QPen(QColor("#0050d0"), 2));
            painter.drawPath(path);
            painter.drawEllipse(path.boundingRect().center(), 14, 14);
        }
    }
    paintMarks(painter);
    paintScale(painter, transform);
}

void BoardView::paintBoard(QPainter & painter, QTransform const & transform) const
{
    painter.setTransform(transform);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor("#f3f6ee"));
    painter.drawPath(m_profile);
    for (FeatureShape const & shape : m_shapes) {
        QColor const colour = shape.positive ? m_colour : QColor("#f3f6ee");
        if (shape.filled) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(colour);
        } else {
            QPen pen(colour, shape.penWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
            pen.setCosmetic(shape.penWidth * transform.m11() < 1); // never thinner than a pixel
            if (pen.isCosmetic()) {
                pen.setWidth(1);
            }
            painter.setPen(pen);
            painter.setBrush(Qt::NoBrush);
        }
        painter.drawPath(shape.path);
    }
    QPen outline(QColor("#20242a"), 1.5);
    outline.setCosmetic(true);
    painter.setPen(outline);
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(m_profile);
}

void BoardView::paintScale(QPainter & painter, QTransform const & transform) const
{
    // The largest round length in the view's unit that takes at most 160 pixels.
    double const perLargeUnit = 1000.0 / getUnitPointData(handle(), 1000.0); // micrometres
    double const available = 160 / transform.m11() / perLargeUnit;
    if (!(available > 0) || !std::isfinite(available) || m_port.scale() <= 0) {
        return;
    }
    double const decade = std::pow(10, std::floor(std::log10(available)));
    double const length = available >= 5 * decade   ? 5 * decade
                          : available >= 2 * decade ? 2 * decade
                                                    : decade;
    double const pixels = length * perLargeUnit * transform.m11();
    QString const text =
        QString::fromStdString(doubleToString(length) + ' ' + getUnitStringType(handle(), 0));
    QLineF const bar(scaleMargin, height() - 10, scaleMargin + pixels, height() - 10);
    QRectF const ground(scaleMargin - 8, height() - 24, pixels + fontMetrics().horizontalAdvance(text) + 24,
                        24);
    painter.fillRect(ground, Qt::white);
    painter.setPen(QPen(QColor("#20242a"), 2));
    painter.drawLine(bar);
    painter.drawText(QPointF(bar.x2() + 8, bar.y2() + 4), text);
}

void BoardView::paintMarks(QPainter & painter) const
{
    QTransform const transform = boardToWidget();
    QRectF const shown = QRectF(rect()).adjusted(-markRadius, -markRadius, markRadius, markRadius);
    QFont font = painter.font();
    font.setBold(true);
    painter.setFont(font);
    for (Mark const & mark : m_marks) {
        QPointF const place = transform.map(QPointF(mark.x, mark.y));
        if (!shown.contains(place)) {
            continue;
        }
        QRectF const sign(place - QPointF(markRadius, markRadius), QSizeF(2 * markRadius, 2 * markRadius));
        painter.setPen(QPen(Qt::white, 1.5));
        painter.setBrush(mark.colour);
        painter.drawEllipse(sign);
        painter.setPen(qGray(mark.colour.rgb()) < 150 ? Qt::white : Qt::black);
        painter.drawText(sign, Qt::AlignCenter, mark.letter);
    }
}

bool BoardView::event(QEvent * event)
{
    if (event->type() == QEvent::ToolTip) {
        auto const * help = static_cast<QHelpEvent *>(event);
        int const mark = markAt(help->pos());
        QToolTip::showText(help->globalPos(),
                           mark < 0 ? QString() : m_marks[static_cast<std::size_t>(mark)].toolTip, this);
        return true;
    }
    return QWidget::event(event);
}

void BoardView::resizeEvent(QResizeEvent * /*event*/)
{
    m_port.setSize(size());
    changePort();
}

void BoardView::wheelEvent(QWheelEvent * event)
{
    m_port.zoomAbout(event->position(), std::pow(wheelStep, event->angleDelta().y() / 120.0));
    changePort();
    event->accept();
}

void BoardView::mouseMoveEvent(QMouseEvent * event)
{
    QPointF const place = m_port.toBoard(event->localPos());
    if (coordinate * readOut = getCoordinate(handle())) {
        readOut->x = place.x();
        readOut->y = place.y();
    }
    emit pointerMoved();
}

void BoardView::mousePressEvent(QMouseEvent * event)
{
    if (int const mark = markAt(event->localPos()); mark >= 0) {
        emit markPicked(mark);
        return;
    }
    QPointF const place = m_port.toBoard(event->localPos());
    for (std::size_t i = m_shapes.size(); i-- > 0;) { // what was drawn last lies on top
        if (m_features[i].kind == 'P' && m_shapes[i].path.boundingRect().contains(place)) {
            markFeature(m_shapes[i].feature);
            emit padPicked(m_shapes[i].feature);
            return;
        }
    }
}

} // namespace Workbench
