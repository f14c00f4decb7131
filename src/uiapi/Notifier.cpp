#include "uiapi/Notifier.h"

#include "support/Guard.h"
#include "support/Log.h"
#include "uiapi/ViewNotification.h"

#include <QHash>
#include <QMetaType>
#include <QPointer>
#include <QVector>

Q_DECLARE_METATYPE(void const *)

namespace KVCAM::UIAPI {
namespace {

// Never destroyed: fields may outlive static objects. The watches of a view are in the order of creation.
QHash<void const *, QVector<Ext::ViewWatch *>> & watches()
{
    static auto * watches = new QHash<void const *, QVector<Ext::ViewWatch *>>;
    return *watches;
}

} // namespace

void notifyOfView(void const * view, Ext::ViewAspects aspects)
{
    guarded(Log::commonPara, [&] {
        auto const own = watches().constFind(view);
        if (own != watches().constEnd()) {
            QVector<QPointer<Ext::ViewWatch>> const told(own->cbegin(), own->cend());
            for (QPointer<Ext::ViewWatch> const & watch : told) {
                if (watch) {
                    // Each in a guard of its own: the others hear of the change whatever one slot throws.
                    guarded(Log::commonPara, [&] { emit watch->changed(aspects); });
                }
            }
        }
    });
    guarded(Log::commonPara, [&] { emit Ext::Notifier::instance()->viewChanged(view, aspects); });
}

namespace Ext {

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

ViewWatch::ViewWatch(void const * view, QObject * parent) : QObject(parent), m_view(view)
{
    if (view != nullptr) {
        watches()[view].append(this);
    }
}

ViewWatch::~ViewWatch()
{
    auto const own = watches().find(m_view);
    if (own != watches().end()) {
        own->removeOne(this);
        if (own->isEmpty()) {
            watches().erase(own);
        }
    }
}

} // namespace Ext

} // namespace KVCAM::UIAPI
