#include "uiapi/flat/Forms.h"

#include "uiapi/flat/Forward.h"

namespace KVCAM::UIAPI {

using Flat::onCommonPara;

void readListToJson(QList<QObject *> widgets, QJsonObject & json)
{
    onCommonPara([&](auto & para) { para.readListToJson(widgets, json); });
}

void writeJsonToList(QJsonObject json, QList<QObject *> & widgets)
{
    onCommonPara([&](auto & para) { para.writeJsonToList(json, widgets); });
}

} // namespace KVCAM::UIAPI
