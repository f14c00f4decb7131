#include "config/Diagnostics.h"

#include "config/DiagnosticCollector.h"

#include <QLatin1String>

#include <algorithm>

namespace KVCAM::UIAPI {
namespace {

struct State
{
    std::vector<Ext::Diagnostic> found;
    bool keepBackup = false;
};

// Never destroyed: loaders may run while the process exits.
State & state()
{
    static auto * state = new State;
    return *state;
}

char const * typeName(QJsonValue::Type type)
{
    switch (type) {
    case QJsonValue::Bool:
        return "true or false";
    case QJsonValue::Double:
        return "a number";
    case QJsonValue::String:
        return "a text";
    case QJsonValue::Array:
        return "an array";
    case QJsonValue::Object:
        return "an object";
    case QJsonValue::Null:
    case QJsonValue::Undefined:
        break;
    }
    return "null";
}

QString wrongType(QString const & key, char const * expected)
{
    return QStringLiteral("\"%1\" is not %2.").arg(key, QLatin1String(expected));
}

} // namespace

namespace Ext {

std::vector<Diagnostic> diagnostics()
{
    return state().found;
}

void setKeepSettingsBackup(bool keep)
{
    state().keepBackup = keep;
}

} // namespace Ext

using Ext::DiagnosticKind;

void addDiagnostic(Ext::Diagnostic diagnostic)
{
    state().found.push_back(std::move(diagnostic));
}

bool keepsBackup()
{
    return state().keepBackup;
}

QString JsonPlace::key(QString const & last) const
{
    QString place = QLatin1String(array);
    if (index >= 0) {
        place += QStringLiteral("[%1]").arg(index);
    }
    if (member != nullptr) {
        place += QLatin1Char('.') + QLatin1String(member);
    }
    return place + QLatin1String(place.isEmpty() || last.isEmpty() ? "" : ".") + last;
}

void FileDiagnostics::report(DiagnosticKind kind, QString const & key, QString const & text) const
{
    addDiagnostic({{key, kind, text}, m_file});
}

void FileDiagnostics::missingKey(JsonPlace const & place, char const * key) const
{
    QString const where = place.key(QLatin1String(key));
    report(DiagnosticKind::MissingKey, where, QStringLiteral("\"%1\" is missing.").arg(where));
}

void FileDiagnostics::unknownKey(JsonPlace const & place, QString const & key) const
{
    QString const where = place.key(key);
    report(DiagnosticKind::UnknownKey, where, QStringLiteral("\"%1\" is not read by anything.").arg(where));
}

bool FileDiagnostics::checkTop(bool isExpected, char const * expected) const
{
    if (!isExpected) {
        report(DiagnosticKind::WrongType, {},
               QStringLiteral("The top level of the file is not %1.").arg(QLatin1String(expected)));
    }
    return isExpected;
}

bool FileDiagnostics::checkType(QJsonValue const & value, QJsonValue::Type expected, JsonPlace const & place,
                                char const * key) const
{
    if (value.type() == expected || value.isUndefined()) {
        return true;
    }
    QString const where = place.key(QLatin1String(key));
    report(DiagnosticKind::WrongType, where, wrongType(where, typeName(expected)));
    return false;
}

bool FileDiagnostics::checkInt(QJsonValue const & value, JsonPlace const & place, char const * key) const
{
    if (!checkType(value, QJsonValue::Double, place, key)) {
        return false;
    }
    if (value.isUndefined() || value.toInt(0) == value.toInt(1)) { // the default shows through
        return true;
    }
    QString const where = place.key(QLatin1String(key));
    report(DiagnosticKind::WrongType, where, wrongType(where, "a whole number of 32 bits"));
    return false;
}

bool FileDiagnostics::checkKeys(QJsonObject const & object, int found,
                                std::initializer_list<char const *> known, JsonPlace const & place) const
{
    if (object.size() == found) {
        return true;
    }
    QStringList const keys = object.keys();
    for (QString const & key : keys) {
        if (std::none_of(known.begin(), known.end(),
                         [&](char const * k) { return key == QLatin1String(k); })) {
            unknownKey(place, key);
        }
    }
    return false;
}

} // namespace KVCAM::UIAPI
