#include "UserTemplates.h"

#include "ConfigDirectory.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <vector>

namespace Workbench {

namespace {

constexpr int firstUserIndex = 2; // however many are shipped

// The templates of a file; an element without its two objects of texts is none.
std::vector<QJsonObject> templatesIn(QString const & path)
{
    std::vector<QJsonObject> templates;
    QJsonArray const elements = readJsonObject(path)["template"].toArray();
    for (auto const & element : elements) {
        QJsonObject const tmpl = element.toObject();
        if (tmpl["prefix"].isObject() && tmpl["suffix"].isObject()) {
            templates.push_back(tmpl);
        }
    }
    return templates;
}

bool isText(QJsonValue const & value, std::string const & text)
{
    return value.toString() == QString::fromStdString(text);
}

} // namespace

QString userTemplatesFolder()
{
    return QDir::currentPath() + "/autoMatrix";
}

QString userTemplatePath(QString const & file)
{
    return userTemplatesFolder() + '/' + file + ".json";
}

bool isStored(KVCAM::UIAPI::AutoMatrixTmp const & tmpl, QString const & file)
{
    auto const templates = templatesIn(userTemplatePath(file));
    auto const & roles = KVCAM::UIAPI::Ext::autoMatrixRoles;
    return templates.size() == 1 && isText(templates[0]["name"], tmpl.name) &&
           std::all_of(roles.begin(), roles.end(), [&](auto const & role) {
               return isText(templates[0]["prefix"].toObject()[role.key], tmpl.*role.prefix) &&
                      isText(templates[0]["suffix"].toObject()[role.key], tmpl.*role.suffix);
           });
}

std::map<int, UserTemplate> userTemplates(std::map<int, KVCAM::UIAPI::AutoMatrixTmp> const & templates)
{
    std::map<int, UserTemplate> result;
    auto const shipped = templatesIn(configurationDirectory() + "/automatrix.json").size();
    int index = firstUserIndex;
    QFileInfoList const files =
        QDir(userTemplatesFolder()).entryInfoList(QDir::Files | QDir::Hidden, QDir::Name);
    for (QFileInfo const & file : files) {
        if (file.suffix() != "json") {
            continue;
        }
        auto const elements = templatesIn(file.filePath());
        for (QJsonObject const & element : elements) {
            auto const found = templates.find(index);
            bool const isTaken = static_cast<std::size_t>(index) <
                                 shipped; // by a shipped one; this one uses the index up all the same
            if (!isTaken && found != templates.end() && isText(element["name"], found->second.name)) {
                result[index] = {file.completeBaseName(), elements.size() == 1};
            }
            ++index;
        }
    }
    return result;
}

} // namespace Workbench
