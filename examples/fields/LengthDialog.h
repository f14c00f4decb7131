#pragma once

#include <UIAPICommon.h>

#include <QDialog>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

/// Asks for a width with a field that holds a length.
class LengthDialog : public QDialog
{
public:
    LengthDialog(QWidget * view, QString const & formFile) : QDialog(view), m_formFile(formFile)
    {
        using namespace KVCAM::UIAPI;
        using namespace KVCAM::UIAPI::Ext::LengthLiterals;

        width = new KVLengthEdit;
        width->setObjectName("width");
        width->setView(view); // its unit, now and later
        width->setRange(3_mil, 1_in);
        width->setValue(8_mil);

        words = new QLabel;
        auto const tell = [this] {
            words->setText(width->fault().isEmpty() ? width->preview() : width->fault());
        };
        connect(width, &KVLengthEdit::validityChanged, words, tell);
        connect(width, &KVLengthEdit::previewChanged, words, tell);

        auto * ok = new QPushButton("OK");
        connect(ok, &QPushButton::clicked, this, &LengthDialog::accept);
        auto * layout = new QFormLayout(this);
        layout->addRow("Width", width);
        layout->addRow(ok, words);
        m_form = new Ext::FormState(this, this); // once all fields are in the form
        m_form->load(m_formFile);                // there may be none yet
    }

    void accept() override
    {
        if (width->commit()) { // takes what is being typed; false if it has no legal value
            mil = width->value().toMil();
            m_form->save(m_formFile);
            QDialog::accept();
        }
    }

    KVCAM::UIAPI::KVLengthEdit * width = nullptr;
    QLabel * words = nullptr;
    double mil = 0; ///< once accepted

private:
    QString m_formFile;
    KVCAM::UIAPI::Ext::FormState * m_form = nullptr;
};
