#include "feature/FormFile.h"

#include <QFile>
#include <QJsonDocument>
#include <QSaveFile>

namespace Workbench {

namespace {

QJsonObject readForms(QString const & path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

} // namespace

bool isUnit(QJsonValue const & value)
{
    return value.isDouble() && KVCAM::UIAPI::Ext::isUnitCode(value.toInt(-1));
}

bool readForm(QString const & path, QString const & pad, SavedForm & form)
{
    QJsonObject const json = readForms(path)[pad].toObject();
    if (!isUnit(json["unit"]) || !json["fields"].isObject()) {
        return false;
    }
    form = {KVCAM::UIAPI::Ext::unitOfCode(json["unit"].toInt()), json["fields"].toObject(),
            json["extra"].toObject()};
    return true;
}

bool writeForm(QString const & path, QString const & pad, SavedForm const & form)
{
    QJsonObject forms = readForms(path);
    forms[pad] = QJsonObject{{"unit", unitCode(form.unit)}, {"fields", form.fields}, {"extra", form.extra}};
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(forms).toJson()) > 0 && file.commit();
}

} // namespace Workbench
