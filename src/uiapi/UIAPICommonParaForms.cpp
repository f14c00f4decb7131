#include "uiapi/UIAPICommonPara.h"
#include "widgets/FormPersistence.h"

namespace KVCAM::UIAPI {

void UIAPICommonPara::readListToJson(QList<QObject *> widgets, QJsonObject & json) const
{
    FormPersistence::read(widgets, json);
}

void UIAPICommonPara::writeJsonToList(QJsonObject json, QList<QObject *> & widgets) const
{
    FormPersistence::write(json, widgets);
}

} // namespace KVCAM::UIAPI
