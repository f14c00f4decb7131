#pragma once

#include "UIAPICommonExport.h"

#include <QJsonObject>
#include <QList>

class QObject;

/// \addtogroup forms
/// The controls of a form, saved and restored. The two flat functions make one flat JSON object of them,
/// keyed by object name; the caller stores and loads it. They recognise controls by the exact class name of
/// their meta-object: QLineEdit, KVCAM::UIAPI::KVLineEdit and QComboBox are stored as text, QCheckBox as
/// bool, QButtonGroup as a number; all others are ignored. Texts are saved in the displayed unit. GUI thread
/// only.
namespace KVCAM::UIAPI {

/// Adds a member for each named control; of equal names the last control wins. A group with no checked button
/// gives -1.
UIAPICOMMON_EXPORT void readListToJson(QList<QObject *> widgets, QJsonObject & json);
/// Restores each control whose name has a member. Anything but a bool unchecks a check box. A button group is
/// saved by id and restored by position, so the ids must be 0, 1, 2, ...; a position outside the group
/// changes nothing.
UIAPICOMMON_EXPORT void writeJsonToList(QJsonObject json, QList<QObject *> & widgets);

} // namespace KVCAM::UIAPI
