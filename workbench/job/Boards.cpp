#include "job/Boards.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <cstring>

namespace Workbench {

namespace {

QStringList writtenFiles(CommandLine const & board)
{
    QStringList files = board.reports;
    files << board.summary << board.comparison;
    files.removeAll(QString());
    return files;
}

QString filled(QString name, QString const & board)
{
    return name.replace("%b", board);
}

} // namespace

QString boardName(QString const & job)
{
    QFileInfo const entry(job);
    QString name = entry.fileName();
    if (entry.isFile()) {
        for (char const * const ending : {".tgz", ".tar.gz", ".tar", ".zip"}) {
            if (name.endsWith(ending, Qt::CaseInsensitive)) {
                name.chop(static_cast<int>(std::strlen(ending)));
                break;
            }
        }
    }
    return name;
}

CommandLine forBoard(CommandLine line, QString const & job)
{
    QString const name = boardName(job);
    line.job = job;
    line.jobs = QStringList(job);
    for (QString CommandLine::*const file :
         {&CommandLine::output, &CommandLine::summary, &CommandLine::waivers, &CommandLine::baseline,
          &CommandLine::comparison}) {
        line.*file = filled(line.*file, name);
    }
    for (QString & report : line.reports) {
        report = filled(report, name);
    }
    return line;
}

BoardLines boardLines(CommandLine const & commandLine)
{
    BoardLines lines;
    QSet<QString> seen;
    for (QString const & job : commandLine.jobs) {
        lines.boards.push_back(forBoard(commandLine, job));
        CommandLine const & board = lines.boards.back();
        QStringList written = writtenFiles(board);
        if (board.headless) {
            written.append(board.output); // its screenshots
        }
        for (QString const & file : written) {
            int const before = seen.size();
            seen.insert(file.toLower());
            if (seen.size() == before) {
                lines.error = '"' + QDir::toNativeSeparators(file) +
                              "\" would be written twice; \"%b\" in a name stands for the board's";
                return lines;
            }
        }
    }
    return lines;
}

void makeFolders(CommandLine const & board)
{
    for (QString const & file : writtenFiles(board)) {
        QDir().mkpath(QFileInfo(file).path());
    }
}

} // namespace Workbench
