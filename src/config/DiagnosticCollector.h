#pragma once

#include "config/Diagnostics.h"

#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include <initializer_list>
#include <utility>

/// How loaders report findings. Nothing here logs, and collecting changes no loaded value.
namespace KVCAM::UIAPI {

/// Adds one finding to what Ext::diagnostics() returns.
void addDiagnostic(Ext::Diagnostic diagnostic);

/// The value set by Ext::setKeepSettingsBackup().
bool keepsBackup();

/// The position of an object in a file; without an array, the top level. Turned into text only for a finding.
struct JsonPlace
{
    char const * array = nullptr;
    int index = -1;                ///< in the array; negative for the whole array
    char const * member = nullptr; ///< of the array element

    /// "template[2].prefix" for a place, with "." and `last` after it unless one of the two is empty.
    QString key(QString const & last = {}) const;
};

/// Reports about one file.
class FileDiagnostics
{
public:
    explicit FileDiagnostics(QString file) : m_file(std::move(file)) {}

    void report(Ext::DiagnosticKind kind, QString const & key, QString const & text) const;
    void missingKey(JsonPlace const & place, char const * key) const;
    void unknownKey(JsonPlace const & place, QString const & key) const;

    // Each returns true if there is nothing to report.

    /// The top level of the file.
    bool checkTop(bool isExpected, char const * expected) const;
    /// The value of a key; an absent one is fine.
    bool checkType(QJsonValue const & value, QJsonValue::Type expected, JsonPlace const & place,
                   char const * key = "") const;
    /// Like checkType() for an integer: a fraction or a number beyond int is not one.
    bool checkInt(QJsonValue const & value, JsonPlace const & place, char const * key) const;
    /// Reports the keys of `object` that are not in `known`. `found` is the number of known keys in `object`:
    /// if it has no others, nothing is iterated.
    bool checkKeys(QJsonObject const & object, int found, std::initializer_list<char const *> known,
                   JsonPlace const & place) const;

private:
    QString m_file;
};

} // namespace KVCAM::UIAPI
