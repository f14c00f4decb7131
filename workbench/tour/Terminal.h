#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QString>

#include <cstdio>

namespace Workbench {

/// Writes to a stream as it is.
void print(std::FILE * stream, QByteArray const & text);

/// Says on stderr, on a line of its own, what is wrong or what was done.
void say(QString const & text);

/// One line of a table or a progress: control characters, which could steer a terminal, become "?".
QString printable(QString text);

/// How far the boards are, on stderr while that is a terminal: a log file needs no such lines.
class TerminalProgress
{
public:
    explicit TerminalProgress(int boards);
    /// The next board begins.
    void next(QString const & board);
    /// Of the current board's checks.
    void show(int done, int total);
    /// Removes the line. Call it before anything else is printed.
    void clear();

private:
    bool m_isShown; ///< whether there is a terminal
    int m_boards;
    int m_board = 0;
    int m_width = 0; ///< of the line that stands there
    QString m_name;
    QElapsedTimer m_sinceShown;
};

} // namespace Workbench
