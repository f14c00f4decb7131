#pragma once

#include <QWidget>

#include <functional>

namespace Workbench {

/// Sets the texts of a widget now and again at every change of the language. `setTexts` may use the widget's
/// children, which have to live as long as it does.
void setTextsNowAndLater(QWidget & widget, std::function<void()> setTexts);

/// Shows the program's and the library's texts in Chinese (Simplified) or else in English. False without an
/// application or the program's catalogue.
bool showChinese(bool on);

} // namespace Workbench
