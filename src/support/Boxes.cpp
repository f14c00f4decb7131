#include "support/Boxes.h"

#include "support/MessagePresenter.h"

#include <QApplication>
#include <QWidget>

#include <algorithm>

namespace KVCAM::UIAPI {

QWidget * aliveWidget(void const * view)
{
    if (view == nullptr || qobject_cast<QApplication *>(QCoreApplication::instance()) == nullptr) {
        return nullptr;
    }
    QWidgetList const widgets = QApplication::allWidgets();
    auto const found = std::find_if(widgets.cbegin(), widgets.cend(),
                                    [view](QWidget const * widget) { return widget == view; });
    return found == widgets.cend() ? nullptr : *found;
}

void showInformation(QWidget * parent, QString const & text)
{
    Ext::showMessage({Ext::MessageKind::Information, parent, QObject::tr("Information"), text});
}

bool askQuestion(QWidget * parent, QString const & text)
{
    return Ext::showMessage({Ext::MessageKind::Question, parent, QObject::tr("Information"), text}) ==
           Ext::MessageAnswer::Yes;
}

} // namespace KVCAM::UIAPI
