#pragma once

#include "UIAPICommonExport.h"

#include <QFlags>
#include <QMetaType>
#include <QObject>

/// \addtogroup view_changes
namespace KVCAM::UIAPI::Ext {

/// What changed in a view's record.
enum class ViewAspect : int
{
    Unit = 1,           ///< the unit of the show parameters changed
    ShowParameters = 2, ///< the show parameters were stored, even if unchanged
    Selection = 4       ///< the selection settings were stored, even if unchanged
};
Q_DECLARE_FLAGS(ViewAspects, ViewAspect)
Q_DECLARE_OPERATORS_FOR_FLAGS(ViewAspects)

/// Notifies listeners that a view's state changed. One object per process, never destroyed. Accessing it
/// creates none of the library's singletons.
/// \since 0.1
class UIAPICOMMON_EXPORT Notifier : public QObject
{
    Q_OBJECT

public:
    /// The object, created on the first call.
    static Notifier * instance();

signals:
    /// Emitted once per store into a registered view, after the push to the engine, and after a view is
    /// registered, with all three aspects. Also emitted if the engine threw: the record holds the new value.
    /// A slot must not throw; if it does, the exception is logged and changes no result. `view` is the
    /// handle; read the state itself through the library.
    void viewChanged(void const * view, KVCAM::UIAPI::Ext::ViewAspects aspects);

private:
    Notifier();
};

/// Notifies of the changes of one view. However many watches there are, a change costs only those of its own
/// view, where a slot at Notifier::viewChanged() is called for every view. GUI thread only.
/// \since 0.1
class UIAPICOMMON_EXPORT ViewWatch : public QObject
{
    Q_OBJECT

public:
    /// Watches a handle, registered or not; null is never told of. Creates none of the library's singletons.
    explicit ViewWatch(void const * view, QObject * parent = nullptr);
    ~ViewWatch() override;

    /// The handle given to the constructor.
    void const * view() const { return m_view; }

signals:
    /// Like Notifier::viewChanged() of this view, and just before it. A slot may delete any watch.
    void changed(KVCAM::UIAPI::Ext::ViewAspects aspects);

private:
    void const * m_view;
};

} // namespace KVCAM::UIAPI::Ext

Q_DECLARE_METATYPE(KVCAM::UIAPI::Ext::ViewAspects)
