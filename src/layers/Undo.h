#pragma once

#include <QString>

class QWidget;

namespace KVCAM::UIAPI::UndoCommand {

/// Asks the user and undoes the latest operation on a step; see the flat function undo(). Engine exceptions
/// propagate.
void run(QString const & job, QString const & step, QWidget * parent);

} // namespace KVCAM::UIAPI::UndoCommand
