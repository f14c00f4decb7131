#pragma once

#include "ui/Units.h"

#include <QString>

#include <optional>

class QMainWindow;

namespace Workbench {

/// What a window shows besides its widgets' own geometry.
struct WindowChoices
{
    QString page; ///< object name
    int unit = inchUnit;
    bool chinese = false;
};

/// Brings the window and its named splitters back as they were kept in a file, each as far as the file holds
/// sense: a damaged or missing file changes nothing. The result is what was chosen besides, if that was kept.
std::optional<WindowChoices> restoreWindow(QMainWindow & window, QString const & file);
/// Keeps them in a file. False, and logged at ERROR, when it cannot be written.
bool keepWindow(QMainWindow const & window, WindowChoices const & choices, QString const & file);

} // namespace Workbench
