#pragma once

#include <UIAPICommonExt.h>

#include <QDialog>

class QCheckBox;
class QDateEdit;
class QLineEdit;

namespace Workbench {

/// Asks for what a waiver needs: the reason, who accepts the violation, and for how long.
class WaiveDialog : public QDialog
{
    Q_OBJECT

public:
    /// The violation as the user knows it, and its id.
    WaiveDialog(QString const & violation, std::string id, QWidget * parent);

    /// Dated today.
    KVCAM::UIAPI::Ext::Waiver waiver() const;

private:
    std::string m_id;
    QLineEdit * m_reason;
    QLineEdit * m_author;
    QCheckBox * m_expires;
    QDateEdit * m_until;
};

} // namespace Workbench
