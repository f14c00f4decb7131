#pragma once

#include "units/Length.h"

#include <QString>

#include <optional>

class QObject;

/// Lengths as the texts of properties, for Qt Designer, which can edit no length. A text names its unit, so
/// that it means the same whatever unit the field has at that moment.
namespace KVCAM::UIAPI::LengthTexts {

/// In the unit that takes the fewest characters: "10 mil" rather than "254 my". Empty for the length that
/// stands for none.
QString write(Ext::Length length, Ext::Length none);

/// The length of a text; `none` for an empty one. A text that is no length, or lacks its unit, gives nothing
/// and a warning of Qt that names field and property.
std::optional<Ext::Length> read(QObject const & field, char const * property, QString const & text,
                                Ext::Length none);

} // namespace KVCAM::UIAPI::LengthTexts
