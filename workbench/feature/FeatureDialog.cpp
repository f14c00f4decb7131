#include "feature/FeatureDialog.h"

#include "board/BoardTexts.h"
#include "board/BoardView.h"
#include "board/PadFamilies.h"
#include "ui/Colours.h"
#include "ui/LanguageChange.h"

#include <UIAPICommon.h>

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <utility>

namespace Workbench {

using namespace KVCAM::UIAPI;

namespace {

// The legal sizes of a pad, in mil.
constexpr double smallestMil = 0.5;
constexpr double largestMil = 1000;

constexpr QRgb valueColour = 0xff20642f;

// 0/0 lies in every range; like any other text that is no number it counts as 0.
double sizeValue(QString const & calculation)
{
    double const value = caculateData(calculation);
    return std::isnan(value) ? 0 : value;
}

// Plain digits as a symbol name has them, far below a nanometre.
QString plainText(double value)
{
    QString text = QString::number(value, 'f', 6);
    while (text.endsWith('0')) {
        text.chop(1);
    }
    return text.endsWith('.') ? text.chopped(1) : text;
}

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
    resize(860, 480);
    auto * layout = new QVBoxLayout(this);
    m_heading = new QLabel;
    layout->addWidget(m_heading);
    auto * columns = new QHBoxLayout;
    columns->addWidget(makePadGroup(), 3);
    columns->addWidget(makeRemarksGroup(), 2);
    layout->addLayout(columns);
    layout->addWidget(makeButtons());
    m_fields = {m_name, m_width, m_height, m_offset, m_polarity, m_plated, m_side, m_author};

