#include "ui/BackgroundWork.h"

#include <QRunnable>

#include <exception>
#include <utility>

namespace Workbench {

namespace {

class Runner : public QRunnable
{
public:
    explicit Runner(std::function<void()> run) : m_run(std::move(run)) {}
    void run() override { m_run(); }

private:
    std::function<void()> m_run;
};

} // namespace

BackgroundWork::BackgroundWork(QObject * parent) : QObject(parent)
{
    m_pool.setMaxThreadCount(1);
}

BackgroundWork::~BackgroundWork()
{
    cancel();
    m_pool.waitForDone();
}

void BackgroundWork::cancel()
{
    if (m_cancelled != nullptr) {
        *m_cancelled = true;
        m_cancelled = nullptr;
    }
}

void BackgroundWork::begin(std::function<void(Cancelled const &)> work, std::function<void(bool)> done)
{
    cancel();
    auto const cancelled = std::make_shared<Cancelled>(false);
    m_cancelled = cancelled;
    auto const finish = [this, cancelled, done = std::move(done)](bool isWhole) {
        if (!*cancelled) {
            m_cancelled = nullptr;
            done(isWhole);
        }
    };
    m_pool.start(new Runner([this, cancelled, work = std::move(work), finish] { // the pool deletes it
        bool isWhole = true;
        try {
            if (!*cancelled) {
                work(*cancelled);
            }
        } catch (std::exception const &) { // out of memory
            isWhole = false;
        }
        QMetaObject::invokeMethod(
            this, [finish, isWhole] { finish(isWhole); }, Qt::QueuedConnection);
    }));
}

} // namespace Workbench
