#pragma once

#include <array>

class QWidget;

namespace Designer {

/// A widget as Qt Designer shows it.
struct WidgetRow
{
    char const * className;   ///< with its namespace
    char const * displayName; ///< in the widget box
    char const * extends;     ///< its base among Qt's widgets
    char const * include;     ///< as it is installed
    char const * objectName;  ///< of the first one in a form
    char const * letters;     ///< its icon
    char const * toolTip;
    char const * whatsThis;
    /// Properties that are texts but no words: Designer must not offer them to translators. Ends with null.
    std::array<char const *, 5> untranslated;
    QWidget * (*create)(QWidget * parent);
};

extern std::array<WidgetRow, 5> const widgetTable;

} // namespace Designer
