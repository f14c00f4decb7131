// How the dialog is put together; what it does stands in FeatureDialog.cpp.
#include "board/BoardView.h"
#include "feature/FeatureDialog.h"
#include "ui/LanguageChange.h"

#include <KVCAM_API.h>
#include <UIAPICommon.h>

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>

namespace Workbench {

using namespace KVCAM::UIAPI;

namespace {

QIcon dot(QColor const & colour)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(colour);
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(3, 3, 10, 10);
    return pixmap;
}

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

// The engine knows the standard symbols and those of its open jobs; `own` are those of the job shown.
bool isStandardSymbol(std::string const & name, std::vector<std::string> const & own)
{
    KVCAM::API::symboltype type{};
    int first = 0;
    int second = 0;
    return KVCAM::API::identify_symbol(name, type, first, second, false) &&
           std::none_of(own.begin(), own.end(), [wanted = QString::fromStdString(name)](auto const & item) {
               return wanted.compare(QString::fromStdString(item), Qt::CaseInsensitive) == 0;
           });
}

} // namespace

QWidget * FeatureDialog::makePadGroup()
{
    // A field's parent at its making is the view whose unit it has; the layout gives it another one.
    m_name = new KVLineEdit(RegSymbolName, &m_view);
    m_width = new KVLineEdit(RegExpression, &m_view);
    m_height = new KVLineEdit(RegExpression, &m_view);
    m_offset = new KVLineEdit("0", RegNumber, &m_view);
    m_name->setObjectName("symbol");
    m_width->setObjectName("width");
    m_height->setObjectName("height");
    m_offset->setObjectName("offset");
    m_description = wrappedLabel();
    m_verdict = wrappedLabel();
    m_exact = new QLabel;

    auto * names = new QPushButton;
    connect(names, &QPushButton::clicked, this, &FeatureDialog::showNames);
    names->setAutoDefault(false);
    m_polarity = new QComboBox;
    m_polarity->setObjectName("polarity");
    m_polarity->addItems({{}, {}});
    m_plated = new QCheckBox;
    m_plated->setObjectName("plated");

    auto * group = new QGroupBox;
    group->setStyleSheet("KVCAM--UIAPI--KVLineEdit[uiapiValid=\"false\"] { background: #fde0e0 }");
    auto * form = new QFormLayout(group);
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
    setTextsNowAndLater(*group, [this, group, names, polarity] {
        group->setTitle(tr("Pad"));
        names->setText(tr("Names"));
        for (KVLineEdit * field : {m_width, m_height}) {
            field->setToolTip(tr("A number or a calculation such as 10+2.5"));
        }
        polarity->setText(tr("Polarity"));
        m_polarity->setItemText(0, tr("Positive"));
        m_polarity->setItemText(1, tr("Negative"));
        m_plated->setText(tr("Plated"));
    });
    return group;
}

// The label's attributes hold its title, untranslated, and the scale of its unit, for showTitles().
void FeatureDialog::addRow(QFormLayout & form, QString title, QString scale, QWidget * field)
{
    auto * label = new KVLabel;
    label->setAttribute1(title);
    label->setAttribute2(scale);
    form.addRow(label, field);
}

QWidget * FeatureDialog::makeRemarksGroup()
{
    m_side = new QButtonGroup(this);
    m_side->setObjectName("side");
    auto * sides = new QWidget;
    auto * sidesLayout = new QHBoxLayout(sides);
    sidesLayout->setContentsMargins(0, 0, 0, 0);
    int id = 0; // the ids are the positions, by which a saved group is restored
    for (char const * text : {QT_TR_NOOP("This side"), QT_TR_NOOP("Both sides")}) {
        auto * button = new QRadioButton;
        setTextsNowAndLater(*button, [button, text] { button->setText(tr(text)); });
        m_side->addButton(button, id++);
        sidesLayout->addWidget(button);
    }
    m_side->button(0)->setChecked(true);
    m_author = new QLineEdit;
    m_author->setObjectName("author");
    m_note = new KVTextEdit(nullptr);
    m_note->setTabChangesFocus(true);
    connect(m_note, &KVTextEdit::LostFocus, this, [this] { saveForm(); });
    m_documents = new QListWidget;
    m_documents->setTextElideMode(Qt::ElideMiddle);
    m_documents->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto * attach = new QPushButton;
    attach->setAutoDefault(false);
    connect(attach, &QPushButton::clicked, this, &FeatureDialog::attachFiles);

    auto * group = new QGroupBox;
    auto * form = new QFormLayout(group);
    auto const addRow = [form](char const * title, QWidget * field) {
        auto * label = new QLabel;
        form->addRow(label, field);
        setTextsNowAndLater(*label, [label, title] { label->setText(tr(title)); });
    };
    addRow(QT_TR_NOOP("Applies to"), sides);
    addRow(QT_TR_NOOP("Author"), m_author);
    addRow(QT_TR_NOOP("Note"), m_note);
    addRow(QT_TR_NOOP("Documents"), m_documents);
    form->addRow(QString(), attach);
    setTextsNowAndLater(*group, [group, attach] {
        group->setTitle(tr("Remarks"));
        attach->setText(tr("Attach files"));
    });
    return group;
}

QWidget * FeatureDialog::makeButtons()
{
    // Return finishes a field and presses no button, so none of them is a default.
    auto * buttons = new QDialogButtonBox;
    auto * unit = buttons->addButton(QString(), QDialogButtonBox::ActionRole);
    auto * save = buttons->addButton(QString(), QDialogButtonBox::ActionRole);
    auto * close = buttons->addButton(QDialogButtonBox::Close);
    setTextsNowAndLater(*close, [unit, save, close] { // after Qt has set its own
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

// A list that goes away by itself when the focus leaves it.
void FeatureDialog::showNames()
{
    if (m_names != nullptr) {
        m_names->deleteLater();
    }
    m_names = new KVListWidget(this);
    std::vector<std::string> ownSymbols;
    KVCAM::API::get_special_symbol_names(m_job, ownSymbols);
    QIcon const standard = dot("#b5582a");
    QIcon const own = dot("#3f51b5");
    for (auto const & use : KVCAM::Embedded::layerSymbols(m_job, m_view.step(), m_view.layer())) {
        PadSymbol const symbol(QString::fromStdString(use.name), use.unit);
        auto * item = new KVListWidgetItem(m_names);
        item->setText(symbol.in(m_shownUnit));
        item->setItemUserData(symbol.name());
        item->setData(Qt::UserRole, symbol.unit());
        item->setItemIcon(isStandardSymbol(use.name, ownSymbols) ? standard : own, standard, own);
        item->setToolTip(Ext::describeSymbol(symbol.name(), symbol.unit()));
    }
    connect(m_names, &QListWidget::itemClicked, this, [this](QListWidgetItem * item) {
        auto const * chosen = static_cast<KVListWidgetItem *>(item);
        m_symbol = {chosen->getItemUserData(), chosen->data(Qt::UserRole).toInt()};
        showSymbol();
        m_names->hide();
    });
    QPoint const below = m_name->mapTo(this, QPoint(0, m_name->height()));
    m_names->setGeometry(below.x(), below.y(), m_name->width(), 10 * fontMetrics().lineSpacing());
    m_names->show();
    m_names->setFocus();
}

void FeatureDialog::attachFiles()
{
    auto * dialog = new KVFileDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this,
            [this, dialog] { m_documents->addItems(dialog->selectedFiles()); });
    dialog->open();
}

} // namespace Workbench
