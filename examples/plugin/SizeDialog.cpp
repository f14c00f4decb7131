#include "SizeDialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>

using namespace KVCAM::UIAPI;

namespace {

constexpr Ext::Length smallest = Ext::Length::fromMil(4);
constexpr Ext::Length largest = Ext::Length::fromMil(40);

} // namespace

SizeDialog::SizeDialog(QWidget * view, QString const & formFile)
    : QDialog(view), m_view(view), m_formFile(formFile)
{
    setWindowTitle(QStringLiteral("Track size"));
    unit = new QComboBox;
    unit->setObjectName(QStringLiteral("unit")); // its key in the saved form
    unit->addItems({QStringLiteral("mil"), QStringLiteral("micrometre")});
    unit->setCurrentIndex(getUnit(view));
    words = new QLabel;
    auto * const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    ok = buttons->button(QDialogButtonBox::Ok);
    width = addField("width");
    clearance = addField("clearance");

    auto * const layout = new QFormLayout(this); // makes the controls children of this dialog
    layout->addRow(QStringLiteral("&Unit"), unit);
    layout->addRow(QStringLiteral("&Width"), width);
    layout->addRow(QStringLiteral("&Clearance"), clearance);
    layout->addRow(words);
    layout->addRow(buttons);

    connect(buttons, &QDialogButtonBox::accepted, this, &SizeDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &SizeDialog::reject);
    // The library notifies the engine and every field that follows the view.
    connect(unit, qOverload<int>(&QComboBox::currentIndexChanged), this,
            [this](int index) { setUnit(m_view, index); });
    m_form = new Ext::FormState(this, this);
    m_form->load(m_formFile); // there may be none yet
    judge();
}

KVLengthEdit * SizeDialog::addField(char const * name)
{
    auto * const field = new KVLengthEdit;
    field->setObjectName(QString::fromLatin1(name));
    field->setRange(smallest, largest);
    field->setView(m_view);
    connect(field, &KVLengthEdit::previewChanged, this, &SizeDialog::judge);
    connect(field, &KVLengthEdit::validityChanged, this, &SizeDialog::judge);
    connect(field, &KVLengthEdit::valueChanged, this, &SizeDialog::judge);
    return field;
}

void SizeDialog::judge()
{
    QString fault;
    QString preview;
    bool complete = true;
    for (KVLengthEdit const * field : {width, clearance}) {
        if (field != nullptr) {
            fault += fault.isEmpty() ? field->fault() : QString();
            preview += preview.isEmpty() ? field->preview() : QString();
            complete = complete && !field->everyUnit().isEmpty(); // what is being typed counts
        }
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
