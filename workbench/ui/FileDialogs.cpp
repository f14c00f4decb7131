#include "ui/FileDialogs.h"

#include <QFileDialog>
#include <QFileInfo>

#include <utility>

namespace Workbench {

void askForFile(QWidget & parent, QString const & title, QString const & proposal, QString const & filter,
                std::function<void(QString const &)> take)
{
    QFileInfo const proposed(proposal);
    QString const folder = proposed.absolutePath();
    auto * dialog = new QFileDialog(&parent, title, QFileInfo(folder).isDir() ? folder : QString(), filter);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->selectFile(proposed.fileName());
    QObject::connect(dialog, &QFileDialog::fileSelected, &parent, std::move(take));
    dialog->open();
}

} // namespace Workbench
