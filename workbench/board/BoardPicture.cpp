#include "board/BoardPicture.h"

#include "board/LayerPainter.h"
#include "board/Paths.h"
#include "board/ScanFill.h"
#include "ui/Colours.h"

#include <QDeadlineTimer>
#include <QMutex>
#include <QPainter>
#include <QRunnable>
#include <QWaitCondition>

#include <exception>
#include <utility>

namespace Workbench {

namespace {

constexpr double sharedOpacity = 0.75; // of each layer when several are shown
constexpr int mostElements = 2000;     // of an outline for Qt's painter
constexpr int linesAtOnce = 500;       // of a larger one

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

} // namespace

QImage paintPicture(PictureTask const & task, std::atomic<bool> const & cancelled)
{
    QImage board(task.size * task.ratio, QImage::Format_ARGB32_Premultiplied);
    QImage layerImage(board.size(), board.format());
    if (board.isNull() || layerImage.isNull()) {
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
    for (PictureTask::Layer const & layer : task.layers) {
        layerImage.fill(Qt::transparent);
        for (PictureTask::Shapes const & shapes : layer) {
            if (!cancelled) {
                QPainter painter(&layerImage);
                LayerPainter(painter, layerImage.rect(), shapes.layer->colour(), cancelled)
                    .paint(shapes.layer->shapes(), shapes.place * toPicture);
            }
        }
        QPainter painter(&board);
        painter.setOpacity(task.layers.size() > 1 ? sharedOpacity : 1);
        painter.drawImage(0, 0, layerImage);
    }
    board.setDevicePixelRatio(task.ratio);
    return cancelled ? QImage() : board;
}

// Shared with the thread, which may outlive the interest in it for a moment.
struct BoardPicture::Work
{
    PictureTask task;
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
    m_transform = task.boardToWidget;
    m_work = std::make_shared<Work>();
    settle(task.profile);
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
        m_finished = std::exchange(m_work->image, {});
        m_finishedTransform = m_transform;
    }
    return m_work->isDone;
}

void BoardPicture::paint(QPainter & painter)
{
    wait(0);
    painter.fillRect(painter.viewport(), Qt::white);
    if (m_finished.isNull() || m_finishedTransform.m11() == 0) {
        return;
    }
    double const scale = m_transform.m11() / m_finishedTransform.m11();
    painter.setTransform(QTransform(scale, 0, 0, scale, m_transform.dx() - scale * m_finishedTransform.dx(),
                                    m_transform.dy() - scale * m_finishedTransform.dy()));
    painter.drawImage(0, 0, m_finished);
    painter.setTransform({});
}

} // namespace Workbench
