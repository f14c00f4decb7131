#pragma once

#include "board/ViewPort.h"
#include "layers/LayerComparison.h"
#include "ui/BackgroundWork.h"

#include <QImage>
#include <QWidget>

#include <memory>

namespace Workbench {

/// The picture of two compared layers. As in a board view, the wheel zooms about the pointer and dragging
/// moves; with the focus, arrows move, + and - zoom and Home shows all. A thread makes the picture; until it
/// is finished, the previous one is shown moved and scaled.
class CompareView : public QWidget
{
    Q_OBJECT

public:
    explicit CompareView(QWidget * parent = nullptr);

    /// Shows the whole of two layers; null shows none.
    void setLayers(std::shared_ptr<ComparedLayers const> layers);
    /// Shows a region from near and frames it.
    void showRegion(QRectF const & box);
    /// The part of the layers that is in view (micrometres).
    QRectF visible() const;
    /// Whether the picture is not finished.
    bool isBusy() const { return m_isStale || m_work.isBusy(); }

    QSize sizeHint() const override { return {640, 480}; }

protected:
    void paintEvent(QPaintEvent * event) override;
    void resizeEvent(QResizeEvent * event) override;
    void wheelEvent(QWheelEvent * event) override;
    void mousePressEvent(QMouseEvent * event) override;
    void mouseMoveEvent(QMouseEvent * event) override;
    void keyPressEvent(QKeyEvent * event) override;

private:
    void changePort();
    void beginPicture();

    std::shared_ptr<ComparedLayers const> m_layers;
    QRectF m_extent;
    QRectF m_framed;
    ViewPort m_port;
    QPointF m_draggedTo;
    bool m_isStale = false; // a new picture has to be started
    QImage m_picture;       // the latest finished one and its transform
    QTransform m_pictureTransform;
    BackgroundWork m_work;
};

} // namespace Workbench
