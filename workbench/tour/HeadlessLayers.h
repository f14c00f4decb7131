#pragma once

#include <QJsonObject>
#include <QString>

#include <functional>

class QWidget;

namespace Workbench {

class MainWindow;
class Session;

using TakePicture = std::function<void(QWidget &, QString const &)>;

// What a headless run does with the layers. Each function leaves the window as it was and returns facts.

/// Makes some requests to the filter bar, and returns how many layers match and the explanations.
QJsonObject useFilters(MainWindow & window, TakePicture const & take);
/// Compares the first and the last signal layer that have features in the first step.
QJsonObject useComparison(MainWindow & window, Session const & session, TakePicture const & take);
/// Sets reference layers of the step in front, renames a layer, a step and a job among them, and deletes one.
QJsonObject useReferences(MainWindow & window, TakePicture const & take);
/// Deletes features of the shown layer and undoes it.
QJsonObject useUndo(MainWindow & window, Session const & session, TakePicture const & take);

} // namespace Workbench
