#pragma once

#include "UIAPICommonExport.h"

#include <QFlags>
#include <QMetaType>
#include <QObject>

namespace KVCAM::UIAPI::Ext {

/// What changed in a view's record.
enum class ViewAspect : int
{
    Unit = 1,           ///< the unit of the show parameters took another value
    ShowParameters = 2, ///< the show parameters were stored, the same value included
    Selection = 4       ///< the selection settings were stored, the same value included
};
Q_DECLARE_FLAGS(ViewAspects, ViewAspect)
Q_DECLARE_OPERATORS_FOR_FLAGS(ViewAspects)

/// Tells who listens that a view's state changed. One object for the process; it is never destroyed, and
/// asking for it creates no singleton of the library.
/// \since 0.1
class UIAPICOMMON_EXPORT Notifier : public QObject
{
    Q_OBJECT

public:
    /// The object, created at the first call.
    static Notifier * instance();

signals:
    /// Emitted once for each store into a registered view, after the engine was told (also when the engine
    /// threw: the record holds the new value; a slot must not throw, and what one throws is logged and
    /// changes no result), and after the registration of a view with all three aspects. `view` is the handle;
    /// read the state itself through the library.
    void viewChanged(void const * view, KVCAM::UIAPI::Ext::ViewAspects aspects);

private:
    Notifier();
};

} // namespace KVCAM::UIAPI::Ext

Q_DECLARE_METATYPE(KVCAM::UIAPI::Ext::ViewAspects)
