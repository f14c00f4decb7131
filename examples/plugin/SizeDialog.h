#pragma once

#include <UIAPICommon.h>

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>

/// Asks for a track width and a clearance in the unit of a view, and remembers the latest answers.
class SizeDialog : public QDialog
{
public:
    /// `view` is a registered view handle and a widget. `formFile` is where the form is saved.
    SizeDialog(QWidget * view, QString const & formFile);

    void accept() override;

    // The controls of the form, children of this dialog.
    QComboBox * unit = nullptr;
    KVCAM::UIAPI::KVLengthEdit * width = nullptr;
    KVCAM::UIAPI::KVLengthEdit * clearance = nullptr;
    QLabel * words = nullptr; ///< why OK is disabled, else what was typed amounts to
    QPushButton * ok = nullptr;

private:
    void judge();

    QWidget * m_view;
    QString m_formFile;
    KVCAM::UIAPI::Ext::FormState * m_form = nullptr; // finds the fields by itself
};
