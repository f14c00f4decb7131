#include "uiapi/Notifier.h"

#include <QMetaType>

Q_DECLARE_METATYPE(void const *)

namespace KVCAM::UIAPI::Ext {

// Registered by name for queued connections and signal spies.
Notifier::Notifier()
{
    qRegisterMetaType<void const *>("void const*");
    qRegisterMetaType<void const *>("const void*");
    qRegisterMetaType<ViewAspects>("KVCAM::UIAPI::Ext::ViewAspects");
}

Notifier * Notifier::instance()
{
    // Deliberately unowned: views may still change during application shutdown.
    static auto * notifier = new Notifier;
    return notifier;
}

} // namespace KVCAM::UIAPI::Ext
