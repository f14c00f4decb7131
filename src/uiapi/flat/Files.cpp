#include "uiapi/flat/Files.h"

#include "uiapi/flat/Forward.h"

namespace KVCAM::UIAPI {

using Flat::onCommonPara;

void find_input_items(QList<QString> items, QString pattern, QList<QString> & result)
{
    onCommonPara([&](auto & para) { para.find_input_items(items, pattern, result); });
}

} // namespace KVCAM::UIAPI
