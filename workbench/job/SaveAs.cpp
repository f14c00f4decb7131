#include "job/SaveAs.h"

#include "ui/FileDialogs.h"

#include <EmbeddedEngine.h>
#include <UIAPICommon.h>
#include <UIAPICommonExt.h>

#include <glog/logging.h>

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

#include <utility>

namespace Workbench {

using namespace KVCAM;
using namespace KVCAM::UIAPI;

SaveAs::SaveAs(Session const & session, QWidget & window)
    : QObject(&window), m_session(session), m_window(window)
{}

bool SaveAs::isChanged() const
{
    return Embedded::isJobChanged(m_session.job());
}

void SaveAs::showState()
{
    m_window.setWindowModified(isChanged());
}

// Beside the board, under a name that is free.
QString SaveAs::proposal() const
{
    QDir const folder = QFileInfo(QFileInfo(m_session.directory()).absoluteFilePath()).dir();
    QString const name = QString::fromStdString(m_session.job());
    QString free = name + "-changed";
    for (int i = 2; i < 1000 && folder.exists(free); ++i) {
        free = name + "-changed-" + QString::number(i);
    }
    return folder.filePath(free);
}

void SaveAs::ask(std::function<void()> then)
{
    askForFile(m_window, tr("Save the board as a new folder"), proposal(), {},
               [this, then = std::move(then)](QString const & folder) {
                   if (save(folder) && then) {
                       then();
                   }
               });
}

bool SaveAs::save(QString const & folder)
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    bool const done = Embedded::saveJobAs(m_session.job(), folder.toStdString());
    QApplication::restoreOverrideCursor();
    if (!done) {
        QString const reason = QString::fromStdString(Embedded::lastError()).simplified();
        LOG(ERROR) << "workbench: cannot save the job: " << reason.toStdString();
        Ext::showMessage({Ext::MessageKind::Information, &m_window, tr("Save the board as a new folder"),
                          tr("The board was not saved: %1").arg(reason)});
        return false;
    }
    LOG(INFO) << "workbench: saved the job to " << folder.toStdString();
    showState();
    emit saved(folder);
    emit status(tr("Saved to %1").arg(QDir::toNativeSeparators(folder)));
    return true;
}

void SaveAs::whenSettled(std::function<void()> go)
{
    if (!isChanged()) {
        return go();
    }
    if (m_question != nullptr && m_question->isVisible()) {
        return m_question->raise();
    }
    auto * box = new QMessageBox(
        QMessageBox::Warning, tr("Unsaved changes"),
        tr("The board %1 has changes that are not saved.").arg(QString::fromStdString(m_session.job())),
        QMessageBox::NoButton, &m_window);
    m_question = box;
    box->setAttribute(Qt::WA_DeleteOnClose);
    auto * save = box->addButton(tr("&Save As..."), QMessageBox::AcceptRole);
    auto * discard = box->addButton(tr("&Discard"), QMessageBox::DestructiveRole);
    box->setEscapeButton(box->addButton(tr("&Cancel"), QMessageBox::RejectRole));
    box->setDefaultButton(save);
    connect(box, &QMessageBox::buttonClicked, this,
            [this, save, discard, go = std::move(go)](QAbstractButton const * button) {
                if (button == save) {
                    ask(go);
                } else if (button == discard) {
                    go();
                }
            });
    box->open();
}

} // namespace Workbench
