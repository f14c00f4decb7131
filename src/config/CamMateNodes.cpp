#include "config/CamMateNodes.h"

#include "config/ConfigFiles.h"
#include "support/HostPaths.h"

#include <QJsonArray>
#include <QJsonObject>

#include <set>

namespace KVCAM::UIAPI {
namespace {

constexpr char const * nameKey = "FlowName";

struct FoundName
{
    JsonPlace place;
    QJsonValue value; // undefined where the element has none
};

std::vector<FoundName> findNames(QJsonDocument const & document, FileDiagnostics const & diagnostics)
{
    std::vector<FoundName> found;
    QJsonArray const elements = document.array();
    for (int i = 0; i < elements.size(); ++i) {
        JsonPlace const place{"", i};
        QJsonValue const element = elements.at(i);
        if (!diagnostics.checkType(element, QJsonValue::Object, place)) {
            continue;
        }
        QJsonObject const object = element.toObject();
        QJsonValue const name = object.value(QLatin1String(nameKey));
        if (name.isUndefined()) {
            diagnostics.missingKey(place, nameKey);
        }
        diagnostics.checkKeys(object, name.isUndefined() ? 0 : 1, {nameKey}, place);
        found.push_back({{"", i, nameKey}, name});
    }
    if (document.isObject()) {
        QJsonObject const object = document.object();
        QJsonValue const names = object.value(QLatin1String(nameKey));
        if (names.isUndefined()) {
            diagnostics.missingKey({}, nameKey);
        }
        diagnostics.checkType(names, QJsonValue::Array, {}, nameKey);
        diagnostics.checkKeys(object, names.isUndefined() ? 0 : 1, {nameKey}, {});
        QJsonArray const array = names.toArray();
        for (int i = 0; i < array.size(); ++i) {
            found.push_back({{nameKey, i}, array.at(i)});
        }
    }
    return found;
}

} // namespace

void CamMateNodes::getCamMateNodesFromJson()
{
    readCamMateNodesFromJson(HostPaths::configurationDirectory() + QStringLiteral("cammatenodes.json"));
}

void CamMateNodes::readCamMateNodesFromJson(QString const & path)
{
    JsonFile::ReadResult const result =
        ConfigFiles::load(path, {nullptr, ConfigFiles::parseFailed}, path.toStdString());
    if (result.status != JsonFile::ReadStatus::Ok) {
        return;
    }
    FileDiagnostics const diagnostics(path);
    std::set<QString> seen;
    for (FoundName const & found : findNames(result.document, diagnostics)) {
        if (!diagnostics.checkType(found.value, QJsonValue::String, found.place) || !found.value.isString()) {
            continue;
        }
        QString const name = found.value.toString();
        m_names.push_back(name.toStdString());
        if (!seen.insert(name).second) {
            diagnostics.report(Ext::DiagnosticKind::DuplicateElement, found.place.key(),
                               QStringLiteral("\"%1\" is listed already.").arg(name));
        }
    }
}

} // namespace KVCAM::UIAPI
