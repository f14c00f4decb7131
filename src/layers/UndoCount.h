#pragma once

#include "UIAPICommonExport.h"

#include <QString>

/// Additions to the fixed interface. They are opt-in and change none of its results.
namespace KVCAM::UIAPI::Ext {

/// How many operations on a step the engine says it can undo, for a menu entry that shows or greys itself.
/// The engine is only asked: its history is not corrected first, as undo() does, and nothing is written to
/// its database. 0 when it says less or throws, which is logged. No singleton is created.
UIAPICOMMON_EXPORT int undoCount(QString const & job, QString const & step);

} // namespace KVCAM::UIAPI::Ext
