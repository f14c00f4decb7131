#include "board/BoardPicture.h"

#include "board/LayerPainter.h"
#include "board/Paths.h"
#include "board/ScanFill.h"
#include "ui/Colours.h"

#include <QDeadlineTimer>
#include <QMutex>
#include <QPainter>
#include <QRunnable>
#include <QThread>
#include <QWaitCondition>

#include <algorithm>
#include <exception>
#include <utility>

namespace Workbench {

namespace {

constexpr double sharedOpacity = 0.75; // of each layer when several are shown
constexpr int mostElements = 2000;     // of an outline for Qt's painter
constexpr int linesAtOnce = 500;       // of a larger one
constexpr int lateAfter = 300;         // milliseconds

// Hairlines, a few at a time, since a large outline with joins may take Qt minutes.
void strokePlainly(QPainter & painter, QPainterPath const & path, std::atomic<bool> const & cancelled)
{
    QVector<QLineF> lines;
    for (int i = 0; i < path.elementCount() && !cancelled; ++i) {
        if (i > 0 && !path.elementAt(i).isMoveTo()) {
            lines.append(QLineF(path.elementAt(i - 1), path.elementAt(i)));
        }
        if (lines.size() == linesAtOnce || i + 1 == path.elementCount()) {
            painter.drawLines(lines);
            lines.clear();
        }
    }
}

// `penWidth` in pixels.
void paintOutline(QImage & picture, QPainterPath const & outline, QTransform const & toPicture,
                  double penWidth, std::atomic<bool> const & cancelled)
{
    QColor const inside("#f3f6ee");
    QPainterPath const path = thinned(toPicture.map(outline), 0.5);
    QPainter painter(&picture);
    if (path.elementCount() <= mostElements) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(QColor(inkColour), penWidth));
        painter.setBrush(inside);
        painter.drawPath(path);
        return;
    }
    painter.drawImage(0, 0, ScanFill{path, {}, picture.rect(), inside, cancelled}.run());
    painter.setPen(QPen(QColor(inkColour), 0));
    strokePlainly(painter, path, cancelled);
}

// False without memory.
bool paintLayer(QImage & image, PictureTask::Layer const & layer, QTransform const & toPicture,
                std::atomic<bool> const & cancelled)
{
    try {
        image.fill(Qt::transparent);
        for (PictureTask::Shapes const & shapes : layer) {
            if (!cancelled) {
                QPainter painter(&image);
                LayerPainter(painter, image.rect(), shapes.layer->colour(), cancelled)
                    .paint(shapes.layer->shapes(), shapes.place * toPicture);
            }
        }
        return !image.isNull();
    } catch (std::exception const &) {
        return false;
    }
}

// Paints the layers onto the board, as many at a time as there are cores, each on its own image. The images
// are used again: touching new memory would take as long as painting a sparse layer.
bool paintLayers(QImage & board, PictureTask const & task, QTransform const & toPicture,
                 std::atomic<bool> const & cancelled)
{
    std::size_t const count = task.layers.size();
    std::size_t const atOnce = static_cast<std::size_t>(std::max(QThread::idealThreadCount(), 1));
    std::vector<QImage> images(std::min(atOnce, count));
    for (QImage & image : images) {
        image = QImage(board.size(), QImage::Format_ARGB32_Premultiplied);
    }
    std::atomic<bool> isPainted{true};
    QThreadPool pool;
    for (std::size_t first = 0; first < count && !cancelled; first += atOnce) {
        std::size_t const together = std::min(atOnce, count - first);
        auto const paint = [&, first](std::size_t i) {
            if (!paintLayer(images[i], task.layers[first + i], toPicture, cancelled)) {
                isPainted = false;
            }
        };
        for (std::size_t i = 1; i < together; ++i) {
            pool.start([paint, i] { paint(i); });
        }
        paint(0);
        pool.waitForDone();
        for (std::size_t i = 0; i < together && isPainted; ++i) {
            QPainter painter(&board);
            painter.setOpacity(count > 1 ? sharedOpacity : 1);
            painter.drawImage(0, 0, images[i]);
        }
    }
    return isPainted;
}

} // namespace

