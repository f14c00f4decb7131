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

    // The controls, children of this dialog.
    QComboBox * unit = nullptr;
    KVCAM::UIAPI::KVLineEdit * width = nullptr;     ///< a number
    KVCAM::UIAPI::KVLineEdit * clearance = nullptr; ///< an expression
    QLabel * words = nullptr;                       ///< why OK is disabled
    QPushButton * ok = nullptr;

private:
    QList<QObject *> fields() const { return {unit, width, clearance}; }
    KVCAM::UIAPI::KVLineEdit * addField(KVCAM::UIAPI::KVERegExp kind, char const * name);
    void restore();

    QWidget * m_view;
    QString m_formFile;
};
