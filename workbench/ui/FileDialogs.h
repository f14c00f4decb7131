#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace Workbench {

/// Opens a dialog for the name of a file to write, beginning with a proposal, and returns at once. `take`
/// gets the path that the user chooses. The dialog belongs to the parent: if that is deleted, nothing is
/// taken.
void askForFile(QWidget & parent, QString const & title, QString const & proposal, QString const & filter,
                std::function<void(QString const &)> take);

///@{
/// Opens a dialog for a board to open, a folder or an archive, likewise.
void askForBoardFolder(QWidget & parent, std::function<void(QString const &)> take);
void askForBoardArchive(QWidget & parent, std::function<void(QString const &)> take);
///@}

} // namespace Workbench
