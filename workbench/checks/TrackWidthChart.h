#pragma once

#include <UIAPICommonExt.h>

#include <QWidget>

namespace Workbench {

/// A bar chart of the narrowest track of each layer, with the levels as lines. Lengths are in the unit of a
/// view. Each bar shows the sign of its severity as well as the colour.
class TrackWidthChart : public QWidget
{
    Q_OBJECT

public:
    explicit TrackWidthChart(QWidget * parent = nullptr);

    void setWidths(KVCAM::UIAPI::Ext::TrackWidths widths);
    void setView(void const * view);
    /// The text of a bar: "top: 4.02 mil (red)". Empty for an invalid index.
    QString barText(std::size_t bar) const;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {160, sizeHint().height()}; }

protected:
    bool event(QEvent * event) override;
    void paintEvent(QPaintEvent * event) override;

private:
    QRectF plot() const;
    int rowHeight() const;
    /// In the small unit of the view, which may have changed since the widths were set.
    KVCAM::UIAPI::Ext::ChartAxis axis() const;
    double place(QRectF const & plot, double length) const;
    double place(QRectF const & plot, KVCAM::UIAPI::Ext::Length length) const;
    void paintAxis(QPainter & painter, QRectF const & plot) const;
    void paintLevels(QPainter & painter, QRectF const & plot) const;
    void paintBars(QPainter & painter, QRectF const & plot) const;
    QString valueText(KVCAM::UIAPI::Ext::LayerWidth const & width) const;

    KVCAM::UIAPI::Ext::TrackWidths m_widths;
    void const * m_view = nullptr;
};

} // namespace Workbench
