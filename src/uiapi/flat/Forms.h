#pragma once

#include "UIAPICommonExport.h"

#include <QJsonObject>
#include <QList>

class QObject;

/// A form's controls as one flat JSON object, keyed by object name; the caller stores and loads the object.
/// Controls are known by the exact class name of their meta-object: QLineEdit, KVCAM::UIAPI::KVLineEdit and
/// QComboBox by text, QCheckBox by bool, QButtonGroup by number; all others are left alone. Texts are saved
/// in the unit that is shown. GUI thread only.
namespace KVCAM::UIAPI {

/// Adds a member for each control with a name; the last control of a name wins. A group with no checked
/// button gives -1.
UIAPICOMMON_EXPORT void readListToJson(QList<QObject *> widgets, QJsonObject & json);
/// Restores each control whose name has a member. A check box becomes unchecked by what is no bool. A button
/// group is saved by id and restored by position, so the ids must be 0, 1, 2, ...; a position outside the
/// group changes nothing.
UIAPICOMMON_EXPORT void writeJsonToList(QJsonObject json, QList<QObject *> & widgets);

} // namespace KVCAM::UIAPI
