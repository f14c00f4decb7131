#include "FeatureDialog.h"

#include "BoardView.h"
#include "FormFile.h"

#include <UIAPICommon.h>

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFormLayout>
#include <QJsonArray>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace Workbench {

using namespace KVCAM::UIAPI;

namespace {

// The legal sizes of a pad, in mil.
constexpr double smallestMil = 0.5;
constexpr double largestMil = 1000;

} // namespace

FeatureDialog::FeatureDialog(BoardView & view, int feature, std::string job, QString formFile,
                             QWidget * parent)
    : QDialog(parent)
    , m_view(view)
    , m_feature(feature)
    , m_job(std::move(job))
    , m_formFile(std::move(formFile))
    , m_shownUnit(getUnit(view.handle()))
{
    setWindowTitle(tr("Feature"));
    resize(860, 480);
    auto * layout = new QVBoxLayout(this);
    m_heading = new QLabel;
    layout->addWidget(m_heading);
    auto * columns = new QHBoxLayout;
    columns->addWidget(makePadGroup(), 3);
    columns->addWidget(makeRemarksGroup(), 2);
    layout->addLayout(columns);
    layout->addWidget(makeButtons());
    m_fields = {m_name, m_width, m_height, m_offset, m_expression, m_polarity, m_plated, m_side, m_author};

    followView();
    fillFromPad();
    refreshUnit();
}

void FeatureDialog::followView()
{
    for (KVLineEdit * field : {m_name, m_width, m_height, m_offset, m_expression}) {
        field->setFollowView(true);
        field->setRefusalHints(true);
    }
    connect(m_name, &QLineEdit::textChanged, this, &FeatureDialog::symbolEdited);
    connect(m_width, &QLineEdit::textChanged, this, &FeatureDialog::sizeEdited);
    connect(m_height, &QLineEdit::textChanged, this, &FeatureDialog::sizeEdited);
    connect(m_offset, &QLineEdit::textChanged, this, &FeatureDialog::showFacts);
    connect(m_expression, &QLineEdit::textChanged, this, &FeatureDialog::judgeExpression);
    // After the fields, which were connected above: they follow first.
    connect(Ext::Notifier::instance(), &Ext::Notifier::viewChanged, this,
            [this](void const * view, Ext::ViewAspects aspects) {
                if (view == m_view.handle() && aspects.testFlag(Ext::ViewAspect::Unit)) {
                    refreshUnit();
                }
            });
}

// While the unit changes, the fields rewrite their texts; that is no edit.
bool FeatureDialog::isFollowing() const
{
    return m_isFilling || getUnit(m_view.handle()) != m_shownUnit;
}

void FeatureDialog::fillFromPad()
{
    auto const & features = m_view.features();
    auto const pad = std::find_if(features.begin(), features.end(),
                                  [this](auto const & item) { return item.index == m_feature; });
    if (pad == features.end()) {
        return;
    }
    int unit = 0;
    for (auto const & use : KVCAM::Embedded::layerSymbols(m_job, m_view.step(), m_view.layer())) {
        if (use.name == pad->symbol) {
            unit = use.unit;
        }
    }
    m_symbol = {QString::fromStdString(pad->symbol), unit};
    m_polarity->setCurrentIndex(pad->positive ? 0 : 1);
}

// Shows the symbol and its sizes in the view's unit. The fields follow a switch by themselves; the dialog
// knows besides in which unit each text was typed or stored, and converts from there: a symbol field alone
// converts by the same factor in both directions, and a number that was stored in the other unit has been
// rounded for the field.
void FeatureDialog::showSymbol()
{
    m_isFilling = true;
    int const cursor = m_name->cursorPosition();
    m_name->setText(m_symbol.in(m_shownUnit));
    m_name->setCursorPosition(cursor);
    m_width->setText(m_symbol.width().in(m_shownUnit));
    m_height->setText(m_symbol.height().in(m_shownUnit));
    for (auto const & [field, size] :
         {std::pair(m_width, m_symbol.width()), std::pair(m_height, m_symbol.height())}) {
        field->setEnabled(!size.text.isEmpty());
        if (field->isEnabled()) {
            field->setRange(smallestMil, largestMil);
        } else {
            field->clearRange(); // a size that the symbol does not have is not judged
        }
    }
    m_isFilling = false;
    showFacts();
}

void FeatureDialog::symbolEdited()
{
    if (!isFollowing()) {
        m_symbol = {m_name->text(), m_shownUnit};
        showSymbol();
    }
}

void FeatureDialog::sizeEdited()
{
    if (isFollowing()) {
        return;
    }
    auto * field = qobject_cast<QLineEdit *>(sender());
    PadSize const size{field->text().remove('+'), m_shownUnit}; // the field takes a sign, a name does not
    if (field == m_width) {
        m_symbol.setWidth(size);
    } else {
        m_symbol.setHeight(size);
    }
    m_isFilling = true;
    m_name->setText(m_symbol.in(m_shownUnit));
    m_isFilling = false;
    showFacts();
}

