#pragma once

#include "ui/Units.h"

#include <QJsonObject>
#include <QString>

namespace Workbench {

/// A form as saved between runs. Its texts are in the unit that was shown, which is saved with them. `extra`
/// holds what the library's form functions do not handle, such as a note.
struct SavedForm
{
    Unit unit = Unit::Inch;
    QJsonObject fields;
    QJsonObject extra;
};

/// Whether a value in such a file is a unit. With any other number sizes would be scaled once more.
bool isUnit(QJsonValue const & value);

/// Reads a pad's form from a file. False if there is none, or if it is not such a file.
bool readForm(QString const & path, QString const & pad, SavedForm & form);
/// Writes it to a file that holds the forms of other pads as well. The file is replaced as a whole. False
/// when it cannot be written.
bool writeForm(QString const & path, QString const & pad, SavedForm const & form);

} // namespace Workbench
