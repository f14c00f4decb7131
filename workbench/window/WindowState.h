#pragma once

#include "ui/Units.h"

#include <QSize>
#include <QString>

#include <optional>

class QMainWindow;

namespace Workbench {

/// What the user has chosen in a window, apart from its geometry.
struct WindowChoices
{
    QString page; ///< object name
    Unit unit = Unit::Inch;
    bool chinese = false;
};

/// The size of a window that has none saved: within the screen, with room for a frame and a title.
QSize firstWindowSize(QSize available);

/// How a window without a saved state divides the page of the board, which gets the most.
struct FirstPanes
{
    int layers;  ///< width
    int feature; ///< width
    bool hasFeature;
    bool hasLog;
};

/// For a window of a size. `letter` is the size of an average letter of its font.
FirstPanes firstPanes(QSize window, QSize letter);

/// The choices that were saved in a file, if any.
std::optional<WindowChoices> savedChoices(QString const & file);
/// Restores the window, its named splitters and its panes from a file, each as far as the file is valid: a
/// damaged or missing file changes nothing. Returns the other choices, if they were saved.
std::optional<WindowChoices> restoreWindow(QMainWindow & window, QString const & file);
/// Saves them to a file. False, and logged at ERROR, if it cannot be written.
bool keepWindow(QMainWindow const & window, WindowChoices const & choices, QString const & file);

} // namespace Workbench
