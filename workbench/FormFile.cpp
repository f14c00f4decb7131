#include "FormFile.h"

#include <QFile>
#include <QJsonDocument>
#include <QSaveFile>

namespace Workbench {

bool readForm(QString const & path, SavedForm & form)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    QJsonObject const json = QJsonDocument::fromJson(file.readAll()).object();
    if (!json["unit"].isDouble() || !json["fields"].isObject()) {
        return false;
    }
    form = {json["unit"].toInt(), json["fields"].toObject(), json["extra"].toObject()};
    return true;
}

bool writeForm(QString const & path, SavedForm const & form)
{
    QSaveFile file(path);
    QJsonObject const json{{"unit", form.unit}, {"fields", form.fields}, {"extra", form.extra}};
    return file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(json).toJson()) > 0 && file.commit();
}

} // namespace Workbench