void FeatureDialog::refreshUnit()
{
    m_shownUnit = getUnit(m_view.handle());
    showSymbol();
    for (auto * label : findChildren<KVLabel *>()) {
        int const kind = label->getAttribute2() == "large" ? 0 : 1;
        label->setText(QString("%1 [%2]").arg(
            label->getAttribute1(), QString::fromStdString(getUnitStringType(m_view.handle(), kind))));
    }
    for (auto const & item : m_view.features()) {
        if (item.index == m_feature) {
            m_heading->setText(tr("Pad %1 of layer %2 at %3")
                                   .arg(QString::number(m_feature), QString::fromStdString(m_view.layer()),
                                        m_view.positionText(item.points.at(0).x, item.points.at(0).y)));
        }
    }
}

void FeatureDialog::showFacts()
{
    m_description->setText(Ext::describeSymbol(m_symbol.name(), m_symbol.unit()));
    m_exact->setText(tr("Width %1 nm, offset %2 nm").arg(exactWidth()).arg(m_offset->exactLengthNm()));
    judgeExpression();
}

void FeatureDialog::changeEvent(QEvent * event)
{
    if (event->type() == QEvent::LanguageChange && m_exact != nullptr) {
        showFacts();
    }
    QDialog::changeEvent(event);
}

// The verdict beside the field comes without a box; calculate() shows the box.
void FeatureDialog::judgeExpression()
{
    QString const unit = QString::fromStdString(getUnitStringType(m_view.handle(), 1));
    if (m_expression->text().isEmpty()) {
        m_verdict->clear();
        return;
    }
    double const value = caculateData(m_expression->text());
    Ext::ValueVerdict const verdict = Ext::checkValue(value, smallestMil, largestMil, m_shownUnit);
    m_verdict->setText(verdict.legal
                           ? QString("= %1 %2").arg(QString::fromStdString(doubleToString(value)), unit)
                           : verdict.text);
    m_verdict->setStyleSheet(verdict.legal ? "color: #20642f" : "color: #b00020");
}

bool FeatureDialog::calculate(QString const & expression)
{
    m_expression->setText(expression);
    if (!judgeCaculateIsStandard(expression)) {
        return false;
    }
    double const value = caculateData(expression);
    if (!isValueLegal(value, smallestMil, largestMil, m_view.handle())) {
        return false;
    }
    m_width->setText(QString::fromStdString(doubleToString(value)));
    return true;
}

void FeatureDialog::remark(QString const & author, QString const & note, QString const & document)
{
    m_author->setText(author);
    m_note->setPlainText(note);
    m_documents->addItem(document);
}

QString FeatureDialog::symbol() const
{
    return m_name->text();
}

QString FeatureDialog::width() const
{
    return m_width->text();
}

QString FeatureDialog::verdict() const
{
    return m_verdict->text();
}

QString FeatureDialog::description() const
{
    return m_description->text();
}

qint64 FeatureDialog::exactWidth() const
{
    return m_symbol.width().nanometres();
}

QString FeatureDialog::padKey() const
{
    return QString::fromStdString(m_job + '/' + m_view.step() + '/' + m_view.layer() + '/' +
                                  std::to_string(m_feature));
}

bool FeatureDialog::restoreForm()
{
    SavedForm form;
    if (!readForm(m_formFile, form) || form.extra["pad"].toString() != padKey()) {
        return false;
    }
    setUnit(m_view.handle(), form.unit); // first, since the texts are in that unit
    m_isFilling = true;                  // the saved texts agree with each other
    writeJsonToList(form.fields, m_fields);
    m_isFilling = false;
    m_symbol = PadSymbol::fromJson(form.extra["symbol"].toObject());
    m_note->setPlainText(form.extra["note"].toString());
    m_documents->clear();
    for (auto const & path : form.extra["documents"].toArray()) {
        m_documents->addItem(path.toString());
    }
    m_name->setCursorPosition(0);
    showSymbol();
    m_isRestored = true;
    return true;
}

bool FeatureDialog::saveForm() const
{
    SavedForm form;
    form.unit = m_shownUnit;
    readListToJson(m_fields, form.fields);
    QJsonArray documents;
    for (int i = 0; i < m_documents->count(); ++i) {
        documents.append(m_documents->item(i)->text());
    }
    form.extra = {{"pad", padKey()},
                  {"symbol", m_symbol.toJson()},
                  {"note", m_note->toPlainText()},
                  {"documents", documents}};
    return writeForm(m_formFile, form);
}

} // namespace Workbench
