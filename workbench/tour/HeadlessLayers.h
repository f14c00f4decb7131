#pragma once

#include <QJsonObject>
#include <QString>

#include <functional>

class QWidget;

namespace Workbench {

class MainWindow;
class Session;

using TakePicture = std::function<void(QWidget &, QString const &)>;

// What a headless run does with the layers; each leaves the window as it was. The results are facts.

/// Asks the filter bar some questions: how many layers match, and what the bar explains.
QJsonObject useFilters(MainWindow & window, TakePicture const & take);
/// Sets reference layers of the step in front, renames a layer, a step and a job of them, and deletes one.
QJsonObject useReferences(MainWindow & window, TakePicture const & take);
/// Deletes features of the shown layer and takes that back.
QJsonObject useUndo(MainWindow & window, Session const & session, TakePicture const & take);

} // namespace Workbench
