#pragma once

#include <QObject>
#include <QThreadPool>

#include <atomic>
#include <functional>
#include <memory>

namespace Workbench {

/// Does one piece of work at a time in a thread of its own; new work cancels what was begun.
class BackgroundWork : public QObject
{
public:
    using Cancelled = std::atomic<bool>;

    explicit BackgroundWork(QObject * parent = nullptr);
    /// Cancels, and waits until the work has noticed.
    ~BackgroundWork() override;

    /// Calls `work` in the thread. It is to look at the flag now and then, and to use nothing that others
    /// change. Then calls `done` in the thread of this object, with whether the work ended without an
    /// exception; not after it was cancelled.
    void begin(std::function<void(Cancelled const &)> work, std::function<void(bool)> done);
    void cancel();
    bool isBusy() const { return m_cancelled != nullptr; }

private:
    std::shared_ptr<Cancelled> m_cancelled; ///< of the latest work; null when that is done
    QThreadPool m_pool;
};

} // namespace Workbench
