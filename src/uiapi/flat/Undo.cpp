#include "uiapi/flat/Undo.h"

#include "layers/Undo.h"
#include "support/Guard.h"
#include "support/Log.h"

namespace KVCAM::UIAPI {

// Neither needs nor creates a singleton.
void undo(QString const & job, QString const & step, QWidget * parent)
{
    guarded(Log::commonPara, [&] { UndoCommand::run(job, step, parent); });
}

} // namespace KVCAM::UIAPI
