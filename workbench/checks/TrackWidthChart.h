#pragma once

#include "checks/AnalysisRun.h"

#include <QWidget>

#include <optional>
#include <vector>

namespace Workbench {

/// A bar chart of the narrowest track of each layer, with the levels as lines. Lengths are in the unit of a
/// view. Each bar shows the sign of its severity as well as the colour.
class TrackWidthChart : public QWidget
{
    Q_OBJECT

public:
    explicit TrackWidthChart(QWidget * parent = nullptr);

    void setWidths(std::vector<LayerWidth> widths,
                   std::optional<KVCAM::UIAPI::Analysis_Ranges_Record> levels);
    void setView(void const * view);
    /// The text of a bar: "top: 4.02 mil (red)". Empty for an invalid index.
    QString barText(std::size_t bar) const;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {160, sizeHint().height()}; }

protected:
    bool event(QEvent * event) override;
    void paintEvent(QPaintEvent * event) override;

private:
    struct Line // of a level
    {
        KVCAM::UIAPI::Ext::Severity severity;
        double mil;
    };

    std::vector<Line> lines() const;
    QRectF plot() const;
    int rowHeight() const;
    double longest() const;
    double place(QRectF const & plot, double mil) const;
    void paintAxis(QPainter & painter, QRectF const & plot) const;
    void paintLevels(QPainter & painter, QRectF const & plot) const;
    void paintBars(QPainter & painter, QRectF const & plot) const;
    QString valueText(LayerWidth const & width) const;

    std::vector<LayerWidth> m_widths;
    std::optional<KVCAM::UIAPI::Analysis_Ranges_Record> m_levels;
    void const * m_view = nullptr;
};

} // namespace Workbench
