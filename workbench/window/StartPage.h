#pragma once

#include <QStringList>
#include <QWidget>

namespace Workbench {

/// The window of the program while it shows no board: ways to open one.
class StartPage : public QWidget
{
    Q_OBJECT

public:
    explicit StartPage(QStringList const & recent);

signals:
    /// The user has chosen a folder or an archive.
    void boardWanted(QString const & path);
};

} // namespace Workbench
