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

// A member, checked. Counts those that are there.
class Members
{
public:
    Members(QJsonObject const & object, JsonPlace const & place, FileDiagnostics const & diagnostics)
        : m_object(object), m_place(place), m_diagnostics(diagnostics)
    {}
    QJsonValue value(char const * key)
    {
        QJsonValue const value = m_object.value(QLatin1String(key));
        m_found += value.isUndefined() ? 0 : 1;
        return value;
    }
    std::string text(char const * key)
    {
        QJsonValue const found = value(key);
        m_diagnostics.checkType(found, QJsonValue::String, m_place, key);
        return found.toString().toStdString();
    }
    int integer(char const * key)
    {
        QJsonValue const found = value(key);
        m_diagnostics.checkInt(found, m_place, key);
        return found.toInt(0);
    }
    // Entries that are no texts become empty ones.
    std::vector<std::string> texts(char const * key)
    {
        QJsonValue const found = value(key);
        m_diagnostics.checkType(found, QJsonValue::Array, m_place, key);
        QJsonArray const array = found.toArray();
        std::vector<std::string> out;
        out.reserve(static_cast<std::size_t>(array.size()));
        for (QJsonValue const entry : array) {
            m_diagnostics.checkType(entry, QJsonValue::String, m_place, key);
            out.push_back(entry.toString().toStdString());
        }
        return out;
    }
    int found() const { return m_found; }

private:
    QJsonObject const & m_object;
    JsonPlace const & m_place;
    FileDiagnostics const & m_diagnostics;
    int m_found = 0;
};

void readAttribute(QJsonObject const & object, JsonPlace const & place, FileDiagnostics const & diagnostics,
                   AttributeMap & out)
{
    Members members(object, place, diagnostics);
    std::string name = members.text(nameKey);
    if (members.found() == 0) {
        diagnostics.missingKey(place, nameKey);
    }
    int const hasParam = members.integer(hasParamKey);
    int const unit = members.integer(unitKey);
    std::vector<std::string> offered = members.texts(offeredKey);
    diagnostics.checkKeys(object, members.found(), {nameKey, hasParamKey, unitKey, offeredKey}, place);

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
