#pragma once

#include "ui/Units.h"

#include <QJsonObject>
#include <QString>

namespace Workbench {

/// A form between two runs. The texts of a form are in the unit that was shown, so the unit is kept beside
/// them; `extra` holds what the library's form functions do not know, for example a note.
struct SavedForm
{
    int unit = inchUnit;
    QJsonObject fields;
    QJsonObject extra;
};

/// Whether a value of such a file is a unit. Any other number would be a factor on the sizes.
bool isUnit(QJsonValue const & value);

/// Reads the form saved for a pad in a file. False when there is none or it is not such a file.
bool readForm(QString const & path, QString const & pad, SavedForm & form);
/// Writes it beside the forms of other pads, the file whole or not at all. False when it cannot be written.
bool writeForm(QString const & path, QString const & pad, SavedForm const & form);

} // namespace Workbench
