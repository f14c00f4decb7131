#include "window/Pane.h"

#include "ui/LanguageChange.h"
#include "window/WindowTexts.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace Workbench {

Pane::Pane(QString const & name, char const * title, QWidget * content) : m_open(new QAction(this))
{
    setObjectName(name);
    m_open->setCheckable(true);
    m_open->setChecked(true);
    connect(m_open, &QAction::toggled, this, &QWidget::setVisible);
    auto * label = new QLabel;
    auto * close = new QToolButton;
    close->setAutoRaise(true);
    close->setText(QString::fromUtf8("×")); // in the palette's colour and the font's size, unlike an icon
    connect(close, &QToolButton::clicked, this, [this] { setOpen(false); });
    auto * head = new QHBoxLayout;
    head->addWidget(label, 1);
    head->addWidget(close);
    auto * layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 2, 4, 4);
    layout->setSpacing(2);
    layout->addLayout(head);
    layout->addWidget(content, 1);
    setTextsNowAndLater(*this, [this, label, close, title] {
        m_open->setText(WindowTexts::tr(title));
        label->setText(WindowTexts::tr(title));
        close->setToolTip(WindowTexts::tr("Closes this pane; the View menu opens it again"));
        close->setAccessibleName(close->toolTip());
    });
}

void Pane::setOpen(bool open)
{
    m_open->setChecked(open);
}

bool Pane::isOpen() const
{
    return m_open->isChecked();
}

} // namespace Workbench
