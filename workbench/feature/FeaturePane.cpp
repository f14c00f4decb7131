#include "feature/FeaturePane.h"

#include "board/BoardTexts.h"
#include "board/BoardView.h"
#include "feature/SymbolNames.h"
#include "ui/Colours.h"
#include "ui/LanguageChange.h"

#include <EmbeddedEngine.h>
#include <UIAPICommon.h>

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineF>
#include <QListWidget>
#include <QTimer>
#include <QToolButton>

#include <algorithm>

namespace Workbench {

using namespace KVCAM;
using namespace KVCAM::UIAPI;

namespace {

// What a size may become.
constexpr Ext::Length smallest = Ext::Length::fromMil(0.01);
constexpr Ext::Length largest = Ext::Length::fromMil(100000);

char const * const sizeTitles[] = {QT_TRANSLATE_NOOP("Workbench::FeaturePane", "Width"),
                                   QT_TRANSLATE_NOOP("Workbench::FeaturePane", "Height")};

enum Row
{
    SizeRow,
    NetRow,
    LayerRow,
    PlaceRow,
    PolarityRow
};

char const * kindText(char kind)
{
    switch (kind) {
    case 'P':
        return QT_TRANSLATE_NOOP("Workbench::FeaturePane", "Pad %1");
    case 'L':
        return QT_TRANSLATE_NOOP("Workbench::FeaturePane", "Line %1");
    case 'A':
        return QT_TRANSLATE_NOOP("Workbench::FeaturePane", "Arc %1");
    default:
        return QT_TRANSLATE_NOOP("Workbench::FeaturePane", "Surface %1");
    }
}

// "10 x 20 mil = 254 x 508 µm"
QString inBothUnits(std::vector<Ext::Length> const & lengths)
{
    QStringList texts;
    for (Unit const unit : {Unit::Inch, Unit::Millimetre}) {
        QStringList numbers;
        for (Ext::Length const length : lengths) {
            numbers.append(length.text(unit, Ext::LengthScale::Small));
        }
        texts.append(numbers.join(" x ") + ' ' +
                     Ext::unitSuffix(unit, Ext::LengthScale::Small, Ext::MicrometreSign::Mu));
    }
    return texts.join(" = ");
}

QLabel * valueLabel()
{
    auto * label = new QLabel;
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText); // files are untrusted
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

bool isText(std::vector<Embedded::FeatureAttribute> const & attributes)
{
    return std::any_of(attributes.begin(), attributes.end(), [](auto const & attribute) {
        return attribute.name == ".string" || attribute.name == ".nomenclature";
    });
}

} // namespace

FeaturePane::FeaturePane(BoardView & view)
    : m_view(&view)
    , m_heading(valueLabel())
    , m_name(new KVLineEdit(RegSymbolName, &view)) // the parent on construction decides the unit
    , m_names(new QToolButton)
    , m_description(valueLabel())
    , m_verdict(valueLabel())
    , m_attributes(new KVTextEdit)
{
    makeFields();
    auto * form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    form->addRow(m_heading);
    auto * name = new QHBoxLayout;
    name->addWidget(m_name, 1);
    name->addWidget(m_names);
    auto const add = [&](char const * title, auto * content) {
        auto * label = new KVLabel;
        label->setAttribute1(QString(title));
        form->addRow(label, content);
    };
    add(QT_TR_NOOP("Symbol"), name);
    form->addRow(m_description);
    for (std::size_t i = 0; i < m_sizes.size(); ++i) {
        add(sizeTitles[i], m_sizes.at(i));
    }
    form->addRow(m_verdict);
    for (Fact const & fact : m_facts) {
        add(fact.title, fact.text);
    }
    add(QT_TR_NOOP("Attributes"), m_attributes);
    connect(Ext::Notifier::instance(), &Ext::Notifier::viewChanged, this,
            [this](void const * changed, Ext::ViewAspects aspects) {
                if (changed == m_view->handle() && aspects.testFlag(Ext::ViewAspect::Unit)) {
                    fill();
                }
            });
    setTextsNowAndLater(*this, [this] { setTexts(); });
}

void FeaturePane::makeFields()
{
    QFont bold = m_heading->font();
    bold.setBold(true);
    m_heading->setFont(bold);
    m_heading->setObjectName("feature");
    m_name->setObjectName("symbol");
    m_name->setRefusalHints(true);
    connect(m_name, &QLineEdit::editingFinished, this, &FeaturePane::symbolTyped);
    connect(m_names, &QToolButton::clicked, this, &FeaturePane::showNames);
    m_description->setObjectName("description");
    m_verdict->setObjectName("verdict");
    m_verdict->setMinimumHeight(2 * fontMetrics().lineSpacing() + 4); // keeps what is below in its place
    m_verdict->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    for (std::size_t i = 0; i < m_sizes.size(); ++i) {
        auto * field = new KVLengthEdit;
        field->setObjectName(i == 0 ? "width" : "height");
        field->setMicroSign(true);
        connect(field, &KVLengthEdit::valueEdited, this, [this, i] { sizeTyped(i); });
        auto const judge = [this, field] {
            m_verdict->setText(field->fault().isEmpty() ? field->preview() : field->fault());
            m_verdict->setStyleSheet(faultStyle(!field->fault().isEmpty()));
        };
        connect(field, &KVLengthEdit::previewChanged, this, judge);
        connect(field, &KVLengthEdit::validityChanged, this, judge);
        m_sizes.at(i) = field;
    }
    m_facts = {{QT_TR_NOOP("Size"), valueLabel()},
               {QT_TR_NOOP("Net"), valueLabel()},
               {QT_TR_NOOP("Layer"), valueLabel()},
               {QT_TR_NOOP("Position"), valueLabel()},
               {QT_TR_NOOP("Polarity"), valueLabel()}};
    char const * const names[] = {"size", "net", "layer", "position", "polarity"};
    for (std::size_t i = 0; i < m_facts.size(); ++i) {
        m_facts[i].text->setObjectName(names[i]);
    }
    m_attributes->setObjectName("attributes");
    m_attributes->setReadOnly(true);
    m_attributes->setTabChangesFocus(true);
    m_attributes->setMinimumHeight(3 * fontMetrics().lineSpacing());
}

void FeaturePane::setTexts()
{
    m_names->setText("...");
    m_names->setToolTip(tr("Names"));
    m_names->setAccessibleName(tr("Names"));
    for (KVLengthEdit * field : m_sizes) {
        field->setPlaceholderText({});
    }
    for (KVLabel * label : findChildren<KVLabel *>()) {
        label->setText(tr(label->getAttribute1().toLatin1().constData()));
    }
    fill();
}

void FeaturePane::showSelection(BoardView & view)
{
    m_view = &view;
    delete m_list;
    fill();
}

void FeaturePane::clearFacts()
{
    for (Fact const & fact : m_facts) {
        fact.text->clear();
    }
    m_attributes->clear();
}

void FeaturePane::fill()
{
    clearFacts();
    m_hasSymbol = false;
    if (m_view->selected().empty()) { // then nobody needs to wait for the shapes
        m_heading->setText(tr("Nothing is selected. A click selects a feature, with Ctrl one more."));
    } else {
        fillSelected();
    }
    showSymbol();
}

void FeaturePane::fillSelected()
{
    auto const & features = m_view->features();
    auto const & shapes = m_view->shapes();
    auto const & selected = m_view->selected();
    bool differ = false;
    for (std::size_t i = 0; i < features.size(); ++i) {
        if (selected.count(features[i].index) == 0) {
            continue;
        }
        // A layer may use the same name in both units, so the feature itself decides.
        PadSymbol const symbol(QString::fromStdString(features[i].symbol), shapes[i].unit);
        differ = differ || features[i].symbol.empty() || (m_hasSymbol && !symbol.isSame(m_symbol));
        m_symbol = symbol;
        m_hasSymbol = true;
        if (selected.size() == 1) {
            showOne(features[i], shapes[i].box);
        }
    }
    m_hasSymbol = m_hasSymbol && !differ;
    if (selected.size() > 1) {
        m_heading->setText(tr("%1 features").arg(selected.size()));
        m_facts[LayerRow].text->setText(QString::fromStdString(m_view->layer()));
    }
}

void FeaturePane::showSymbol()
{
    m_isFilling = true;
    bool const several = !m_hasSymbol && m_view->selected().size() > 1;
    Unit const unit = Ext::unitOf(m_view->handle());
    m_name->setEnabled(m_hasSymbol);
    m_names->setEnabled(m_hasSymbol);
    m_name->setText(m_hasSymbol ? m_symbol.in(unit) : QString());
    m_name->setCursorPosition(0);
    m_name->setModified(false);
    m_description->setText(m_hasSymbol ? symbolText(m_symbol.name(), m_symbol.unit())
                           : several   ? tr("The features have several symbols, or none.")
                                       : QString());
    m_description->setStyleSheet({});
    for (std::size_t i = 0; i < m_sizes.size(); ++i) {
        auto const length = m_hasSymbol ? m_symbol.size(i) : std::nullopt;
        KVLengthEdit & field = *m_sizes.at(i);
        field.setUnit(unit);
        field.setEnabled(length.has_value());
        field.setRange(length ? smallest : Ext::Length::lowest(), length ? largest : Ext::Length::highest());
        length ? field.setValue(*length) : field.clearValue();
    }
    m_verdict->clear();
    m_isFilling = false;
}

void FeaturePane::showOne(API::feature_info const & feature, QRectF const & box)
{
    auto const attributes =
        Embedded::featureAttributes(m_view->job(), m_view->step(), m_view->layer(), feature.index);
    QString const heading = tr(kindText(feature.kind)).arg(feature.index);
    m_heading->setText(isText(attributes) ? tr("%1, part of a text").arg(heading) : heading);
    QString const net = QString::fromStdString(
        Embedded::featureNet(m_view->job(), m_view->step(), m_view->layer(), feature.index));
    m_facts[SizeRow].text->setText(sizeText(box));
    m_facts[NetRow].text->setText(net.isEmpty() ? tr("not known") : net);
    m_facts[LayerRow].text->setText(QString::fromStdString(m_view->layer()));
    m_facts[PlaceRow].text->setText(placeText(feature, box));
    m_facts[PolarityRow].text->setText(feature.positive ? tr("Positive") : tr("Negative"));
    QStringList lines;
    for (auto const & [name, value] : attributes) {
        QString const text = QString::fromStdString(name);
        lines.append(value.empty() ? text : QString("%1 = %2").arg(text, QString::fromStdString(value)));
    }
    m_attributes->setPlainText(lines.join('\n'));
}

QString FeaturePane::sizeText(QRectF const & box) const
{
    std::vector<Ext::Length> lengths;
    for (std::size_t i = 0; i < m_sizes.size(); ++i) {
        if (auto const length = m_symbol.size(i)) {
            lengths.push_back(*length);
        }
    }
    if (lengths.empty()) { // a surface or a symbol of the job's own
        lengths = {Ext::Length::fromMicrometres(box.width()), Ext::Length::fromMicrometres(box.height())};
    }
    return inBothUnits(lengths);
}

QString FeaturePane::placeText(API::feature_info const & feature, QRectF const & box) const
{
    auto const text = [this](double x, double y) { return positionText(m_view->handle(), x, y); };
    auto const & points = feature.points;
    if (feature.kind == 'S') {
        return tr("around %1").arg(text(box.center().x(), box.center().y()));
    }
    if (points.size() < 2) {
        return points.empty() ? QString() : text(points[0].x, points[0].y);
    }
    QString const ends =
        tr("from %1\nto %2").arg(text(points[0].x, points[0].y), text(points[1].x, points[1].y));
    if (points.size() > 2) {
        return ends + '\n' + tr("about %1").arg(text(points[2].x, points[2].y));
    }
    double const length = QLineF(points[0].x, points[0].y, points[1].x, points[1].y).length();
    return ends + '\n' + tr("length %1").arg(inBothUnits({Ext::Length::fromMicrometres(length)}));
}

void FeaturePane::symbolTyped()
{
    PadSymbol const symbol(m_name->text(), Ext::unitOf(m_view->handle()));
    if (m_isFilling || !m_hasSymbol || symbol.name() == m_symbol.in(symbol.unit())) {
        return;
    }
    if (QString const fault = symbol.fault(); !fault.isEmpty()) {
        m_description->setText(fault);
        m_description->setStyleSheet(faultStyle(true));
        return;
    }
    want(symbol);
}

void FeaturePane::sizeTyped(std::size_t field)
{
    PadSymbol symbol = m_symbol;
    if (!m_isFilling && m_hasSymbol &&
        symbol.setSize(field, m_sizes.at(field)->value(), m_sizes.at(field)->unit())) {
        want(symbol);
    }
}

// What is selected now is meant: when the change is told, another feature or layer may be shown.
void FeaturePane::want(PadSymbol const & symbol)
{
    auto const & selected = m_view->selected();
    SymbolChange const change{m_view->step(), m_view->layer(), {selected.begin(), selected.end()}, symbol};
    QTimer::singleShot(0, this, [this, change] { emit changeWanted(change); });
}

QString FeaturePane::summary() const
{
    if (m_view->selected().size() != 1) {
        return {};
    }
    QStringList parts = {m_heading->text(), m_description->text(), m_facts[NetRow].text->text()};
    parts.removeAll(QString());
    return parts.join(", ");
}

bool FeaturePane::beginEditing()
{
    if (!m_hasSymbol) {
        return false;
    }
    QLineEdit * const field = m_sizes[0]->isEnabled() ? static_cast<QLineEdit *>(m_sizes[0]) : m_name;
    field->setFocus(Qt::ShortcutFocusReason);
    field->selectAll();
    return true;
}

void FeaturePane::showNames()
{
    delete m_list;
    m_list = new KVListWidget(window());
    listSymbols(*m_list, m_view->job(), m_view->step(), m_view->layer(), Ext::unitOf(m_view->handle()));
    connect(m_list, &QListWidget::itemClicked, this, [this](QListWidgetItem const * item) {
        want(listedSymbol(*item));
        m_list->hide();
    });
    QPoint const below = mapTo(window(), QPoint(0, m_name->geometry().bottom()));
    m_list->setGeometry(below.x(), below.y(), width(), 10 * fontMetrics().lineSpacing());
    m_list->show();
    m_list->setFocus();
}

} // namespace Workbench
