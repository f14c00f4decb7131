#pragma once

#include <QObject>

namespace KVCAM::UIAPI {

/// The times at which Qt's sockets can be used, and heard.
class QtLife : public QObject
{
    Q_OBJECT

public:
    /// Never destroyed.
    static QtLife & get();

    /// Whether the process is past main(), or exit() was called. Static objects are being destroyed then,
    /// Qt's before those of a host, and a socket that needs one of them crashes.
    static bool isOver() noexcept;
    /// From here on isOver() turns true before anything is destroyed that was made until now. Called for each
    /// QCoreApplication by itself.
    static void watchEnd();

signals:
    /// In the constructor of each QCoreApplication. Its event loop knows no socket that was bound before.
    void applicationStarted();

private:
    QtLife() = default;
};

} // namespace KVCAM::UIAPI
