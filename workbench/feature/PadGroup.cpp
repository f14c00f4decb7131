#include "feature/PadGroup.h"

#include "board/BoardView.h"
#include "feature/FormFile.h"
#include "feature/SizeField.h"
#include "feature/SymbolNames.h"
#include "ui/Colours.h"
#include "ui/LanguageChange.h"

#include <UIAPICommon.h>

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include <algorithm>
#include <utility>

namespace Workbench {

using namespace KVCAM::UIAPI;

namespace {

constexpr QRgb valueColour = 0xff20642f;

QWidget * beside(QWidget * field, QWidget * button)
{
    auto * row = new QWidget;
    auto * layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(field, 1);
    layout->addWidget(button);
    return row;
}

QLabel * wrappedLabel()
{
    auto * label = new QLabel;
    label->setWordWrap(true);
    label->setMinimumHeight(3 * label->fontMetrics().lineSpacing());
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return label;
}

} // namespace

PadGroup::PadGroup(BoardView & view, int feature, std::string job)
    : m_view(view), m_feature(feature), m_job(std::move(job)), m_shownUnit(Ext::unitOf(view.handle()))
{
    makeFields();
    makeLayout();
    followView();
    fillFromPad();
    refreshUnit();
    setTextsNowAndLater(*this, [this] { setTexts(); });
}

void PadGroup::makeFields()
{
    // The view is the parent on construction, which decides the unit. The layout sets another parent later.
    m_name = new KVLineEdit(RegSymbolName, &m_view);
    auto const judged = [this] { showVerdict(); };
    m_width =
        new SizeField(m_view, judged, [this](auto const & size) { finishSize(size, &PadSymbol::setWidth); });
    m_height =
        new SizeField(m_view, judged, [this](auto const & size) { finishSize(size, &PadSymbol::setHeight); });
    m_offset = new KVLineEdit("0", RegNumber, &m_view);
    m_name->setObjectName("symbol");
    m_width->setObjectName("width");
    m_height->setObjectName("height");
    m_offset->setObjectName("offset");
    m_description = wrappedLabel();
    m_verdict = wrappedLabel();
    m_exact = new QLabel;
    m_polarity = new QComboBox;
    m_polarity->setObjectName("polarity");
    m_polarity->addItems({{}, {}});
    m_plated = new QCheckBox;
    m_plated->setObjectName("plated");
}

void PadGroup::makeLayout()
{
    auto * names = new QPushButton;
    connect(names, &QPushButton::clicked, this, [this] { showNames(); });
    names->setAutoDefault(false);
    setStyleSheet("KVCAM--UIAPI--KVLengthEdit[uiapiValid=\"false\"] { background: #fde0e0; color: #20242a }");
    auto * form = new QFormLayout(this);
    addRow(*form, QT_TR_NOOP("Symbol"), "small", beside(m_name, names));
    form->addRow(QString(), m_description);
    addRow(*form, QT_TR_NOOP("Width"), "small", m_width);
    addRow(*form, QT_TR_NOOP("Height"), "small", m_height);
    form->addRow(QString(), m_verdict);
    addRow(*form, QT_TR_NOOP("Offset"), "small", m_offset);
    form->addRow(QString(), m_exact);
    auto * polarity = new QLabel;
    form->addRow(polarity, m_polarity);
    form->addRow(QString(), m_plated);
    setTextsNowAndLater(*this, [this, names, polarity] {
        setTitle(tr("Pad"));
        names->setText(tr("Names"));
        for (SizeField * field : {m_width, m_height}) {
            field->setToolTip(tr("A number or a calculation such as 10+2.5 or 0.3mm-2mil"));
        }
        polarity->setText(tr("Polarity"));
        m_polarity->setItemText(0, tr("Positive"));
        m_polarity->setItemText(1, tr("Negative"));
        m_plated->setText(tr("Plated"));
    });
}

// The label's attributes hold its untranslated title and the scale of its unit for showTitles().
void PadGroup::addRow(QFormLayout & form, QString title, QString scale, QWidget * field)
{
    auto * label = new KVLabel;
    label->setAttribute1(title);
    label->setAttribute2(scale);
    form.addRow(label, field);
}

void PadGroup::followView()
{
    m_name->setRefusalHints(true);
    m_offset->setRefusalHints(true);
    m_name->setFollowView(true);
    m_offset->setFollowView(true);
    connect(m_name, &QLineEdit::textChanged, this, &PadGroup::symbolEdited);
    connect(m_offset, &QLineEdit::textChanged, this, &PadGroup::offsetEdited);
    // Connected after the fields that follow by themselves. Sizes do not, since a calculation has no
    // conversion.
    connect(Ext::Notifier::instance(), &Ext::Notifier::viewChanged, this,
            [this](void const * view, Ext::ViewAspects aspects) {
                if (view == m_view.handle() && aspects.testFlag(Ext::ViewAspect::Unit)) {
                    refreshUnit();
                }
            });
}

// True while fields rewrite their texts for another unit, which is not an edit.
bool PadGroup::isFollowing() const
{
    return m_isFilling || Ext::unitOf(m_view.handle()) != m_shownUnit;
}

void PadGroup::fillFromPad()
{
    auto const & features = m_view.features();
    auto const pad = std::find_if(features.begin(), features.end(),
                                  [this](auto const & item) { return item.index == m_feature; });
    if (pad == features.end()) {
        return;
    }
    // A layer may use the same name in both units, so the feature itself decides.
    auto const position = static_cast<std::size_t>(pad - features.begin());
    auto const & shapes = m_view.shapes();
    Unit const unit = position < shapes.size() ? shapes[position].unit : Unit::Inch;
    m_symbol = {QString::fromStdString(pad->symbol), unit};
    m_polarity->setCurrentIndex(pad->positive ? 0 : 1);
}

// Shows the symbol and its sizes in the view's unit. The symbol field follows a switch by itself, but it
// converts with one factor in both directions and has rounded numbers stored in the other unit. The group
// knows the unit in which each text was typed or stored, and converts from there.
void PadGroup::showSymbol()
{
    m_isFilling = true;
    QString const name = m_symbol.in(m_shownUnit);
    int const cursor = m_name->cursorPosition();
    if (m_name->text() != name) { // a text that is set again would lose its undo history
        m_name->setText(name);
    }
    m_name->setModified(false);
    m_name->setCursorPosition(cursor);
    m_width->showSize(m_symbol.width().in(m_shownUnit), m_symbol.hasWidth());
    m_height->showSize(m_symbol.height().in(m_shownUnit), m_symbol.hasHeight());
    m_isFilling = false;
    showFacts();
}

void PadGroup::symbolEdited()
{
    if (!isFollowing()) {
        m_symbol = {m_name->text(), m_shownUnit};
        m_isTyped = true;
        showSymbol();
    }
}

void PadGroup::offsetEdited()
{
    if (!isFollowing()) {
        m_typedOffset = {m_offset->text(), m_shownUnit};
    }
    showFacts();
}

void PadGroup::finishSize(QString const & size, bool (PadSymbol::*take)(PadSize const &))
{
    (m_symbol.*take)({size, m_shownUnit});
    showSymbol();
}

// For a form that is closed, saved or switched to the other unit while a size is being typed. The text counts
// in the unit that was shown.
void PadGroup::settleSizes()
{
    if (auto const width = m_width->typedSize()) {
        m_symbol.setWidth({*width, m_shownUnit});
    }
    if (auto const height = m_height->typedSize()) {
        m_symbol.setHeight({*height, m_shownUnit});
    }
}

void PadGroup::refreshUnit()
{
    settleSizes(); // in the unit shown so far
    m_shownUnit = Ext::unitOf(m_view.handle());
    showSymbol();
    showTitles();
}

void PadGroup::showTitles()
{
    for (auto * label : findChildren<KVLabel *>()) {
        int const kind = label->getAttribute2() == "large" ? 0 : 1;
        label->setText(
            QString("%1 [%2]").arg(tr(label->getAttribute1().toUtf8().constData()),
                                   QString::fromStdString(getUnitStringType(m_view.handle(), kind))));
    }
}

void PadGroup::showFacts()
{
    // A stored name that only begins like a standard one is meant as it is.
    QString const fault = m_isTyped ? m_symbol.fault() : QString();
    QString const words = Ext::describeSymbol(m_symbol.name(), m_symbol.unit());
    m_description->setText(fault.isEmpty() ? words : words + '\n' + fault);
    m_exact->setText(tr("Width %1 nm, offset %2 nm")
                         .arg(exactWidth().nanometres())
                         .arg(m_offset->exactLength().nanometres()));
    showVerdict();
}

void PadGroup::setTexts()
{
    showFacts();
    showTitles();
}

void PadGroup::showVerdict()
{
    QStringList words;
    QStringList values;
    for (SizeField const * field : {m_width, m_height}) {
        if (!field->fault().isEmpty()) {
            words.append(field->fault());
        } else if (!field->preview().isEmpty()) {
            values.append(field->preview());
        }
    }
    words.removeDuplicates();
    m_verdict->setText((words.isEmpty() ? values : words).join('\n'));
    m_verdict->setStyleSheet(textStyle(words.isEmpty() ? valueColour : faultColour));
}

// The list disappears when the focus leaves it.
void PadGroup::showNames()
{
    delete m_names;
    m_names = new KVListWidget(window());
    listSymbols(*m_names, m_job, m_view.step(), m_view.layer(), m_shownUnit);
    connect(m_names, &QListWidget::itemClicked, this, [this](QListWidgetItem const * item) {
        m_symbol = listedSymbol(*item);
        m_isTyped = false;
        showSymbol();
        m_names->hide();
    });
    QPoint const below = m_name->mapTo(window(), QPoint(0, m_name->height()));
    m_names->setGeometry(below.x(), below.y(), m_name->width(), 10 * fontMetrics().lineSpacing());
    m_names->show();
    m_names->setFocus();
}

void PadGroup::settle()
{
    settleSizes();
    showSymbol();
}

QList<QObject *> PadGroup::fields() const
{
    return {m_name, m_width, m_height, m_offset, m_polarity, m_plated};
}

QList<QObject *> PadGroup::fieldsWithoutUnit() const
{
    return {m_plated};
}

QJsonObject PadGroup::extras() const
{
    return {{"symbol", m_symbol.toJson()},
            {"offset", QJsonObject{{"text", m_typedOffset.text}, {"unit", unitCode(m_typedOffset.unit)}}},
            {"negative", m_polarity->currentIndex() == 1}}; // its text depends on the language
}

bool PadGroup::restore(SavedForm const & form)
{
    auto const symbol = PadSymbol::fromJson(form.extra["symbol"].toObject());
    QJsonObject const offset = form.extra["offset"].toObject();
    if (!symbol || !isUnit(offset["unit"])) {
        return false;
    }
    giveUnit(m_view.handle(), form.unit); // first: the texts are in that unit
    m_isFilling = true;                   // the saved texts are consistent
    QList<QObject *> restored = fields();
    writeJsonToList(form.fields, restored);
    m_isFilling = false;
    m_symbol = *symbol;
    m_isTyped = false;
    // The field keeps its text in the unit of typing, so it is entered in that unit again.
    giveUnit(m_view.handle(), Ext::unitOfCode(offset["unit"].toInt()));
    m_offset->setText(offset["text"].toString());
    giveUnit(m_view.handle(), form.unit);
    if (form.extra["negative"].isBool()) { // earlier versions saved the text only
        m_polarity->setCurrentIndex(form.extra["negative"].toBool() ? 1 : 0);
    }
    m_name->setCursorPosition(0);
    showSymbol();
    return true;
}

QString PadGroup::symbol() const
{
    return m_name->text();
}

QString PadGroup::width() const
{
    return m_width->text();
}

QString PadGroup::verdict() const
{
    return m_verdict->text();
}

QString PadGroup::description() const
{
    return m_description->text();
}

Ext::Length PadGroup::exactWidth() const
{
    return m_symbol.width().length();
}

} // namespace Workbench
