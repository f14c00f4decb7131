#include "config/ServerSettings.h"

#include <QJsonObject>

#include <algorithm>
#include <string_view>
#include <type_traits>

namespace KVCAM::UIAPI {
namespace {

constexpr bool keysDiffer(SettingField const & field)
{
    return std::string_view(field.readKey) != field.writtenKey;
}

constexpr std::size_t fieldsNotReadBack()
{
    std::size_t count = 0;
    for (SettingField const & field : settingFields) {
        count += keysDiffer(field) ? 1 : 0;
    }
    return count;
}
static_assert(fieldsNotReadBack() == 4);

void read(QJsonValue const & value, std::string & out)
{
    out = value.toString().toStdString();
}

void read(QJsonValue const & value, int & out)
{
    out = value.toInt(0);
}

void read(QJsonValue const & value, bool & out)
{
    out = value.toBool(false);
}

void read(QJsonValue const & value, double & out)
{
    out = value.toDouble(0.0);
}

template <class Value>
constexpr QJsonValue::Type jsonType()
{
    if constexpr (std::is_same_v<Value, std::string>) {
        return QJsonValue::String;
    } else if constexpr (std::is_same_v<Value, bool>) {
        return QJsonValue::Bool;
    } else {
        return QJsonValue::Double;
    }
}

QJsonValue toJson(std::string const & value)
{
    return QString::fromStdString(value);
}

template <class Value>
QJsonValue toJson(Value value)
{
    return value;
}

SettingField const * find(char const * SettingField::*key, QString const & name)
{
    auto const found =
        std::find_if(settingFields.begin(), settingFields.end(),
                     [&](SettingField const & field) { return name == QLatin1String(field.*key); });
    return found == settingFields.end() ? nullptr : &*found;
}

char const * keyOf(SettingField const & field, QJsonObject const & object, KeysTaken keys)
{
    bool const takesWritten = keys == KeysTaken::WrittenToo && !object.contains(QLatin1String(field.readKey));
    return takesWritten ? field.writtenKey : field.readKey;
}

template <class Value>
void check(QJsonValue const & value, Value ServerSettings::*, char const * key,
           FileDiagnostics const & diagnostics)
{
    if constexpr (std::is_same_v<Value, int>) {
        diagnostics.checkInt(value, {}, key);
    } else {
        diagnostics.checkType(value, jsonType<Value>(), {}, key);
    }
}

} // namespace

ServerSettings readServerSettings(QJsonDocument const & document, KeysTaken keys)
{
    QJsonObject const object = document.object();
    ServerSettings settings;
    for (SettingField const & field : settingFields) {
        QJsonValue const value = object.value(QLatin1String(keyOf(field, object, keys)));
        std::visit([&](auto member) { read(value, settings.*member); }, field.member);
    }
    return settings;
}

void diagnoseServerSettings(QJsonDocument const & document, KeysTaken keys,
                            FileDiagnostics const & diagnostics)
{
    if (!diagnostics.checkTop(document.isObject(), "an object")) {
        return;
    }
    QJsonObject const object = document.object();
    int found = 0;
    for (SettingField const & field : settingFields) {
        char const * const key = keyOf(field, object, keys);
        QJsonValue const value = object.value(QLatin1String(key));
        if (value.isUndefined()) {
            diagnostics.missingKey({}, field.readKey);
        } else {
            ++found;
        }
        std::visit([&](auto member) { check(value, member, key, diagnostics); }, field.member);
    }
    if (object.size() == found) {
        return;
    }
    QStringList const present = object.keys();
    for (QString const & key : present) {
        if (find(&SettingField::readKey, key) != nullptr) {
            continue;
        }
        SettingField const * const field = find(&SettingField::writtenKey, key);
        if (field == nullptr) {
            diagnostics.unknownKey({}, key);
        } else if (key != QLatin1String(keyOf(*field, object, keys))) {
            diagnostics.report(Ext::DiagnosticKind::KeyNotReadBack, key,
                               QStringLiteral("\"%1\" is written at a save but not read; \"%2\" is read.")
                                   .arg(key, QLatin1String(field->readKey)));
        }
    }
}

QByteArray writeServerSettings(ServerSettings const & settings)
{
    QJsonObject object; // sorted by key
    for (SettingField const & field : settingFields) {
        std::visit([&](auto member) { object[QLatin1String(field.writtenKey)] = toJson(settings.*member); },
                   field.member);
    }
    return QJsonDocument(object).toJson(QJsonDocument::Indented);
}

bool holdsKeysThatASaveDrops(QJsonDocument const & document)
{
    if (!document.isObject()) {
        return true;
    }
    QStringList const keys = document.object().keys();
    return std::any_of(keys.cbegin(), keys.cend(),
                       [](QString const & key) { return find(&SettingField::writtenKey, key) == nullptr; });
}

void setFallbackDefaults(ServerSettings & settings)
{
    settings.serverIp = "127.0.0.1";
    settings.clientIp = "127.0.0.1";
    settings.serverPort = 8009;
    settings.dbPath = "c:/checklist";
    settings.sharePath.clear();
    settings.os = 0;
    settings.timeout = 100000;
    settings.selectionOutsideHint = false;
    settings.threadCount = 4;
    settings.movementFactor = 0.4;
    settings.shiftConfict = 0.1;
    settings.contourAccuracy = 24;
    settings.modifyHotKey = false;
    settings.pythonHome = false;
}

} // namespace KVCAM::UIAPI
