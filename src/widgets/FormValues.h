#pragma once

#include <QJsonValue>
#include <QVariant>

#include <optional>

/// Values of properties as JSON.
namespace KVCAM::UIAPI::FormValues {

/// Whether values of this type can be written and read.
bool isSupported(QVariant const & value);

/// The JSON of a supported value. A length is a text with its unit, mil or mm.
QJsonValue toJson(QVariant const & value, bool inch);

/// The value, of the type of `like`; nothing if the JSON does not hold one.
std::optional<QVariant> fromJson(QJsonValue const & json, QVariant const & like);

} // namespace KVCAM::UIAPI::FormValues
