#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace Workbench {

/// The path of a file to write, with the suffix of the chosen filter unless it ends like one of the filters:
/// "board.v2" with "Report (*.csv)" is "board.v2.csv". Filters are separated by ";;".
QString withSuffix(QString const & path, QString const & filters, QString const & chosen);
/// The path as a link that opens the file, and one that opens its folder, for a label that opens links.
QString fileLinks(QString const & path);

/// Opens a dialog for the name of a file to write, beginning with a proposal, and returns at once. `take`
/// gets the path that the user chooses, with a suffix; a file that the suffix leads to is not replaced
/// without a question. The dialog belongs to the parent: if that is deleted, nothing is taken.
void askForFile(QWidget & parent, QString const & title, QString const & proposal, QString const & filter,
                std::function<void(QString const &)> take);

/// Opens a dialog for a board to open, a folder or an archive, likewise. It begins where `beside` is. A
/// folder that holds a board is taken rather than entered, whichever way the user goes into it.
void askForBoard(QWidget & parent, QString const & beside, std::function<void(QString const &)> take);

} // namespace Workbench
