#pragma once

class QLabel;

namespace Workbench {

/// A label for a status bar that says so when the port of the EDA link is taken; hidden otherwise.
QLabel * makeEdaPortLabel();

} // namespace Workbench
