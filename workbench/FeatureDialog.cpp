#include "FeatureDialog.h"

#include "BoardView.h"
#include "FormFile.h"

#include <UIAPICommon.h>

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QJsonArray>
#include <QLabel>

#include <algorithm>
#include <utility>

namespace Workbench {

using namespace KVCAM::UIAPI;

namespace {

// The legal sizes of a pad, in mil.
constexpr double minimumSize = 0.5;
constexpr double maximumSize = 1000;

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
    m_width->setRange(minimumSize, maximumSize);
    m_height->setRange(minimumSize, maximumSize);
    connect(m_name, &QLineEdit::textChanged, this, &FeatureDialog::symbolEdited);
    connect(m_width, &QLineEdit::textChanged, this, &FeatureDialog::sizeEdited);
    connect(m_height, &QLineEdit::textChanged, this, &FeatureDialog::sizeEdited);
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
    m_symbol = {QString::fromStdString(pad->symbol), 0};
    for (auto const & use : KVCAM::Embedded::layerSymbols(m_job, m_view.step(), m_view.layer())) {
        if (use.name == pad->symbol) {
            m_symbol.unit = use.unit;
        }
    }
    m_polarity->setCurrentIndex(pad->positive ? 0 : 1);
    showSymbol();
}

// Shows the symbol and its sizes in the view's unit.
void FeatureDialog::showSymbol()
{
    m_isFilling = true;
    m_name->setText(m_symbol.in(m_shownUnit));
    QString width;
    QString height;
    bool const hasSizes = readSizes(m_name->text(), width, height);
    m_width->setText(width);
    m_height->setText(height);
    m_width->setEnabled(hasSizes);
    m_height->setEnabled(!height.isEmpty());
    m_description->setText(Ext::describeSymbol(m_symbol.name, m_symbol.unit));
    m_isFilling = false;
    judgeExpression();
}

void FeatureDialog::symbolEdited()
{
    if (!isFollowing()) {
        m_symbol = {m_name->text(), m_shownUnit};
        int const cursor = m_name->cursorPosition();
        showSymbol();
        m_name->setCursorPosition(cursor);
    }
}

void FeatureDialog::sizeEdited()
{
    if (!isFollowing()) {
        m_symbol = {withSizes(m_name->text(), m_width->text(), m_height->text()), m_shownUnit};
        m_isFilling = true;
        m_name->setText(m_symbol.name);
        m_isFilling = false;
        m_description->setText(Ext::describeSymbol(m_symbol.name, m_symbol.unit));
        judgeExpression();
    }
}

void FeatureDialog::refreshUnit()
{
    m_shownUnit = getUnit(m_view.handle());
    // A symbol field converts by the same factor in both directions; this dialog knows in which unit the name
    // was typed and shows it converted once, from there.
    m_isFilling = true;
    m_name->setText(m_symbol.in(m_shownUnit));
    m_isFilling = false;
    for (auto * label : findChildren<KVLabel *>()) {
        int const kind = label->getAttribute2() == "large" ? 0 : 1;
        label->setText(QString("%1 [%2]").arg(
            label->getAttribute1(), QString::fromStdString(getUnitStringType(m_view.handle(), kind))));
    }
    auto const & features = m_view.features();
    for (auto const & item : features) {
        if (item.index == m_feature) {
            m_heading->setText(tr("Pad %1 of layer %2 at %3")
                                   .arg(QString::number(m_feature), QString::fromStdString(m_view.layer()),
                                        m_view.positionText(item.points.at(0).x, item.points.at(0).y)));
        }
    }
    judgeExpression();
}

// The verdict beside the field comes without a box; calculate() shows the box.
void FeatureDialog::judgeExpression()
{
    QString const unit = QString::fromStdString(getUnitStringType(m_view.handle(), 1));
    m_exact->setText(tr("Width %1 nm").arg(m_width->exactLengthNm()));
    if (m_expression->text().isEmpty()) {
        m_verdict->clear();
        return;
    }
    double const value = caculateData(m_expression->text());
    Ext::ValueVerdict const verdict = Ext::checkValue(value, minimumSize, maximumSize, m_shownUnit);
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
    if (!isValueLegal(value, minimumSize, maximumSize, m_view.handle())) {
        return false;
    }
    m_width->setText(QString::fromStdString(doubleToString(value)));
    return true;
}

QString FeatureDialog::symbol() const
{
    return m_name->text();
}

QString FeatureDialog::description() const
{
    return m_description->text();
}

qint64 FeatureDialog::exactWidth() const
{
    return m_width->exactLengthNm();
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
    m_symbol = {m_name->text(), m_shownUnit};
    m_description->setText(Ext::describeSymbol(m_symbol.name, m_symbol.unit));
    m_note->setPlainText(form.extra["note"].toString());
    m_documents->clear();
    for (auto const & path : form.extra["documents"].toArray()) {
        m_documents->addItem(path.toString());
    }
    judgeExpression();
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
    form.extra = {{"pad", padKey()}, {"note", m_note->toPlainText()}, {"documents", documents}};
    return writeForm(m_formFile, form);
}

} // namespace Workbench
