#include "config/AttributeCatalogue.h"

#include "config/ConfigFiles.h"
#include "support/HostPaths.h"
#include "support/PlainJson.h"

#include <QJsonArray>
#include <QJsonObject>

#include <cstddef>
#include <optional>
#include <string_view>
#include <tuple>
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

// False for anything that would be a finding too: an unknown key, a name that is missing or taken. Of equal
// keys the last counts, as in a document.
bool readPlainAttribute(PlainJson & json, AttributeMap & out)
{
    std::string_view name;
    int hasParam = 0;
    int unit = 0;
    std::vector<std::string> offered;
    bool isNamed = false;
    bool const isPlain = json.object([&](std::string_view key) {
        if (key == nameKey) {
            isNamed = true;
            return json.text(name);
        }
        if (key == hasParamKey || key == unitKey) {
            return json.number(key == unitKey ? unit : hasParam);
        }
        offered.clear();
        return key == offeredKey && json.array([&] {
            std::string_view text;
            return json.text(text) && (offered.emplace_back(text), true);
        });
    });
    std::size_t const count = out.size();
    out.emplace_hint(out.end(), name, std::make_tuple(hasParam, unit, std::move(offered)));
    return isPlain && isNamed && out.size() > count;
}

// The catalogue, if there is nothing to report about the file.
std::optional<AttributeMap> readPlain(QByteArray const & bytes)
{
    PlainJson json(bytes);
    AttributeMap out;
    int lists = 0;
    bool const isPlain = json.object([&](std::string_view key) {
        ++lists;
        return key == arrayKey && json.array([&] { return readPlainAttribute(json, out); });
    });
    return isPlain && lists == 1 && json.isAtEnd() ? std::optional(std::move(out)) : std::nullopt;
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
    WholeFile::Content const content = WholeFile::read(path);
    if (std::optional<AttributeMap> plain = m_attributes.empty() ? readPlain(content.bytes) : std::nullopt) {
        m_attributes = std::move(*plain);
        return;
    }
    FileDiagnostics const diagnostics(path);
    QJsonArray const array =
        ConfigFiles::arrayOf(WholeFile::parse(content), path, texts, arrayKey, diagnostics);
    for (int i = 0; i < array.size(); ++i) {
        QJsonValue const element = array.at(i);
        JsonPlace const place{arrayKey, i};
        if (diagnostics.checkType(element, QJsonValue::Object, place)) {
            readAttribute(element.toObject(), place, diagnostics, m_attributes);
        }
    }
}

} // namespace KVCAM::UIAPI
