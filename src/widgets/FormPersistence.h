#pragma once

#include <QJsonObject>
#include <QList>

class QObject;

/// Saves and restores the controls of a form as one flat JSON object, keyed by object name. Only controls
/// whose meta-object class name is exactly one of the known names take part. GUI thread only.
namespace KVCAM::UIAPI::FormPersistence {

/// Adds the values of the named controls to `json`; of equal names the last wins. Null objects are skipped.
void read(QList<QObject *> const & widgets, QJsonObject & json);

/// Restores the members of `json` to the controls of the same names. For a button group the number is an
/// index into its buttons; an out-of-range index is ignored. A control deleted by an earlier control's signal
/// is skipped.
void write(QJsonObject const & json, QList<QObject *> const & widgets);

} // namespace KVCAM::UIAPI::FormPersistence
