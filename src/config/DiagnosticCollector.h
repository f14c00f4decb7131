#pragma once

#include "config/Diagnostics.h"

#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include <initializer_list>
#include <utility>

/// How loaders report what they find. Nothing here logs, and collecting changes no value that is loaded.
namespace KVCAM::UIAPI {

/// Adds one finding to what Ext::diagnostics() returns.
void addDiagnostic(Ext::Diagnostic diagnostic);

/// The value set by Ext::setKeepSettingsBackup().
bool keepsBackup();

/// Where in a file an object stands; without an array at the top level. Spelt out only for a finding.
struct JsonPlace
{
    char const * array = nullptr;
    int index = -1;                ///< in the array; the array as a whole if negative
    char const * member = nullptr; ///< of the array's element

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

    // Each is true when there is nothing to report.

    /// The top level of the file.
    bool checkTop(bool isExpected, char const * expected) const;
    /// The value of a key; one that is absent is in order.
    bool checkType(QJsonValue const & value, QJsonValue::Type expected, JsonPlace const & place,
                   char const * key = "") const;
    /// As checkType() for an integer: a fraction or a number beyond int is none.
    bool checkInt(QJsonValue const & value, JsonPlace const & place, char const * key) const;
    /// The keys of `object` that are not among `known`. `found` says how many of those it holds: where it
    /// holds no others, nothing is walked.
    bool checkKeys(QJsonObject const & object, int found, std::initializer_list<char const *> known,
                   JsonPlace const & place) const;

private:
    QString m_file;
};

} // namespace KVCAM::UIAPI
