#pragma once

#include <QString>

class QWidget;

/// The library's own boxes. All go through Ext::showMessage().
namespace KVCAM::UIAPI {

/// The widget behind a view handle if it is one that is alive, else null: a handle is any pointer, so it is
/// only compared, never followed. Null without a QApplication.
QWidget * aliveWidget(void const * view);

/// An information box with the translated title "Information".
void showInformation(QWidget * parent, QString const & text);

/// A question box with the translated title "Information" and the buttons Yes and No, application-modal. True
/// for Yes alone: Escape, and a box that cannot be shown, mean No.
bool askQuestion(QWidget * parent, QString const & text);

} // namespace KVCAM::UIAPI
