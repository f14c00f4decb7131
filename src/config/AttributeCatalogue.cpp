#include "config/AttributeCatalogue.h"

#include "config/ConfigFiles.h"
#include "support/HostPaths.h"

#include <QJsonArray>
#include <QJsonObject>

#include <utility>

namespace KVCAM::UIAPI {
namespace {

constexpr ConfigFiles::LoadTexts texts = {"total attributes json文件不存在！路径：",
                                          "total attributes json文件打开失败!路径："};
constexpr char const * arrayKey = "TotalAttributes";
constexpr char const * nameKey = "Attribute";
constexpr char const * hasParamKey = "hasParam";
constexpr char const * unitKey = "unit";
constexpr char const * offeredKey = "ProAttribute";

// Entries that are not strings become empty.
std::vector<std::string> textsOf(QJsonValue const & value, JsonPlace const & place,
                                 FileDiagnostics const & diagnostics)
{
    QJsonArray const array = value.toArray();
    std::vector<std::string> out;
    out.reserve(static_cast<std::size_t>(array.size()));
    for (int i = 0; i < array.size(); ++i) {
        QJsonValue const entry = array.at(i);
        diagnostics.checkType(entry, QJsonValue::String, place, offeredKey);
        out.push_back(ConfigFiles::textOf(entry));
    }
    return out;
}

// Iterate over the members instead of looking them up: faster with thousands of elements, and unknown keys
// turn up as well.
void readAttribute(QJsonObject const & object, JsonPlace const & place, FileDiagnostics const & diagnostics,
                   AttributeMap & out)
{
    std::string name;
    int hasParam = 0;
    int unit = 0;
    std::vector<std::string> offered;
    bool isNamed = false;
    for (auto member = object.constBegin(); member != object.constEnd(); ++member) {
        QString const key = member.key();
        QJsonValue const value = member.value();
        if (key == QLatin1String(nameKey)) {
            isNamed = true;
            diagnostics.checkType(value, QJsonValue::String, place, nameKey);
            name = ConfigFiles::textOf(value);
        } else if (key == QLatin1String(hasParamKey)) {
            diagnostics.checkInt(value, place, hasParamKey);
            hasParam = value.toInt(0);
        } else if (key == QLatin1String(unitKey)) {
            diagnostics.checkInt(value, place, unitKey);
            unit = value.toInt(0);
        } else if (key == QLatin1String(offeredKey)) {
            diagnostics.checkType(value, QJsonValue::Array, place, offeredKey);
            offered = textsOf(value, place, diagnostics);
        } else {
            diagnostics.unknownKey(place, key);
        }
    }
    if (!isNamed) {
        diagnostics.missingKey(place, nameKey);
    }
    auto const [entry, isNew] =
        out.insert_or_assign(std::move(name), std::make_tuple(hasParam, unit, std::move(offered)));
    if (!isNew) {
        diagnostics.report(Ext::DiagnosticKind::DuplicateElement, place.key(),
                           QStringLiteral("\"%1\" replaces an earlier element of the same name.")
                               .arg(QString::fromStdString(entry->first)));
    }
}

} // namespace

void AttributeCatalogue::getParentAttribute(std::vector<std::string> & out) const
{
    out.reserve(out.size() + m_attributes.size());
    for (auto const & entry : m_attributes) {
        out.push_back(entry.first);
    }
}

void AttributeCatalogue::getTotalAttributesFromJson()
{
    readTotalAttributesFromJson(HostPaths::configurationDirectory() + QStringLiteral("attributes.json"));
}

void AttributeCatalogue::readTotalAttributesFromJson(QString const & path)
{
    FileDiagnostics const diagnostics(path);
    QJsonArray const array = ConfigFiles::loadArray(path, texts, arrayKey, diagnostics);
    for (int i = 0; i < array.size(); ++i) {
        QJsonValue const element = array.at(i);
        JsonPlace const place{arrayKey, i};
        if (diagnostics.checkType(element, QJsonValue::Object, place)) {
            readAttribute(element.toObject(), place, diagnostics, m_attributes);
        }
    }
}

} // namespace KVCAM::UIAPI
