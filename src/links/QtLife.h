#pragma once

#include <QObject>

namespace KVCAM::UIAPI {

/// Tells when Qt's sockets are usable, and when an event loop serves them.
class QtLife : public QObject
{
    Q_OBJECT

public:
    /// Never destroyed.
    static QtLife & get();

    /// Whether main() has returned or exit() was called. Static objects are then being destroyed, Qt's before
    /// the host's, and a socket that needs one of them crashes.
    static bool isOver() noexcept;
    /// From now on isOver() becomes true before anything created so far is destroyed. Called automatically
    /// for each QCoreApplication.
    static void watchEnd();

signals:
    /// Emitted in the constructor of each QCoreApplication. Its event loop does not serve sockets bound
    /// earlier.
    void applicationStarted();

private:
    QtLife() = default;
};

} // namespace KVCAM::UIAPI
