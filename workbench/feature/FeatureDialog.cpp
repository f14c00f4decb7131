#include "feature/FeatureDialog.h"

#include "board/BoardTexts.h"
#include "board/BoardView.h"
#include "feature/FormFile.h"
#include "feature/PadGroup.h"
#include "feature/RemarksGroup.h"
#include "ui/LanguageChange.h"

#include <UIAPICommon.h>

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <utility>

namespace Workbench {

using namespace KVCAM::UIAPI;

FeatureDialog::FeatureDialog(BoardView & view, int feature, std::string job, QString formFile,
                             QWidget * parent)
    : QDialog(parent)
    , m_view(view)
    , m_feature(feature)
    , m_job(std::move(job))
    , m_formFile(std::move(formFile))
    , m_heading(new QLabel)
    , m_pad(new PadGroup(view, feature, m_job))
    , m_remarks(new RemarksGroup)
{
    resize(860, 480);
    auto * layout = new QVBoxLayout(this);
    layout->addWidget(m_heading);
    auto * columns = new QHBoxLayout;
    columns->addWidget(m_pad, 3);
    columns->addWidget(m_remarks, 2);
    layout->addLayout(columns);
    layout->addWidget(makeButtons());
    connect(&m_remarks->note(), &KVTextEdit::LostFocus, this, [this] { saveForm(); });
    connect(Ext::Notifier::instance(), &Ext::Notifier::viewChanged, this, &FeatureDialog::setTexts);
    setTextsNowAndLater(*this, [this] { setTexts(); });
    m_opened = content();
}

// The base class hides the dialog again. A note that loses the focus then must not save the form.
FeatureDialog::~FeatureDialog()
{
    m_remarks->note().disconnect(this);
}

QWidget * FeatureDialog::makeButtons()
{
    // Return finishes a field and must not press a button, so none is a default button.
    auto * buttons = new QDialogButtonBox;
    auto * unit = buttons->addButton(QString(), QDialogButtonBox::ActionRole);
    auto * save = buttons->addButton(QString(), QDialogButtonBox::ActionRole);
    auto * close = buttons->addButton(QDialogButtonBox::Close);
    setTextsNowAndLater(*close, [unit, save, close] { // after Qt has set its own texts
        unit->setText(tr("Switch unit"));
        save->setText(tr("Save form"));
        close->setText(tr("Close"));
    });
    for (QPushButton * button : {unit, save, close}) {
        button->setAutoDefault(false);
    }
    connect(unit, &QPushButton::clicked, this, [this] { switchUnit(m_view.handle()); });
    connect(save, &QPushButton::clicked, this, [this] { saveForm(); });
    connect(buttons, &QDialogButtonBox::rejected, this, &FeatureDialog::reject);
    return buttons;
}

void FeatureDialog::setTexts()
{
    setWindowTitle(tr("Feature"));
    for (auto const & item : m_view.features()) {
        if (item.index == m_feature) {
            m_heading->setText(
                tr("Pad %1 of layer %2 at %3")
                    .arg(QString::number(m_feature), QString::fromStdString(m_view.layer()),
                         positionText(m_view.handle(), item.points.at(0).x, item.points.at(0).y)));
        }
    }
}

QString FeatureDialog::padKey() const
{
    return QString::fromStdString(m_job + '/' + m_view.step() + '/' + m_view.layer() + '/' +
                                  std::to_string(m_feature));
}

QList<QObject *> FeatureDialog::fields() const
{
    return m_pad->fields() + m_remarks->fields();
}

QJsonObject FeatureDialog::extras() const
{
    QJsonObject extras = m_pad->extras();
    QJsonObject const remarks = m_remarks->extras();
    for (auto entry = remarks.begin(); entry != remarks.end(); ++entry) {
        extras[entry.key()] = entry.value();
    }
    return extras;
}

bool FeatureDialog::restoreForm()
{
    SavedForm form;
    if (!readForm(m_formFile, padKey(), form) || !m_pad->restore(form)) {
        return false;
    }
    m_remarks->restore(form);
    m_isRestored = true;
    return true;
}

bool FeatureDialog::saveForm()
{
    m_pad->settle();
    SavedForm form{m_pad->shownUnit(), {}, extras()};
    readListToJson(fields(), form.fields);
    return writeForm(m_formFile, padKey(), form);
}

// What the user can change, whatever unit is shown.
QJsonObject FeatureDialog::content() const
{
    QJsonObject content;
    readListToJson(m_pad->fieldsWithoutUnit() + m_remarks->fields(), content);
    content["extra"] = extras();
    return content;
}

// A pad that was only looked at leaves no form behind: restoring it would bring back its unit.
void FeatureDialog::done(int result)
{
    m_pad->settle();
    if (m_isRestored || content() != m_opened) {
        saveForm();
    }
    QDialog::done(result);
}

} // namespace Workbench
