#pragma once

#include <QJsonObject>
#include <QList>

class QObject;

/// Saving and restoring the controls of a form as one flat JSON object, keyed by object name. Only controls
/// whose meta-object reports exactly one of the known class names take part. GUI thread only.
namespace KVCAM::UIAPI::FormPersistence {

/// Adds the values of the named controls to `json`; the last of a name wins. Null objects are skipped.
void read(QList<QObject *> const & widgets, QJsonObject & json);

/// Puts the members of `json` back into the controls of their names. A button group takes its number as an
/// index into its buttons; an index outside is ignored. A control that an earlier one's signal deletes is
/// skipped.
void write(QJsonObject const & json, QList<QObject *> const & widgets);

} // namespace KVCAM::UIAPI::FormPersistence
