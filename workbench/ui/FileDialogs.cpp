#include "ui/FileDialogs.h"

#include <UIAPICommon.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>
#include <QRegularExpression>
#include <QUrl>

#include <utility>

namespace Workbench {

namespace {

// The endings of all filters, ".json" for "*.json"; "" for "*".
QStringList endings(QString const & filters)
{
    static QRegularExpression const pattern(R"(\*([^\s*;)]*))");
    QStringList found;
    for (auto match = pattern.globalMatch(filters); match.hasNext();) {
        found.append(match.next().captured(1));
    }
    return found;
}

bool mayReplace(QWidget & parent, QString const & title, QString const & path)
{
    using namespace KVCAM::UIAPI;
    return !QFileInfo::exists(path) ||
           Ext::showMessage(
               {Ext::MessageKind::Question, &parent, title,
                QCoreApplication::translate("Workbench", "The file \"%1\" already exists. Replace it?")
                    .arg(QDir::toNativeSeparators(path))}) == Ext::MessageAnswer::Yes;
}

} // namespace

QString withSuffix(QString const & path, QString const & filters, QString const & chosen)
{
    for (QString const & ending : endings(filters)) {
        if (path.endsWith(ending, Qt::CaseInsensitive)) {
            return path;
        }
    }
    QString const first = endings(chosen).value(0);
    return path.endsWith('.') && !first.isEmpty() ? path + first.mid(1) : path + first;
}

QString fileLinks(QString const & path)
{
    auto const link = [](QString const & target, QString const & text) {
        return QString("<a href=\"%1\">%2</a>")
            .arg(QString::fromLatin1(QUrl::fromLocalFile(target).toEncoded()).toHtmlEscaped(),
                 text.toHtmlEscaped());
    };
    QString const file = QFileInfo(path).absoluteFilePath();
    return link(file, QDir::toNativeSeparators(file)) + " &nbsp; " +
           link(QFileInfo(file).path(), QCoreApplication::translate("Workbench", "Open the folder"));
}

void askForFile(QWidget & parent, QString const & title, QString const & proposal, QString const & filter,
                std::function<void(QString const &)> take)
{
    QFileInfo const proposed(proposal);
    QString const folder = proposed.absolutePath();
    auto * dialog = new QFileDialog(&parent, title, QFileInfo(folder).isDir() ? folder : QString(), filter);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->selectFile(proposed.fileName());
    QObject::connect(dialog, &QFileDialog::fileSelected, &parent,
                     [&parent, title, filter, dialog, take = std::move(take)](QString const & chosen) {
                         QString const path = withSuffix(chosen, filter, dialog->selectedNameFilter());
                         QPointer<QWidget> const alive(&parent); // a question processes events
                         if ((path == chosen || mayReplace(parent, title, path)) && alive) {
                             take(path);
                         }
                     });
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
