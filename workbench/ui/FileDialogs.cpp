#include "ui/FileDialogs.h"

#include <QCoreApplication>
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

namespace {

void askForBoard(QWidget & parent, QFileDialog::FileMode mode, QString const & title, QString const & filter,
                 std::function<void(QString const &)> take)
{
    auto * dialog = new QFileDialog(&parent, title, QString(), filter);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(mode);
    dialog->setOption(QFileDialog::ShowDirsOnly, mode == QFileDialog::Directory);
    QObject::connect(dialog, &QFileDialog::fileSelected, &parent, std::move(take));
    dialog->open();
}

} // namespace

void askForBoardFolder(QWidget & parent, std::function<void(QString const &)> take)
{
    askForBoard(parent, QFileDialog::Directory,
                QCoreApplication::translate("Workbench", "Open the folder of a job"), {}, std::move(take));
}

void askForBoardArchive(QWidget & parent, std::function<void(QString const &)> take)
{
    askForBoard(
        parent, QFileDialog::ExistingFile,
        QCoreApplication::translate("Workbench", "Open an archive with a job"),
        QCoreApplication::translate("Workbench", "Archives (*.tgz *.tar.gz *.tar *.zip);;All files (*)"),
        std::move(take));
}

} // namespace Workbench
