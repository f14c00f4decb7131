#pragma once

#include <UIAPICommon.h>

#include <QDialog>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

/// Asks for a width and a symbol with classic fields and what was added to them.
class HalfWayDialog : public QDialog
{
public:
    HalfWayDialog(QWidget * view, QString const & formFile) : QDialog(view), m_formFile(formFile)
    {
        using namespace KVCAM::UIAPI;
        using namespace KVCAM::UIAPI::Ext::LengthLiterals;

        width = new KVLineEdit(RegPositive, view);
        width->setObjectName("width");
        width->setTyped("8", Ext::Unit::Inch); // shown in the unit of the view
        width->setRange(3_mil, 1_in);          // judged at every edit, without a box
        width->setFollowView(true);            // no changeunit() any more

        symbol = new KVLineEdit(RegSymbolName, view);
        symbol->setObjectName("symbol");
        symbol->setSymbolConversion(KVLineEdit::TargetUnit); // "rect20x10" is "rect508x254" in a metric view
        symbol->setTyped("rect20x10", Ext::Unit::Inch);
        symbol->setFollowView(true);

        words = new QLabel;
        ok = new QPushButton("OK");
        connect(width, &KVLineEdit::validityChanged, words, [this](bool legal, QString const & text) {
            words->setText(text);
            ok->setEnabled(legal);
        });
        connect(ok, &QPushButton::clicked, this, &HalfWayDialog::accept);

        auto * layout = new QFormLayout(this);
        layout->addRow("Width", width);
        layout->addRow("Symbol", symbol);
        layout->addRow(ok, words);
        m_form = new Ext::FormState(this, this); // saves what was typed with its unit
        m_form->load(m_formFile);                // there may be none yet
    }

    void accept() override
    {
        mil = width->exactLength().toMil();
        m_form->save(m_formFile);
        QDialog::accept();
    }

    KVCAM::UIAPI::KVLineEdit * width = nullptr;
    KVCAM::UIAPI::KVLineEdit * symbol = nullptr;
    QLabel * words = nullptr;
    QPushButton * ok = nullptr;
    double mil = 0; ///< once accepted

private:
    QString m_formFile;
    KVCAM::UIAPI::Ext::FormState * m_form = nullptr;
};
