#pragma once

#include "UIAPICommonExport.h"

#include <QString>

/// \addtogroup undoing
namespace KVCAM::UIAPI::Ext {

/// The number of operations on a step that the engine reports as undoable, to enable or disable a menu entry.
/// The engine is only queried: unlike undo(), this does not correct its history first, and nothing is written
/// to its database. 0 if it reports less or throws, which is logged. No singleton is created.
/// \since 0.1
[[nodiscard]] UIAPICOMMON_EXPORT int undoCount(QString const & job, QString const & step);

} // namespace KVCAM::UIAPI::Ext
