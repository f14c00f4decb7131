#pragma once

#include "UIAPICommonExport.h"

#include <QString>

#include <functional>

class QWidget;

/// \addtogroup boxes
namespace KVCAM::UIAPI::Ext {

/// Which box to show.
enum class MessageKind : int
{
    Information, ///< an OK button
    Question     ///< the buttons Yes and No, application-modal
};

/// Which button was pressed.
enum class MessageAnswer : int
{
    Ok,  ///< answer to an information box
    Yes, ///< to a question
    No   ///< to a question; also when the box was closed, or destroyed with its parent
};

/// A box that the library asks to be shown. Its texts are already translated.
struct Message
{
    MessageKind kind = MessageKind::Information; ///< which box to show
    QWidget * parent = nullptr; ///< not owned; null, or a widget that was alive at the request
    QString title;              ///< window title
    QString text;               ///< rendered as in a QMessageBox
};

/// Shows a message and returns the answer.
using MessagePresenter = std::function<MessageAnswer(Message const &)>;

/// Sets the presenter of every box of the library and returns the previous one. An empty function restores
/// the default: a modal QMessageBox or, without a QApplication or on another thread than its own, a WARNING
/// line "title: text" and the neutral answer (No to a question). A parent may be deleted while its box is
/// open; that also gives the neutral answer. GUI thread only.
/// \since 0.1
UIAPICOMMON_EXPORT MessagePresenter setMessagePresenter(MessagePresenter presenter);

/// Shows a message through the current presenter and returns the answer. If the presenter throws, the answer
/// is the neutral one and the exception is logged. Host dialogs may use this for their own boxes.
UIAPICOMMON_EXPORT MessageAnswer showMessage(Message const & message);

} // namespace KVCAM::UIAPI::Ext