    followView();
    fillFromPad();
    refreshUnit();
    setTextsNowAndLater(*this, [this] { setTexts(); });
    m_opened = remarks();
}

void FeatureDialog::followView()
{
    for (KVLineEdit * field : {m_name, m_width, m_height, m_offset}) {
        field->setRefusalHints(true);
    }
    m_name->setFollowView(true);
    m_offset->setFollowView(true);
    connect(m_name, &QLineEdit::textChanged, this, &FeatureDialog::symbolEdited);
    connect(m_offset, &QLineEdit::textChanged, this, &FeatureDialog::offsetEdited);
    // The text of a calculation has no other unit: refreshUnit() shows the sizes anew.
    for (KVLineEdit * field : {m_width, m_height}) {
        field->installEventFilter(this);
        connect(field, &QLineEdit::textChanged, this, &FeatureDialog::showVerdict);
        // Queued: a box comes up when the field is done with its event, so that both may be deleted
        // meanwhile.
        connect(
            field, &QLineEdit::editingFinished, this, [this, field] { finishSize(*field); },
            Qt::QueuedConnection);
        connect(field, &KVLineEdit::validityChanged, this, [this, field](bool /*legal*/, QString words) {
            m_words[field] = words;
            showVerdict();
        });
    }
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
    // One layer may use the same name in both units, so the feature itself is asked.
    auto const position = static_cast<std::size_t>(pad - features.begin());
    auto const & shapes = m_view.shapes();
    int const unit = position < shapes.size() ? shapes[position].unit : 0;
    m_symbol = {QString::fromStdString(pad->symbol), unit};
    m_polarity->setCurrentIndex(pad->positive ? 0 : 1);
}

// Shows the symbol and its sizes in the view's unit. The symbol field follows a switch by itself; the dialog
// knows besides in which unit each text was typed or stored, and converts from there: a symbol field alone
// converts by the same factor in both directions, and a number that was stored in the other unit has been
// rounded for the field. A text that stays is not set, since that would end the field's undo history.
void FeatureDialog::showSymbol()
{
    m_isFilling = true;
    auto const show = [](QLineEdit & field, QString const & text) {
        if (field.text() != text) {
            field.setText(text);
        }
        field.setModified(false);
    };
    int const cursor = m_name->cursorPosition();
    show(*m_name, m_symbol.in(m_shownUnit));
    m_name->setCursorPosition(cursor);
    for (auto const & [field, size] :
         {std::pair(m_width, m_symbol.width()), std::pair(m_height, m_symbol.height())}) {
        field->setEnabled(hasSize(field));
        show(*field, size.in(m_shownUnit));
        if (field->isEnabled()) {
            field->setRange(smallestMil, largestMil);
        } else {
            field->clearRange(); // a size that the symbol does not have is not judged
        }
    }
    m_isFilling = false;
    showFacts();
}

bool FeatureDialog::hasSize(KVLineEdit const * field) const
{
    return field == m_width ? m_symbol.hasWidth() : m_symbol.hasHeight();
}

void FeatureDialog::symbolEdited()
{
    if (!isFollowing()) {
        m_symbol = {m_name->text(), m_shownUnit};
        showSymbol();
    }
}

void FeatureDialog::offsetEdited()
{
    if (!isFollowing()) {
        m_typedOffset = {m_offset->text(), m_shownUnit};
    }
    showFacts();
}

// What was typed becomes the size, or the last legal size comes back; the library says in a box why.
void FeatureDialog::finishSize(KVLineEdit & field)
{
    if (!field.isModified()) {
        return;
    }
    field.setModified(false); // the box takes the focus, which must not finish the field once more
    QString const typed = field.text();
    QPointer<FeatureDialog> const alive(this);
    bool const isLegal = judgeCaculateIsStandard(typed) &&
                         isValueLegal(sizeValue(typed), smallestMil, largestMil, m_view.handle());
    if (!alive) {
        return;
    }
    if (isLegal) {
        takeSize(field);
    }
    showSymbol();
}

// The same without a box, for a form that is closed, saved or shown in the other unit while a size is being
// typed; showSymbol() then brings back what is not taken. What was typed counts in the unit that was shown.
void FeatureDialog::settleSizes()
{
    for (KVLineEdit * field : {m_width, m_height}) {
        double const value = sizeValue(field->text());
        if (field->isModified() && m_words[field].isEmpty() &&
            Ext::checkValue(value, smallestMil, largestMil, m_shownUnit).legal) {
            takeSize(*field);
        }
    }
}

void FeatureDialog::takeSize(KVLineEdit const & field)
{
    PadSize const size{plainText(sizeValue(field.text())), m_shownUnit};
    if (&field == m_width) {
        m_symbol.setWidth(size);
    } else {
        m_symbol.setHeight(size);
    }
}

bool FeatureDialog::eventFilter(QObject * watched, QEvent * event)
{
    // An empty field never finishes, so that leaving it has to bring its size back.
    auto * field = qobject_cast<KVLineEdit *>(watched);
    if (event->type() == QEvent::FocusOut && field != nullptr && field->text().isEmpty()) {
        finishSize(*field);
    }
    return QDialog::eventFilter(watched, event);
}

void FeatureDialog::refreshUnit()
{
    settleSizes(); // in the unit that was shown so far
    m_shownUnit = getUnit(m_view.handle());
    showSymbol();
    showTitles();
}

void FeatureDialog::showTitles()
{
    setWindowTitle(tr("Feature"));
    for (auto * label : findChildren<KVLabel *>()) {
        int const kind = label->getAttribute2() == "large" ? 0 : 1;
        label->setText(
            QString("%1 [%2]").arg(tr(label->getAttribute1().toUtf8().constData()),
                                   QString::fromStdString(getUnitStringType(m_view.handle(), kind))));
    }
    for (auto const & item : m_view.features()) {
        if (item.index == m_feature) {
            m_heading->setText(
                tr("Pad %1 of layer %2 at %3")
                    .arg(QString::number(m_feature), QString::fromStdString(m_view.layer()),
                         positionText(m_view.handle(), item.points.at(0).x, item.points.at(0).y)));
        }
    }
}

void FeatureDialog::showFacts()
{
    m_description->setText(Ext::describeSymbol(m_symbol.name(), m_symbol.unit()));
    m_exact->setText(tr("Width %1 nm, offset %2 nm").arg(exactWidth()).arg(m_offset->exactLengthNm()));
    showVerdict();
}

void FeatureDialog::setTexts()
{
    for (KVLineEdit * field : {m_width, m_height}) {
        if (field->isEnabled()) {
            field->setRange(smallestMil, largestMil); // sends the words of an illegal value again
        }
    }
    showFacts();
    showTitles();
}

void FeatureDialog::showVerdict()
{
    QString const unit = QString::fromStdString(getUnitStringType(m_view.handle(), 1));
    QStringList words;
    QStringList values;
    for (KVLineEdit const * field : {m_width, m_height}) {
        if (!m_words[field].isEmpty()) {
            words.append(m_words[field]);
            continue;
        }
        double const value = sizeValue(field->text());
        if (field->isModified() && !isSizeText(field->text()) && value > 0) {
            values.append(QString("= %1 %2").arg(plainText(value), unit));
        }
    }
    words.removeDuplicates();
    m_verdict->setText((words.isEmpty() ? values : words).join('\n'));
    m_verdict->setStyleSheet(textStyle(words.isEmpty() ? valueColour : faultColour));
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

} // namespace Workbench
