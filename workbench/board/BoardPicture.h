#pragma once

#include "board/LayerShapes.h"

#include <QElapsedTimer>
#include <QImage>
#include <QPainterPath>
#include <QSize>
#include <QThreadPool>
#include <QTransform>

#include <atomic>
#include <functional>
#include <memory>
#include <vector>

class QPainter;

namespace Workbench {

/// What to paint: some layers over a board's profile, at one place and scale.
struct PictureTask
{
    /// An outline, or the shapes of a layer, in the coordinates of a step that is placed on the board.
    struct Outline
    {
        QPainterPath path;
        QTransform place;
    };
    struct Shapes
    {
        std::shared_ptr<LayerShapes const> layer;
        QTransform place;
    };
    /// Drawn on its own, so that negative features erase only their own layer.
    using Layer = std::vector<Shapes>;

    QSize size;       ///< in widget pixels
    double ratio = 1; ///< picture pixels per widget pixel
    QTransform boardToWidget;
    QPainterPath profile;
    std::vector<Outline> repeats; ///< the profiles of repeated steps
    std::vector<Layer> layers;    ///< the first one is at the bottom
};

/// Paints the picture; null when cancelled or out of memory. May run in any thread.
QImage paintPicture(PictureTask const & task, std::atomic<bool> const & cancelled);

/// The picture of a board, made by threads of its own, so that the window stays responsive however much there
/// is to draw. Until it is finished, the previous picture is shown moved and scaled, and around it the one
/// that showed most of the same layers.
class BoardPicture
{
public:
    BoardPicture();
    /// Cancels, and waits for the thread: for the shape being painted, a fraction of a second.
    ~BoardPicture();
    BoardPicture(BoardPicture const &) = delete;
    BoardPicture & operator=(BoardPicture const &) = delete;

    /// Cancels the picture being made and starts a new one. The thread calls `finished` at its end, except
    /// after it was cancelled.
    void begin(PictureTask task, std::function<void()> finished);
    /// Waits until the picture is finished, at most so long (-1: without limit). Returns whether it is.
    bool wait(int milliseconds);
    /// Whether a picture has been missing for 0.3 s.
    bool isLate();
    /// Paints the current state onto a widget.
    void paint(QPainter & painter);

private:
    struct Work;
    struct Picture
    {
        QImage image;
        QTransform transform;
        // Where the image is on a widget that shows the board by another transform.
        QTransform placeFor(QTransform const & now) const;
    };
    // Told apart by what owns them: an address may be used again.
    using Shown = std::vector<std::weak_ptr<LayerShapes const>>;
    static bool isSame(Shown const & a, Shown const & b);
    void cancel();

    std::shared_ptr<Work> m_work; // the latest
    QTransform m_transform;       // of the latest
    Picture m_finished;           // the latest
    Picture m_overview;           // the one with the smallest scale of what the latest shows
    Shown m_overviewShows;
    QElapsedTimer m_since; // when the first of the missing pictures was begun
    QThreadPool m_pool;
};

} // namespace Workbench
