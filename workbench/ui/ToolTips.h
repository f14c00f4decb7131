#pragma once

#include <QKeySequence>
#include <QString>

namespace Workbench {

/// A tool tip that names the keys as well: "Shows the next violation (F12)".
inline QString withKeys(QString const & text, QKeySequence const & keys)
{
    return keys.isEmpty() ? text : text + " (" + keys.toString(QKeySequence::NativeText) + ')';
}

} // namespace Workbench
