#include "job/ReadingProgress.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QThreadPool>
#include <QTimer>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <limits>
#include <memory>
#include <mutex>
#include <utility>

namespace Workbench {
namespace {

constexpr qint64 patience = 300;     // milliseconds without a dialog
constexpr qint64 betweenEvents = 50; // milliseconds, if all readings are quick
constexpr std::chrono::milliseconds quick{10};
constexpr std::chrono::milliseconds betweenLooks{15};

} // namespace

// Shared with the thread, which may outlive the progress.
struct ReadingProgress::Work
{
    explicit Work(KVCAM::Embedded::Reading toRead) : reading(std::move(toRead)) {}

    void run()
    {
        reading.run(stop);
        std::lock_guard<std::mutex> const lock(mutex);
        isDone = true;
        done.notify_all();
    }
    bool waitFor(std::chrono::milliseconds time) const
    {
        std::unique_lock<std::mutex> lock(mutex);
        return done.wait_for(lock, time, [this] { return isDone; });
    }

    KVCAM::Embedded::Reading reading;
    std::atomic<bool> stop{false};
    mutable std::mutex mutex;
    mutable std::condition_variable done;
    bool isDone = false;
};

ReadingProgress::ReadingProgress(QString const & title)
{
    m_time.start();
    m_handled.start();
    m_dialog.setWindowTitle(title);
    m_dialog.setCancelButtonText(QCoreApplication::translate("Workbench", "Stop"));
    m_dialog.setWindowModality(Qt::ApplicationModal);
    m_dialog.setAttribute(Qt::WA_QuitOnClose, false); // closing it stops reading
    m_dialog.setAutoReset(false);
    // It is shown by handleEvents(): by itself, it would handle events in setValue().
    m_dialog.setMinimumDuration(std::numeric_limits<int>::max());
    m_dialog.setRange(0, 0);
}

void ReadingProgress::setCount(int count)
{
    m_done = 0;
    m_dialog.setRange(0, count);
    m_dialog.setValue(0);
}

bool ReadingProgress::run(KVCAM::Embedded::Reading reading)
{
    if (m_isStopped) {
        return false;
    }
    auto const work = std::make_shared<Work>(std::move(reading));
    // The program ends only after the threads of this pool.
    QThreadPool::globalInstance()->start([work] { work->run(); });
    if (!work->waitFor(quick) || m_handled.elapsed() > betweenEvents) {
        handleEvents(*work);
    }
    if (m_isStopped) {
        work->stop = true;
        m_dialog.hide();
        return false;
    }
    m_dialog.setValue(++m_done);
    return true;
}

// At least once, and until the work is done or stopped.
void ReadingProgress::handleEvents(Work const & work)
{
    constexpr int ours = 1; // what only this function leaves its loop with
    QEventLoop loop;
    QTimer timer;
    bool isOver = false;
    bool isShown = m_dialog.isVisible();
    QObject::connect(&timer, &QTimer::timeout, &loop, [&] {
        timer.setInterval(betweenLooks);
        m_isStopped = m_dialog.isDialogStop() || m_dialog.wasCanceled();
        isOver = m_isStopped || work.waitFor(std::chrono::milliseconds(0));
        if (!isOver && !m_dialog.isVisible() && m_time.elapsed() >= patience) {
            m_dialog.show();
        }
        if (isOver || isShown != m_dialog.isVisible()) {
            loop.exit(ours);
        }
    });
    timer.start(0);
    while (!isOver) {
        isShown = m_dialog.isVisible();
        // Until the dialog blocks the windows, what the user does with them has to wait.
        if (loop.exec(isShown ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents) != ours) {
            m_isQuit = true;
            m_isStopped = true;
            isOver = true;
            // The loop of the program may not have begun yet.
            QTimer::singleShot(0, QCoreApplication::instance(), &QCoreApplication::quit);
        }
    }
    m_handled.start();
}

} // namespace Workbench
