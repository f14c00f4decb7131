#include "SizeDialog.h"

#include "ui_SizeDialog.h"

using namespace KVCAM::UIAPI;

SizeDialog::SizeDialog(QWidget * view, QString const & formFile)
    : QDialog(view), m_view(view), m_formFile(formFile)
{
    Ui::SizeDialog form; // the controls, their ranges and their names, which are the keys in the saved form
    form.setupUi(this);
    unit = form.unit;
    width = form.width;
    clearance = form.clearance;
    words = form.words;
    ok = form.buttons->button(QDialogButtonBox::Ok);

    unit->setCurrentIndex(getUnit(view));
    Ext::setFormView(*this, view); // a form knows no view
    for (KVLengthEdit * field : {width, clearance}) {
        connect(field, &KVLengthEdit::previewChanged, this, &SizeDialog::judge);
        connect(field, &KVLengthEdit::validityChanged, this, &SizeDialog::judge);
        connect(field, &KVLengthEdit::valueChanged, this, &SizeDialog::judge);
    }
    connect(form.buttons, &QDialogButtonBox::accepted, this, &SizeDialog::accept);
    connect(form.buttons, &QDialogButtonBox::rejected, this, &SizeDialog::reject);
    // The library notifies the engine and every field that follows the view.
    connect(unit, qOverload<int>(&QComboBox::currentIndexChanged), this,
            [this](int index) { setUnit(m_view, index); });
    m_form = new Ext::FormState(this, this);
    m_form->load(m_formFile); // there may be none yet
    judge();
}

void SizeDialog::judge()
{
    QString fault;
    QString preview;
    bool complete = true;
    for (KVLengthEdit const * field : {width, clearance}) {
        fault += fault.isEmpty() ? field->fault() : QString();
        preview += preview.isEmpty() ? field->preview() : QString();
        complete = complete && !field->everyUnit().isEmpty(); // what is being typed counts
    }
    words->setText(!fault.isEmpty() ? fault : !complete ? QStringLiteral("Both sizes are needed.") : preview);
    ok->setEnabled(complete && fault.isEmpty());
}

void SizeDialog::accept()
{
    if (width->commit() && clearance->commit()) { // a shortcut may have come before the focus left
        m_form->save(m_formFile);                 // failing to save the form is no reason to refuse the sizes
        QDialog::accept();
    }
}
