#pragma once

#include "UIAPICommonExport.h"

#include <QString>

class QWidget;

namespace KVCAM::UIAPI {

/// Takes the latest operation on a step back after a question. The engine's history is corrected first, as
/// often as the engine wants; after 1,000 rounds, and then after every 100,000, a WARNING line says so. Then
/// an information box tells that there is nothing to undo, or a question box asks; Yes alone undoes. While
/// the save flag is on, the database twin of each engine call goes before it. The names reach the engine in
/// lower case. What the engine throws is logged and ends the command. GUI thread only.
/// `parent` is the parent of the boxes, not owned; it may be null.
UIAPICOMMON_EXPORT void undo(QString const & job, QString const & step, QWidget * parent);

} // namespace KVCAM::UIAPI
