#include "uiapi/Notifier.h"

namespace KVCAM::UIAPI::Ext {

Notifier * Notifier::instance()
{
    // Deliberately not owned by anything: views may still change while the application is taken down.
    static auto * notifier = new Notifier;
    return notifier;
}

} // namespace KVCAM::UIAPI::Ext
