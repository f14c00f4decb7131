#pragma once

#include "UIAPICommonExport.h"

#include <QList>
#include <QString>

namespace KVCAM::UIAPI {

/// Fills `result` with the items that match a pattern from end to end, in their order, in any case. '*'
/// stands for any text; '0' to '9', 'A' to 'Z', 'a' to 'z', '_', '.' and '/' stand for themselves. A pattern
/// that is empty or has another character leaves `result` empty and logs "Illegal characters: " and the
/// pattern.
UIAPICOMMON_EXPORT void find_input_items(QList<QString> items, QString pattern, QList<QString> & result);

} // namespace KVCAM::UIAPI
