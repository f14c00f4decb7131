#include "pages/EdaPortLabel.h"

#include "pages/EdaPage.h"
#include "ui/Colours.h"
#include "ui/LanguageChange.h"

#include <UIAPICommon.h>

#include <QLabel>

namespace Workbench {

using namespace KVCAM::UIAPI;

// The link opens its port once, when the library starts.
QLabel * makeEdaPortLabel()
{
    auto * label = new QLabel;
    label->setObjectName("eda port");
    label->setStyleSheet(faultStyle(true));
    setTextsNowAndLater(*label, [label] {
        Ext::EdaLinkState const state = Ext::edaLinkState();
        if (state.bound) {
            label->hide(); // showing it here would make it a window
        }
        label->setText(EdaPage::tr("EDA link: port %1 is taken").arg(EdaPage::receivePort));
        label->setToolTip(EdaPage::tr("No link to receive on: port %1 could not be opened. Messages can be "
                                      "sent all the same.\nReason: %2")
                              .arg(QString::number(EdaPage::receivePort), state.bindError));
    });
    return label;
}

} // namespace Workbench
