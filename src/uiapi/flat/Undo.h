#pragma once

#include "UIAPICommonExport.h"

#include <QString>

class QWidget;

/// \addtogroup undoing
namespace KVCAM::UIAPI {

/// Undoes the latest operation on a step after asking the user. First the engine's history is corrected, as
/// often as the engine requests; after 1,000 rounds, and then every 100,000, a WARNING line says so. Then an
/// information box reports that there is nothing to undo, or a question box asks; only Yes undoes. While the
/// save flag is on, each engine call is preceded by its database twin. The names are passed to the engine in
/// lower case. An engine exception is logged and ends the command. GUI thread only. `parent` is the parent of
/// the boxes, not owned; may be null.
UIAPICOMMON_EXPORT void undo(QString const & job, QString const & step, QWidget * parent);

} // namespace KVCAM::UIAPI
