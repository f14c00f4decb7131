#include "checks/SeverityBar.h"

#include "ui/LanguageChange.h"

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QToolButton>

namespace Workbench {

using namespace KVCAM::UIAPI;

SeverityBar::SeverityBar(QWidget * parent) : QWidget(parent)
{
    auto * layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (std::size_t i = m_buttons.size(); i-- > 0;) {
        auto * button = new QToolButton;
        button->setObjectName(Ext::markOf(static_cast<Ext::Severity>(i)).name);
        button->setCheckable(true);
        button->setChecked(true);
        QFont bold = button->font();
        bold.setBold(true);
        button->setFont(bold);
        connect(button, &QToolButton::toggled, this,
                [this, i](bool on) { emit shown(static_cast<int>(i), on); });
        layout->addWidget(button);
        m_buttons[i] = button;
    }
    layout->addStretch(1);
    setTextsNowAndLater(*this, [this] { setTexts(); });
}

void SeverityBar::setCounts(Ext::SeverityCounts const & counts)
{
    m_counts = counts;
    setTexts();
}

void SeverityBar::showAll()
{
    for (QToolButton * button : m_buttons) {
        QSignalBlocker const quiet(button);
        button->setChecked(true);
    }
}

void SeverityBar::setTexts()
{
    for (std::size_t i = 0; i < m_buttons.size(); ++i) {
        auto const severity = static_cast<Ext::Severity>(i);
        m_buttons[i]->setText(QString("%1 %2: %3")
                                  .arg(Ext::severitySign(severity), Ext::severityName(severity))
                                  .arg(m_counts[i]));
        m_buttons[i]->setToolTip(tr("Shows or hides the measurements of this colour"));
    }
}

} // namespace Workbench
