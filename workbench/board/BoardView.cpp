#include "board/BoardView.h"

#include "board/BoardTexts.h"
#include "board/MeasureLine.h"
#include "ui/LanguageChange.h"

#include <UIAPICommon.h>

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <set>
#include <utility>

namespace Workbench {

namespace {

using namespace KVCAM::UIAPI;

constexpr double closeZoom = 4; // relative to home, for looking at a place
constexpr double reach = 3;     // pixels from a feature within which a click selects it

} // namespace

BoardView::BoardView(std::string job, std::string step, Unit unit, QWidget * parent)
    : QWidget(parent)
    , m_job(std::move(job))
    , m_step(std::move(step))
    , m_profile(profilePath(m_job, m_step))
    , m_panel(m_job, m_step)
    , m_shown(std::make_shared<LayerShapes>())
{
    setMouseTracking(true);
    setMinimumSize(160, 120);
    setCursor(Qt::CrossCursor);
    setFocusPolicy(Qt::StrongFocus);
    setTextsNowAndLater(*this, [this] {
        setAccessibleName(tr("Board picture"));
        update(); // the text of an empty picture
    });

    Step_Config config;
    config.view = handle();
    config.show_param.unit = unitCode(unit);
    insertStepConfig(config);
    m_late.setSingleShot(true);
    m_late.setInterval(320); // a little after the picture says so
    connect(&m_late, &QTimer::timeout, this, [this] { update(); });
    connect(Ext::Notifier::instance(), &Ext::Notifier::viewChanged, this, [this](void const * view) {
        if (view == handle()) {
            update();
        }
    });
}

void BoardView::showLayer(layer_info const & layer)
{
    m_shown = shapesOf(layer);
    m_selected.clear();
    updateLayers();
    emit selectionShown();
}

void BoardView::showBackgroundLayers(std::vector<layer_info> layers)
{
    m_background = std::move(layers);
    updateLayers();
}

void BoardView::reload()
{
    m_known.clear();
    m_panel.keep({});
    m_selected.clear();
    if (!layer().empty()) {
        m_shown = shapesOf(layer_info(m_shown->info()));
    }
    updateLayers();
    emit selectionShown();
}

std::shared_ptr<LayerShapes const> BoardView::shapesOf(layer_info const & layer)
{
    auto & known = m_known[layer.name];
    if (known == nullptr) {
        known = std::make_shared<LayerShapes const>(m_job, m_step, layer);
    }
    return known;
}

void BoardView::updateLayers()
{
    QRectF extent = m_profile.boundingRect();
    if (KVCAM::Embedded::Box box;
        extent.isEmpty() && KVCAM::Embedded::profileBox(m_job, m_step, box)) { // of what it repeats
        extent = QRectF(QPointF(box.left, box.bottom), QPointF(box.right, box.top));
    }
    if (extent.isEmpty()) { // a step without a profile is as large as its features
        extent = m_shown->extent();
    }
    m_port.setSize(size());
    m_port.setExtent(extent);
    changePort();
}

QString BoardView::emptyText() const
{
    bool const isEmpty = features().empty() && m_background.empty() && m_panel.outlines().empty();
    return isEmpty ? emptyLayerText(*m_shown) : QString();
}

void BoardView::select(FeatureSelection::Set features)
{
    m_selected = std::move(features);
    update();
    emit selectionShown();
}

void BoardView::setMarks(std::vector<Mark> marks)
{
    m_marks = std::move(marks);
    update();
}

void BoardView::centreOn(double x, double y)
{
    if (std::isfinite(x) && std::isfinite(y)) {
        m_port.zoomAbout(QRectF(rect()).center(), std::max(closeZoom / zoom(), 1.0));
        m_port.centreOn({x, y});
        changePort();
    }
}

void BoardView::zoomHome()
{
    m_port.home();
    changePort();
}

void BoardView::zoomFit()
{
    QRectF extent = m_shown->extent() | m_panel.extent(m_shown->info());
    for (layer_info const & layer : m_background) {
        extent |= shapesOf(layer)->extent() | m_panel.extent(layer);
    }
    m_port.show(extent);
    changePort();
}

void BoardView::zoomIn()
{
    m_port.press(Qt::Key_Plus);
    changePort();
}

void BoardView::zoomOut()
{
    m_port.press(Qt::Key_Minus);
    changePort();
}

void BoardView::pan(QPointF fraction)
{
    m_port.drag({-fraction.x() * width(), fraction.y() * height()});
    changePort();
}

void BoardView::changePort()
{
    m_isStale = true;
    update();
    emit portChanged();
}

void BoardView::beginPicture()
{
    m_isStale = false;
    std::vector<std::shared_ptr<LayerShapes const>> layers;
    for (auto layer = m_background.rbegin(); layer != m_background.rend(); ++layer) {
        if (layer->name != m_shown->info().name) {
            layers.push_back(shapesOf(*layer));
        }
    }
    layers.push_back(m_shown);
    m_known.clear(); // layers that are not shown are read again when needed
    std::set<std::string> names;
    PictureTask task{size(), devicePixelRatioF(), boardToWidget(), m_profile, m_panel.outlines(), {}};
    for (auto const & layer : layers) {
        m_known[layer->info().name] = layer;
        names.insert(layer->info().name);
        task.layers.push_back(m_panel.shapes(layer->info()));
        task.layers.back().push_back({layer, {}});
    }
    m_panel.keep(names);
    if (m_port.scale() <= 0) { // no place is anywhere
        task.layers.clear();
    }
    m_late.start();
    m_picture.begin(std::move(task), [this] { // called by another thread
        QMetaObject::invokeMethod(
            this, [this] { update(); }, Qt::QueuedConnection);
    });
}

void BoardView::finishPicture()
{
    if (m_isStale) {
        beginPicture();
    }
    m_picture.wait(-1);
    update();
}

void BoardView::paintEvent(QPaintEvent * /*event*/)
{
    if (m_isStale) {
        beginPicture();
    }
    QPainter painter(this);
    m_picture.paint(painter);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_port.scale() > 0 && !m_selected.empty()) {
        FeatureSelection::paint(painter, shapes(), m_selected, boardToWidget(), m_port.visible());
    }
    paintMarks(painter, m_marks, boardToWidget());
    if (m_measure && m_port.scale() > 0) {
        paintMeasuredLine(painter, handle(), *m_measure, boardToWidget());
    }
    if (m_port.scale() > 0) {
        paintLengthScale(painter, handle(), m_port.scale());
    }
    painter.setPen(QColor("#5f6672"));
    painter.drawText(rect().adjusted(20, 20, -20, -20), Qt::AlignCenter | Qt::TextWordWrap, emptyText());
    if (m_picture.isLate()) {
        painter.drawText(rect().adjusted(20, 8, -20, -8), Qt::AlignTop | Qt::AlignRight, tr("Drawing..."));
    }
    if (hasFocus()) {
        painter.setPen(QPen(palette().highlight().color(), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
}

bool BoardView::event(QEvent * event)
{
    if (event->type() == QEvent::ToolTip) {
        auto const * help = static_cast<QHelpEvent *>(event);
        int const mark = markAt(help->pos(), m_marks, boardToWidget());
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
    m_port.turn(event->position(), event->angleDelta().y());
    changePort();
    event->accept();
}

void BoardView::mousePressEvent(QMouseEvent * event)
{
    m_pressedAt = event->localPos();
    m_draggedTo = event->localPos();
    m_isDragging = event->button() == Qt::MiddleButton;
}

void BoardView::mouseMoveEvent(QMouseEvent * event)
{
    if ((event->buttons() & (Qt::LeftButton | Qt::MiddleButton)) != 0) {
        m_isDragging = m_isDragging || (event->localPos() - m_pressedAt).manhattanLength() >=
                                           QApplication::startDragDistance();
        if (m_isDragging) {
            m_port.drag(event->localPos() - m_draggedTo);
            m_draggedTo = event->localPos();
            changePort();
        }
    }
    QPointF const place = m_port.toBoard(event->localPos());
    if (coordinate * readOut = getCoordinate(handle())) {
        readOut->x = place.x();
        readOut->y = place.y();
    }
    emit pointerMoved();
}

void BoardView::mouseReleaseEvent(QMouseEvent * event)
{
    if (event->button() == Qt::LeftButton && !m_isDragging) {
        if ((event->modifiers() & Qt::ControlModifier) != 0) {
            selectAt(event->localPos(), true);
        } else {
            pickAt(event->localPos());
        }
    }
    m_isDragging = false;
}

void BoardView::pickAt(QPointF pixel)
{
    if (int const mark = markAt(pixel, m_marks, boardToWidget()); mark >= 0) {
        emit markPicked(mark);
        return;
    }
    selectAt(pixel, false);
}

void BoardView::selectAt(QPointF pixel, bool toggles)
{
    int const before = !toggles && m_selected.size() == 1 ? *m_selected.begin() : -1;
    int const feature = m_port.scale() > 0 ? FeatureSelection::featureAt(shapes(), m_port.toBoard(pixel),
                                                                         reach / m_port.scale(), before)
                                           : -1;
    FeatureSelection::Set selected = toggles ? m_selected : FeatureSelection::Set();
    if (feature >= 0 && selected.erase(feature) == 0) {
        selected.insert(feature);
    }
    if (selected != m_selected) {
        select(std::move(selected));
        emit selectionChanged();
    }
}

void BoardView::keyPressEvent(QKeyEvent * event)
{
    bool const isSign = event->key() == Qt::Key_Plus || event->key() == Qt::Key_Minus;
    Qt::KeyboardModifiers const without = // Shift with an arrow belongs to the hot keys
        isSign ? Qt::KeypadModifier | Qt::ShiftModifier : Qt::KeyboardModifiers(Qt::KeypadModifier);
    if ((event->modifiers() & ~without) != 0) {
        return QWidget::keyPressEvent(event);
    }
    if (event->key() == Qt::Key_Delete) {
        emit deleteAsked();
    } else if (m_port.press(event->key())) {
        changePort();
    } else {
        QWidget::keyPressEvent(event);
    }
}

} // namespace Workbench