QImage paintPicture(PictureTask const & task, std::atomic<bool> const & cancelled)
{
    QImage board(task.size * task.ratio, QImage::Format_RGB32);
    if (board.isNull()) {
        return {};
    }
    QTransform const toPicture = task.boardToWidget * QTransform::fromScale(task.ratio, task.ratio);
    board.fill(Qt::white);
    paintOutline(board, task.profile, toPicture, 1.5 * task.ratio, cancelled);
    for (PictureTask::Outline const & outline : task.repeats) {
        if (!cancelled) {
            paintOutline(board, outline.path, outline.place * toPicture, task.ratio, cancelled);
        }
    }
    bool const isWhole = paintLayers(board, task, toPicture, cancelled);
    board.setDevicePixelRatio(task.ratio);
    return cancelled || !isWhole ? QImage() : board;
}

// Shared with the thread, which may outlive the interest in it for a moment.
struct BoardPicture::Work
{
    PictureTask task;
    Shown shown;
    std::function<void()> finished;
    std::atomic<bool> cancelled{false};
    QMutex mutex; // for what follows
    QWaitCondition done;
    bool isDone = false;
    QImage image;

    void run()
    {
        QImage made;
        try {
            made = cancelled ? QImage() : paintPicture(task, cancelled);
        } catch (std::exception const &) { // out of memory: no picture, but still a program
            made = {};
        }
        QMutexLocker const lock(&mutex);
        image = std::move(made);
        isDone = true;
        done.wakeAll();
        if (!cancelled) {
            finished();
        }
    }
};

BoardPicture::BoardPicture()
{
    m_pool.setMaxThreadCount(1);
}

BoardPicture::~BoardPicture()
{
    cancel();
    m_pool.waitForDone();
}

void BoardPicture::cancel()
{
    if (m_work != nullptr) {
        m_work->cancelled = true;
    }
}

void BoardPicture::begin(PictureTask task, std::function<void()> finished)
{
    class Runner : public QRunnable
    {
    public:
        explicit Runner(std::shared_ptr<Work> work) : m_work(std::move(work)) {}
        void run() override { m_work->run(); }

    private:
        std::shared_ptr<Work> m_work;
    };
    cancel();
    if (wait(0)) {
        m_since.start();
    }
    m_transform = task.boardToWidget;
    m_work = std::make_shared<Work>();
    settle(task.profile);
    for (PictureTask::Layer const & layer : task.layers) {
        for (PictureTask::Shapes const & shapes : layer) {
            m_work->shown.push_back(shapes.layer);
        }
    }
    m_work->task = std::move(task);
    m_work->finished = std::move(finished);
    m_pool.start(new Runner(m_work)); // the pool deletes it
}

bool BoardPicture::wait(int milliseconds)
{
    if (m_work == nullptr) {
        return true;
    }
    QDeadlineTimer const deadline(milliseconds); // -1 is for ever
    QMutexLocker const lock(&m_work->mutex);
    while (!m_work->isDone && m_work->done.wait(&m_work->mutex, deadline)) {
    }
    if (m_work->isDone && !m_work->image.isNull()) {
        m_finished = {std::exchange(m_work->image, {}), m_transform};
        if (!isSame(m_overviewShows, m_work->shown) || m_transform.m11() <= m_overview.transform.m11()) {
            m_overview = m_finished;
            m_overviewShows = m_work->shown;
        }
    }
    return m_work->isDone;
}

bool BoardPicture::isSame(Shown const & a, Shown const & b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](auto const & one, auto const & other) {
        return !one.owner_before(other) && !other.owner_before(one);
    });
}

bool BoardPicture::isLate()
{
    return !wait(0) && m_since.elapsed() >= lateAfter;
}

void BoardPicture::paint(QPainter & painter)
{
    wait(0);
    QRectF const area(painter.viewport());
    painter.fillRect(area, Qt::white);
    QTransform const place = m_finished.placeFor(m_transform);
    QRectF const covered(QPointF(), QSizeF(m_finished.image.size()) / m_finished.image.devicePixelRatio());
    for (Picture const * picture : {&m_overview, &m_finished}) {
        if (picture->image.isNull() || (picture == &m_overview && place.mapRect(covered).contains(area))) {
            continue;
        }
        painter.setTransform(picture->placeFor(m_transform));
        painter.drawImage(0, 0, picture->image);
    }
    painter.setTransform({});
}

QTransform BoardPicture::Picture::placeFor(QTransform const & now) const
{
    double const scale = transform.m11() == 0 ? 1 : now.m11() / transform.m11();
    return {scale, 0, 0, scale, now.dx() - scale * transform.dx(), now.dy() - scale * transform.dy()};
}

} // namespace Workbench
