#pragma once

#include "UIAPICommonExport.h"

#include <QStringList>

/// \addtogroup files
namespace KVCAM::UIAPI::Ext {

/// Restricts delDir() to what is below one of these directories, which replace the previous ones. The listed
/// directories themselves stay. What delDir() always rejects is still rejected. An empty list, the initial
/// state, lifts the restriction.
///
/// Each path is made absolute by this call, with links resolved as far as it exists. Nothing is below a
/// directory that does not exist when delDir() checks, or below a text that is not a path: a list of only
/// such entries forbids every removal. Nothing is logged, no singleton is created. GUI thread only.
/// \since 0.1
UIAPICOMMON_EXPORT void setRemovalRoots(QStringList const & directories);

} // namespace KVCAM::UIAPI::Ext
