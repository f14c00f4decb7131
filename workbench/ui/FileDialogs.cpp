#include "ui/FileDialogs.h"

#include <UIAPICommon.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QTimer>
#include <QUrl>

#include <memory>
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

void askForBoard(QWidget & parent, QString const & beside, std::function<void(QString const &)> take)
{
    auto const isBoard = [](QString const & folder) { return QFileInfo::exists(folder + "/matrix/matrix"); };
    auto * dialog = new KVFileDialog(&parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(
        QCoreApplication::translate("Workbench", "Open the folder or the archive of a board"));
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilters({QCoreApplication::translate(
                                "Workbench", "Boards: folders and archives (*.tgz *.tar.gz *.tar *.zip)"),
                            QCoreApplication::translate("Workbench", "All files (*)")});
    dialog->setDirectory(QFileInfo(beside).absolutePath());
    if (auto * all = dialog->findChild<QPushButton *>("m_ChooseAllPB")) {
        all->hide(); // one board is shown at a time
    }
    auto const entered = std::make_shared<QString>();
    QObject::connect(dialog->findChild<QFileSystemModel *>(), &QFileSystemModel::rootPathChanged, dialog,
                     [dialog, isBoard, entered](QString const & folder) {
                         if (isBoard(folder)) {
                             *entered = folder;
                             QTimer::singleShot(0, dialog,
                                                &KVFileDialog::onChoice); // Qt is still entering it
                         }
                     });
    QObject::connect(
        dialog, &QDialog::accepted, &parent, [&parent, dialog, isBoard, entered, take = std::move(take)] {
            QString const path = entered->isEmpty() ? dialog->selectedFiles().value(0) : *entered;
            bool const isOther = QFileInfo(path).isDir() && !isBoard(path);
            isOther ? askForBoard(parent, path + '/', take) : take(path);
        });
    dialog->open();
}

} // namespace Workbench
