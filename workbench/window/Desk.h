#pragma once

#include "job/CommandLine.h"

#include <QObject>
#include <QString>

#include <memory>
#include <optional>

namespace Workbench {

class LogLines;
class MainWindow;
class StartPage;

/// Shows one board after the other, each in a window of its own that replaces the one before. Errors of
/// opening are boxes over the window.
class Desk : public QObject
{
    Q_OBJECT

public:
    /// The log outlives the desk. The options of the command line hold for every board, except job and step.
    /// The file keeps the state of the window and the list of boards.
    Desk(LogLines const & log, CommandLine commandLine, QString stateFile);
    ~Desk() override;

    /// Shows the window without a board.
    void showStart();
    /// Opens a board at a step, by default its first, and closes the one shown. False if that cannot be done;
    /// what is shown then stays. If the one shown has changes that are not saved, the user is asked what to
    /// do with them; the result is false, and the other is opened afterwards. False also if the user stops
    /// reading, or while another board is read.
    bool open(QString const & path, QString const & step = {});
    /// Null while no board is shown.
    MainWindow * window() const;

private:
    struct Board;

    std::optional<QString> read(Board & board, QString const & path, QString const & step) const;
    bool replace(QString const & path, QString const & step);
    void useWaivers(QString const & path);
    void close();
    QWidget * shown() const;

    LogLines const & m_log;
    CommandLine m_commandLine;
    QString m_stateFile;
    std::unique_ptr<Board> m_board;
    std::unique_ptr<Board> m_closed; ///< deleted when its menu, which may have asked for the next, is left
    std::unique_ptr<StartPage> m_start;
    bool m_isReading = false;
};

} // namespace Workbench
