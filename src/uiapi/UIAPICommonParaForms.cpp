#include "uiapi/UIAPICommonPara.h"
#include "uiapi/UIAPICommonParaPrivate.h"
#include "widgets/FormPersistence.h"

namespace KVCAM::UIAPI {

void UIAPICommonPara::readListToJson(QList<QObject *> widgets, QJsonObject & json) const
{
    guardedPara([&] { FormPersistence::read(widgets, json); });
}

void UIAPICommonPara::writeJsonToList(QJsonObject json, QList<QObject *> & widgets) const
{
    guardedPara([&] { FormPersistence::write(json, widgets); });
}

} // namespace KVCAM::UIAPI
