#pragma once

#include <QJsonObject>
#include <QString>

namespace Workbench {

/// A form between two runs. The texts of a form are in the unit that was shown, so the unit is kept beside
/// them; `extra` holds what the library's form functions do not know, for example a note.
struct SavedForm
{
    int unit = 0;
    QJsonObject fields;
    QJsonObject extra;
};

/// Reads the form saved in a file. False when there is none or it is not such a file.
bool readForm(QString const & path, SavedForm & form);
/// Writes it whole or not at all. False when it cannot be written.
bool writeForm(QString const & path, SavedForm const & form);

} // namespace Workbench
