#include "support/MessagePresenter.h"

#include "support/Guard.h"
#include "support/Log.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QScopeGuard>
#include <QThread>

#include <utility>

namespace KVCAM::UIAPI::Ext {
namespace {

MessageAnswer neutralAnswer(MessageKind kind)
{
    return kind == MessageKind::Question ? MessageAnswer::No : MessageAnswer::Ok;
}

// Without a QApplication a QMessageBox aborts the process, and widgets belong to its thread.
bool canShowBoxes()
{
    auto const * application = qobject_cast<QApplication *>(QCoreApplication::instance());
    return application != nullptr && application->thread() == QThread::currentThread();
}

MessageAnswer showBox(Message const & message)
{
    if (!canShowBoxes()) {
        Log::warning(Log::commonPara, (message.title + QStringLiteral(": ") + message.text).toStdString());
        return neutralAnswer(message.kind);
    }
    bool const isQuestion = message.kind == MessageKind::Question;
    // Not on the stack: a parent that is destroyed while the box is open destroys the box, and exec() returns
    // 0.
    QPointer<QMessageBox> const box = new QMessageBox(
        isQuestion ? QMessageBox::Question : QMessageBox::Information, message.title, message.text,
        isQuestion ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok, message.parent);
    auto const destroyed = qScopeGuard([&box] { delete box.data(); });
    if (isQuestion) {
        box->setWindowModality(Qt::ApplicationModal);
    } else {
        box->setDefaultButton(QMessageBox::Ok);
    }
    return box->exec() == QMessageBox::Yes ? MessageAnswer::Yes : neutralAnswer(message.kind);
}

// Never destroyed: a box may still be requested while the process exits.
MessagePresenter & currentPresenter()
{
    static auto * presenter = new MessagePresenter;
    return *presenter;
}

} // namespace

MessagePresenter setMessagePresenter(MessagePresenter presenter)
{
    return std::exchange(currentPresenter(), std::move(presenter));
}

MessageAnswer showMessage(Message const & message)
{
    // A copy: the presenter may replace itself while it runs.
    MessagePresenter const presenter = currentPresenter();
    MessageAnswer answer = neutralAnswer(message.kind);
    guard([&] { answer = presenter ? presenter(message) : showBox(message); },
          [](std::string const & what) { Log::caughtException(Log::commonPara, what); });
    return answer;
}

} // namespace KVCAM::UIAPI::Ext
