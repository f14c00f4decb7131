#include "WidgetTable.h"

#include "widgets/KVLabel.h"
#include "widgets/KVLengthEdit.h"
#include "widgets/KVLineEdit.h"
#include "widgets/KVListWidget.h"
#include "widgets/KVTextEdit.h"

namespace Designer {
namespace {

template <class Widget>
QWidget * make(QWidget * parent)
{
    return new Widget(parent);
}

} // namespace

std::array<WidgetRow, 5> const widgetTable{{
    {"KVCAM::UIAPI::KVLengthEdit",
     "KVLengthEdit",
     "QLineEdit",
     "UIAPICommon/widgets/KVLengthEdit.h",
     "lengthEdit",
     "mm",
     "A length, typed in any unit or as a calculation",
     "Holds a length to the nanometre and shows it in the unit of its view. Range, value and step are "
     "lengths "
     "with a unit, such as \"4 mil\" or \"0.1 mm\". Ext::setFormView() tells the field its view.",
     {"valueAsText", "minimumAsText", "maximumAsText", "stepAsText", nullptr},
     make<KVCAM::UIAPI::KVLengthEdit>},
    {"KVCAM::UIAPI::KVLineEdit",
     "KVLineEdit",
     "QLineEdit",
     "UIAPICommon/widgets/KVLineEdit.h",
     "lineEdit",
     "12",
     "One kind of input: a number, a calculation, a name, a symbol",
     "The kind says what can be typed. Numbers and symbol names are kept in both units. The range is lengths "
     "with a unit, such as \"4 mil\". Ext::setFormView() tells the field its view.",
     {"minimumAsText", "maximumAsText", nullptr},
     make<KVCAM::UIAPI::KVLineEdit>},
    {"KVCAM::UIAPI::KVLabel",
     "KVLabel",
     "QLabel",
     "UIAPICommon/widgets/KVLabel.h",
     "label",
     "A",
     "A label with three texts for the dialog's own use",
     "The three attributes do nothing by themselves: a dialog tags its labels with them.",
     {"Attribute1", "Attribute2", "Attribute3", nullptr},
     make<KVCAM::UIAPI::KVLabel>},
    {"KVTextEdit",
     "KVTextEdit",
     "QTextEdit",
     "UIAPICommon/widgets/KVTextEdit.h",
     "textEdit",
     "T",
     "A text edit that reports its text when it loses the focus",
     "Emits LostFocus() with the plain text whenever the focus leaves, even if the text is unchanged.",
     {nullptr},
     make<KVTextEdit>},
    {"KVListWidget",
     "KVListWidget",
     "QListWidget",
     "UIAPICommon/widgets/KVListWidget.h",
     "listWidget",
     "L",
     "A pop-up list that hides when it loses the focus",
     "To be shown by the dialog when it is needed: it hides itself as soon as the focus leaves.",
     {nullptr},
     make<KVListWidget>},
}};

} // namespace Designer
