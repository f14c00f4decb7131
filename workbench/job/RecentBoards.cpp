#include "job/RecentBoards.h"

#include <glog/logging.h>

#include <QSettings>

namespace Workbench {

namespace {

constexpr char const * boardsKey = "recent/boards";
constexpr int most = 10;

} // namespace

QStringList recentBoards(QString const & stateFile)
{
    return QSettings(stateFile, QSettings::IniFormat).value(boardsKey).toStringList().mid(0, most);
}

void keepRecentBoard(QString const & stateFile, QString const & path)
{
    QStringList boards = recentBoards(stateFile);
    boards.removeAll(path);
    boards.prepend(path);
    QSettings settings(stateFile, QSettings::IniFormat);
    settings.setValue(boardsKey, QStringList(boards.mid(0, most)));
    settings.sync();
    if (settings.status() != QSettings::NoError) {
        LOG(ERROR) << "workbench: the list of boards cannot be written to " << stateFile.toStdString();
    }
}

} // namespace Workbench
