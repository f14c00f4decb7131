#pragma once

#include <QString>

class QWidget;

/// The library's own boxes. All go through Ext::showMessage().
namespace KVCAM::UIAPI {

/// The widget behind a view handle if it is a living widget, else null. A handle is any pointer: it is
/// compared, never dereferenced. Null without a QApplication.
QWidget * aliveWidget(void const * view);

/// An information box with the translated title "Information".
void showInformation(QWidget * parent, QString const & text);

/// A question box with the translated title "Information" and the buttons Yes and No, application-modal. True
/// only for Yes. Escape counts as No, and so does a box that cannot be shown.
bool askQuestion(QWidget * parent, QString const & text);

} // namespace KVCAM::UIAPI
