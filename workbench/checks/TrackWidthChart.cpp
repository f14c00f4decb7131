#include "checks/TrackWidthChart.h"

#include "checks/MeasureTexts.h"
#include "ui/Units.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStringList>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace Workbench {

using namespace KVCAM::UIAPI;

namespace {

constexpr int gap = 6; // pixels around texts
} // namespace

TrackWidthChart::TrackWidthChart(QWidget * parent) : QWidget(parent)
{
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
}

void TrackWidthChart::setWidths(Ext::TrackWidths widths)
{
    m_widths = std::move(widths);
    QStringList texts; // for screen readers
    for (std::size_t i = 0; i < m_widths.layers.size(); ++i) {
        texts.append(barText(i));
    }
    setAccessibleDescription(texts.join('\n'));
    updateGeometry();
    update();
}

void TrackWidthChart::setView(void const * view)
{
    m_view = view;
    setWidths(std::move(m_widths));
}

QString TrackWidthChart::valueText(Ext::LayerWidth const & width) const
{
    if (!width.measured) {
        return tr("no tracks");
    }
    QString const value = measuredText(m_view, *width.measured);
    return width.severity == Ext::Severity::None ? value : value + "  " + Ext::severitySign(width.severity);
}

QString TrackWidthChart::barText(std::size_t bar) const
{
    if (bar >= m_widths.layers.size()) {
        return {};
    }
    Ext::LayerWidth const & width = m_widths.layers[bar];
    QString const layer = QString::fromStdString(width.layer);
    if (!width.measured) {
        return layer + ": " + tr("no tracks");
    }
    return QString("%1: %2 %3 (%4)")
        .arg(layer, measuredText(m_view, *width.measured), smallUnitName(m_view),
             Ext::severityName(width.severity));
}

QSize TrackWidthChart::sizeHint() const
{
    int const rows = static_cast<int>(std::min<std::size_t>(m_widths.layers.size(), 100000));
    return {320, (rows + 2) * rowHeight() + 3 * gap};
}

bool TrackWidthChart::event(QEvent * event)
{
    if (event->type() == QEvent::ToolTip) {
        auto const & help = static_cast<QHelpEvent const &>(*event);
        double const row = (help.pos().y() - plot().top()) / rowHeight();
        QToolTip::showText(help.globalPos(), row < 0 ? QString() : barText(static_cast<std::size_t>(row)),
                           this);
        return true;
    }
    return QWidget::event(event);
}

int TrackWidthChart::rowHeight() const
{
    return fontMetrics().height() + gap;
}

// The area of the bars: below the letters of the levels, above the axis, between names and values.
QRectF TrackWidthChart::plot() const
{
    int names = 0;
    int values = 0;
    for (Ext::LayerWidth const & width : m_widths.layers) {
        names = std::max(names, fontMetrics().horizontalAdvance(QString::fromStdString(width.layer)) + 2);
        values = std::max(values, fontMetrics().horizontalAdvance(valueText(width)));
    }
    double const left = std::min<double>(names, this->width() * 0.35) + 2 * gap;
    double const right = std::max<double>(this->width() - values - 3 * gap, left + 1);
    return {left, static_cast<double>(rowHeight()), right - left,
            static_cast<double>(m_widths.layers.size()) * rowHeight()};
}

Ext::ChartAxis TrackWidthChart::axis() const
{
    return Ext::trackWidthAxis(m_widths, Ext::unitOf(m_view));
}

// In the small unit of the view.
double TrackWidthChart::place(QRectF const & plot, double length) const
{
    return plot.left() + plot.width() * length / axis().end;
}

double TrackWidthChart::place(QRectF const & plot, Ext::Length length) const
{
    return place(plot, length.to(Ext::unitOf(m_view), Ext::LengthScale::Small));
}

void TrackWidthChart::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_widths.layers.empty()) {
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, tr("No copper layer was measured."));
        return;
    }
    QRectF const bars = plot();
    paintAxis(painter, bars);
    paintBars(painter, bars);
    paintLevels(painter, bars);
}

void TrackWidthChart::paintAxis(QPainter & painter, QRectF const & plot) const
{
    QRectF const foot(plot.left(), plot.bottom() + gap, plot.width(), rowHeight());
    QColor const grid = palette().color(QPalette::Midlight);
    Ext::ChartAxis const scale = axis();
    for (int tick = 0; tick * scale.step <= scale.end; ++tick) {
        double const x = place(plot, tick * scale.step);
        painter.setPen(grid);
        painter.drawLine(QPointF(x, plot.top()), QPointF(x, plot.bottom() + gap / 2.0));
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(QRectF(x - 40, foot.top(), 80, foot.height()), Qt::AlignHCenter | Qt::AlignTop,
                         QString::fromStdString(doubleToString(tick * scale.step)));
    }
    painter.drawText(QRectF(foot.right() + gap, foot.top(), width() - foot.right() - gap, foot.height()),
                     Qt::AlignRight | Qt::AlignTop, smallUnitName(m_view) + ' ');
}

void TrackWidthChart::paintLevels(QPainter & painter, QRectF const & plot) const
{
    double free = 0; // where the next letter fits
    for (Ext::LevelLine const & level : m_widths.levels) {
        double const x = place(plot, level.length);
        if (x > plot.right()) {
            continue;
        }
        painter.setPen(QPen(colourOf(level.severity), 1.5, Qt::DashLine));
        painter.drawLine(QPointF(x, plot.top() - gap / 2.0), QPointF(x, plot.bottom()));
        double const half = fontMetrics().horizontalAdvance(Ext::severitySign(level.severity)) / 2.0;
        double const middle = std::max(x, free + half);
        painter.drawText(QRectF(middle - half, 0, 2 * half + 1, plot.top() - gap / 2.0), Qt::AlignCenter,
                         Ext::severitySign(level.severity));
        free = middle + half + gap;
    }
}

void TrackWidthChart::paintBars(QPainter & painter, QRectF const & plot) const
{
    double top = plot.top();
    for (Ext::LayerWidth const & width : m_widths.layers) {
        QRectF const row(plot.left(), top, plot.width(), rowHeight());
        top += rowHeight();
        painter.setPen(palette().color(QPalette::Text));
        QRectF const name(gap, row.top(), plot.left() - 2 * gap, row.height());
        painter.drawText(name, Qt::AlignRight | Qt::AlignVCenter,
                         fontMetrics().elidedText(QString::fromStdString(width.layer), Qt::ElideMiddle,
                                                  static_cast<int>(name.width())));
        double const end = place(plot, width.measured.value_or(Ext::Length()));
        painter.fillRect(QRectF(row.left(), row.top() + 3, end - row.left(), row.height() - 6),
                         colourOf(width.severity));
        painter.setPen(width.severity == Ext::Severity::None ? palette().color(QPalette::Text)
                                                             : colourOf(width.severity));
        painter.drawText(QRectF(row.right() + gap, row.top(), this->width() - row.right(), row.height()),
                         Qt::AlignLeft | Qt::AlignVCenter, valueText(width));
    }
}

} // namespace Workbench
