#pragma once

#include <QPainterPath>

#include <optional>
#include <string>

namespace Workbench {

/// What a standard symbol looks like: an area in micrometres about the origin, y upwards, to be filled by its
/// fill rule. `unit` says what the sizes in its name are in. Empty for a symbol without extent. Nothing for a
/// user-defined symbol, or when the name lacks sizes that its family's shape needs.
std::optional<QPainterPath> symbolPath(std::string const & name, int unit);

} // namespace Workbench
