#include "SizeDialog.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QFormLayout>
#include <QJsonDocument>
#include <QSaveFile>

using namespace KVCAM::UIAPI;

namespace {

constexpr double smallestMil = 4;
constexpr double largestMil = 40;

} // namespace

SizeDialog::SizeDialog(QWidget * view, QString const & formFile)
    : QDialog(view), m_view(view), m_formFile(formFile)
{
    setWindowTitle(QStringLiteral("Track size"));
    unit = new QComboBox;
    unit->setObjectName(QStringLiteral("unit")); // what the form is remembered by
    unit->addItems({QStringLiteral("mil"), QStringLiteral("micrometre")});
    unit->setCurrentIndex(getUnit(view));
    words = new QLabel;
    auto * const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    ok = buttons->button(QDialogButtonBox::Ok);
    width = addField(RegPositive, "width");
    clearance = addField(RegExpression, "clearance");

    auto * const layout = new QFormLayout(this); // takes the controls under this dialog
    layout->addRow(QStringLiteral("&Unit"), unit);
    layout->addRow(QStringLiteral("&Width"), width);
    layout->addRow(QStringLiteral("&Clearance"), clearance);
    layout->addRow(words);
    layout->addRow(buttons);

    connect(buttons, &QDialogButtonBox::accepted, this, &SizeDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &SizeDialog::reject);
    // The library tells the engine and every field that follows the view.
    connect(unit, qOverload<int>(&QComboBox::currentIndexChanged), this,
            [this](int index) { setUnit(m_view, index); });
    restore();
}

// The first parent of a field is the view whose unit it has; moving it to the dialog changes nothing about
// that.
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
    field->setRange(smallestMil, largestMil);
    field->setFollowView(true);
    field->setRefusalHints(true);
    return field;
}

void SizeDialog::restore()
{
    QFile file(m_formFile);
    if (file.open(QIODevice::ReadOnly)) {
        QList<QObject *> controls = fields(); // the unit first, since the texts are in it
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
        file.commit(); // a form that cannot be remembered is no reason to refuse the sizes
    }
    QDialog::accept();
}
