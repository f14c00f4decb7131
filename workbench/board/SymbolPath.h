#pragma once

#include "ui/Units.h"

#include <QPainterPath>

#include <optional>
#include <string>

namespace Workbench {

/// The outline of a standard symbol in micrometres around the origin, y upwards, to be filled by its fill
/// rule. `unit` is that of the sizes in the name. Empty for a symbol without extent. Nothing for a
/// user-defined symbol, or when the name lacks sizes that the shape needs.
std::optional<QPainterPath> symbolPath(std::string const & name, Unit unit);

} // namespace Workbench
