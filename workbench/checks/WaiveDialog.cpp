#include "checks/WaiveDialog.h"

#include <QCheckBox>
#include <QDate>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <utility>

namespace Workbench {

using namespace KVCAM::UIAPI;

WaiveDialog::WaiveDialog(QString const & violation, std::string id, QWidget * parent)
    : QDialog(parent)
    , m_id(std::move(id))
    , m_reason(new QLineEdit)
    , m_author(new QLineEdit(qEnvironmentVariable("USER", qEnvironmentVariable("USERNAME"))))
    , m_expires(new QCheckBox(tr("&Until")))
    , m_until(new QDateEdit(QDate::currentDate().addMonths(6)))
{
    setWindowTitle(tr("Waive a violation"));
    setAttribute(Qt::WA_DeleteOnClose);
    m_reason->setObjectName("reason");
    m_author->setObjectName("author");
    m_expires->setObjectName("expires");
    m_until->setDisplayFormat("yyyy-MM-dd");
    m_until->setMinimumDate(QDate::currentDate());
    m_until->setCalendarPopup(true);
    m_until->setEnabled(false);
    auto * title = new QLabel(violation);
    title->setTextFormat(Qt::PlainText);
    auto * buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QPushButton * const accept = buttons->button(QDialogButtonBox::Ok);
    accept->setText(tr("&Waive"));
    auto * layout = new QFormLayout(this);
    layout->addRow(title);
    layout->addRow(tr("&Reason:"), m_reason);
    layout->addRow(tr("&Accepted by:"), m_author);
    layout->addRow(m_expires, m_until);
    layout->addRow(buttons);

    auto const enable = [this, accept] {
        accept->setEnabled(!m_reason->text().trimmed().isEmpty() && !m_author->text().trimmed().isEmpty());
    };
    enable();
    connect(m_reason, &QLineEdit::textChanged, this, enable);
    connect(m_author, &QLineEdit::textChanged, this, enable);
    connect(m_expires, &QCheckBox::toggled, m_until, &QWidget::setEnabled);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

Ext::Waiver WaiveDialog::waiver() const
{
    auto const day = [](QDate const & date) { return date.toString(Qt::ISODate).toStdString(); };
    return {m_id, m_reason->text().trimmed().toStdString(), m_author->text().trimmed().toStdString(),
            day(QDate::currentDate()), m_expires->isChecked() ? day(m_until->date()) : std::string()};
}

} // namespace Workbench
