#include "SizeDialog.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QFormLayout>
#include <QJsonDocument>
#include <QSaveFile>

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
    width = addField(RegPositive, "width");
    clearance = addField(RegExpression, "clearance");

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
    restore();
}

// A field's first parent is the view whose unit it shows. Reparenting it to the dialog does not change that.
KVLineEdit * SizeDialog::addField(KVERegExp kind, char const * name)
{
    auto * const field = new KVLineEdit(kind, m_view);
    field->setObjectName(QString::fromLatin1(name));
    connect(field, &KVLineEdit::validityChanged, this, [this](bool legal, QString const & text) {
        words->setText(text);
        bool every = legal;
        for (KVLineEdit const * each : {width, clearance}) {
            every = every && (each == nullptr || each->property("uiapiValid").toBool());
        }
        ok->setEnabled(every);
    });
    field->setRange(smallest, largest);
    field->setFollowView(true);
    field->setRefusalHints(true);
    return field;
}

void SizeDialog::restore()
{
    QFile file(m_formFile);
    if (file.open(QIODevice::ReadOnly)) {
        QList<QObject *> controls = fields(); // the unit first, since the texts are in that unit
        writeJsonToList(QJsonDocument::fromJson(file.readAll()).object(), controls);
    }
}

void SizeDialog::accept()
{
    QJsonObject form;
    readListToJson(fields(), form);
    QSaveFile file(m_formFile);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(QJsonDocument(form).toJson());
        file.commit(); // failing to save the form is no reason to refuse the sizes
    }
    QDialog::accept();
}
