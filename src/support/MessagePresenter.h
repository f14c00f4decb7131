#pragma once

#include "UIAPICommonExport.h"

#include <QString>

#include <functional>

class QWidget;

/// Additions to the fixed interface. They are opt-in and change none of its results.
namespace KVCAM::UIAPI::Ext {

/// Which box is wanted.
enum class MessageKind : int
{
    Information, ///< one OK button
    Question     ///< the buttons Yes and No, application-modal
};

/// Which button was pressed.
enum class MessageAnswer : int
{
    Ok,  ///< to an information
    Yes, ///< to a question
    No   ///< to a question; also when the box was closed, or destroyed with its parent
};

/// One box that the library wants shown. The texts are translated already.
struct Message
{
    MessageKind kind = MessageKind::Information; ///< which box
    QWidget * parent = nullptr; ///< not owned; null, or a widget that was alive when the box was asked for
    QString title;              ///< of the window
    QString text;               ///< shown as a QMessageBox shows it
};

/// Shows a message and returns the answer.
using MessagePresenter = std::function<MessageAnswer(Message const &)>;

/// Replaces the one point through which every box of the library goes, and returns the presenter that was
/// set before. An empty function restores the default: a modal QMessageBox, or, where there is no
/// QApplication or the caller is not on its thread, a WARNING line "title: text" and the neutral answer (No
/// to a question). A parent may be deleted while its box is open: that too is the
/// neutral answer. GUI thread only.
/// \since 0.1
UIAPICOMMON_EXPORT MessagePresenter setMessagePresenter(MessagePresenter presenter);

/// Shows a message through the presenter in force and returns the answer. A presenter that throws counts as
/// one that gave the neutral answer; the exception is logged. Host dialogs may use it for boxes of their own.
UIAPICOMMON_EXPORT MessageAnswer showMessage(Message const & message);

} // namespace KVCAM::UIAPI::Ext
