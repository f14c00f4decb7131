#include "uiapi/Notifier.h"

#include <QMetaType>

Q_DECLARE_METATYPE(void const *)

namespace KVCAM::UIAPI::Ext {

// Known by name, so that connections may be queued and signals be spied on.
Notifier::Notifier()
{
    qRegisterMetaType<void const *>("void const*");
    qRegisterMetaType<void const *>("const void*");
    qRegisterMetaType<ViewAspects>("KVCAM::UIAPI::Ext::ViewAspects");
}

Notifier * Notifier::instance()
{
    // Deliberately not owned by anything: views may still change while the application is taken down.
    static auto * notifier = new Notifier;
    return notifier;
}

} // namespace KVCAM::UIAPI::Ext
