#pragma once

#include <QString>

class QWidget;

namespace KVCAM::UIAPI::UndoCommand {

/// Asks the user and takes the latest operation on a step back; see the flat function undo(). Lets through
/// what the engine throws.
void run(QString const & job, QString const & step, QWidget * parent);

} // namespace KVCAM::UIAPI::UndoCommand
