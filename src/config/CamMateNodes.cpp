#include "config/CamMateNodes.h"

#include "config/ConfigFiles.h"
#include "support/HostPaths.h"

#include <QJsonArray>
#include <QJsonObject>

#include <functional>
#include <set>

namespace KVCAM::UIAPI {
namespace {

constexpr char const * nameKey = "FlowName";

using Take = std::function<void(QJsonValue const &, JsonPlace const &)>;

void readElements(QJsonArray const & elements, FileDiagnostics const & diagnostics, Take const & take)
{
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
        take(name, {"", i, nameKey});
    }
}

void readList(QJsonObject const & object, FileDiagnostics const & diagnostics, Take const & take)
{
    QJsonValue const names = object.value(QLatin1String(nameKey));
    if (names.isUndefined()) {
        diagnostics.missingKey({}, nameKey);
    }
    diagnostics.checkType(names, QJsonValue::Array, {}, nameKey);
    diagnostics.checkKeys(object, names.isUndefined() ? 0 : 1, {nameKey}, {});
    QJsonArray const array = names.toArray();
    for (int i = 0; i < array.size(); ++i) {
        take(array.at(i), {nameKey, i});
    }
}

} // namespace

void CamMateNodes::getCamMateNodesFromJson()
{
    readCamMateNodesFromJson(HostPaths::configurationDirectory() + QStringLiteral("cammatenodes.json"));
}

void CamMateNodes::readCamMateNodesFromJson(QString const & path)
{
    WholeFile::ReadResult const result = ConfigFiles::load(path, {nullptr, ConfigFiles::parseFailed}, path);
    if (result.status != WholeFile::ReadStatus::Ok) {
        return;
    }
    FileDiagnostics const diagnostics(path);
    std::set<std::string> seen;
    auto const take = [&](QJsonValue const & value, JsonPlace const & place) {
        diagnostics.checkType(value, QJsonValue::String, place);
        if (!value.isString()) {
            return;
        }
        m_names.push_back(ConfigFiles::textOf(value));
        if (!seen.insert(m_names.back()).second) {
            diagnostics.report(Ext::DiagnosticKind::DuplicateElement, place.key(),
                               QStringLiteral("\"%1\" is listed already.").arg(value.toString()));
        }
    };
    if (result.document.isArray()) {
        readElements(result.document.array(), diagnostics, take);
    } else {
        readList(result.document.object(), diagnostics, take);
    }
}

} // namespace KVCAM::UIAPI
