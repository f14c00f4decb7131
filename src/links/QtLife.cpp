#include "links/QtLife.h"

#include <QCoreApplication>

#include <cstdlib>

namespace KVCAM::UIAPI {
namespace {

bool over = false;

void startApplication()
{
    QtLife::watchEnd();
    emit QtLife::get().applicationStarted();
}
Q_COREAPP_STARTUP_FUNCTION(startApplication)

} // namespace

QtLife & QtLife::get()
{
    static auto * const life = new QtLife;
    return *life;
}

bool QtLife::isOver() noexcept
{
    return over;
}

// Handlers run in reverse order of registration.
void QtLife::watchEnd()
{
    std::atexit([] { over = true; });
}

} // namespace KVCAM::UIAPI
