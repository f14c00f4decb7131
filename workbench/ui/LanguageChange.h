#pragma once

#include <QWidget>

#include <functional>

namespace Workbench {

/// Sets the texts of a widget now and at every change of the language. Whatever `setTexts` uses must live as
/// long as the widget.
void setTextsNowAndLater(QWidget & widget, std::function<void()> setTexts);

/// Shows the texts of program and library in Simplified Chinese, or in English. False without an application
/// or the program's catalogue.
bool showChinese(bool on);

} // namespace Workbench
