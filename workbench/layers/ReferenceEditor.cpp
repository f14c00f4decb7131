#include "layers/ReferenceEditor.h"

#include "ui/LanguageChange.h"
#include "ui/TableTools.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>

namespace Workbench {

using KVCAM::UIAPI::ReferenceLayerInfo;

namespace {

QString layersText(ReferenceLayerInfo const & record)
{
    QStringList names;
    for (std::string const & layer : record.layers) {
        names.append(QString::fromStdString(layer));
    }
    return names.join(", ");
}

QComboBox * makeNames(char const * objectName)
{
    auto * names = new QComboBox;
    names->setObjectName(objectName);
    names->setEditable(true);
    names->setInsertPolicy(QComboBox::NoInsert);
    return names;
}

} // namespace

ReferenceEditor::ReferenceEditor(Session const & session, ReferenceBook & book, QWidget * parent)
    : QGroupBox(parent)
    , m_session(session)
    , m_book(book)
    , m_step(session.steps().front().name)
    , m_records(makeTable(QStringList{{}, {}, {}}))
    , m_job(makeNames("reference job"))
    , m_refStep(makeNames("reference step"))
    , m_layers(new QListWidget)
    , m_add(new QPushButton)
    , m_change(new QPushButton)
    , m_remove(new QPushButton)
    , m_hint(new QLabel)
    , m_jobTitle(new QLabel)
    , m_stepTitle(new QLabel)
    , m_layersTitle(new QLabel)
{
    m_records->setObjectName("references");
    m_layers->setObjectName("reference layers");
    m_add->setObjectName("add");
    m_change->setObjectName("change");
    m_remove->setObjectName("remove");
    m_hint->setObjectName("reference hint");
    m_hint->setWordWrap(true);
    m_job->addItem(QString::fromStdString(session.job()));
    for (Session::Step const & step : session.steps()) {
        m_refStep->addItem(QString::fromStdString(step.name));
    }
    makeLayout();
    connect(m_records, &QTableWidget::itemSelectionChanged, this, &ReferenceEditor::showRecord);
    connect(m_add, &QPushButton::clicked, this, &ReferenceEditor::add);
    connect(m_change, &QPushButton::clicked, this, &ReferenceEditor::change);
    connect(m_remove, &QPushButton::clicked, this, &ReferenceEditor::remove);
    offerLayers({});
    setTextsNowAndLater(*this, [this] { setTexts(); });
}

void ReferenceEditor::makeLayout()
{
    auto * buttons = new QHBoxLayout;
    for (QPushButton * button : {m_add, m_change, m_remove}) {
        buttons->addWidget(button);
    }
    buttons->addStretch(1);
    m_jobTitle->setBuddy(m_job);
    m_stepTitle->setBuddy(m_refStep);
    m_layersTitle->setBuddy(m_layers);
    auto * layout = new QGridLayout(this);
    layout->addWidget(m_records, 0, 0, 1, 4);
    layout->addWidget(m_jobTitle, 1, 0);
    layout->addWidget(m_job, 1, 1);
    layout->addWidget(m_stepTitle, 1, 2);
    layout->addWidget(m_refStep, 1, 3);
    layout->addWidget(m_layersTitle, 2, 0, Qt::AlignTop);
    layout->addWidget(m_layers, 2, 1, 1, 3);
    layout->addLayout(buttons, 3, 1, 1, 3);
    layout->addWidget(m_hint, 4, 0, 1, 4);
    layout->setRowStretch(0, 1);
    layout->setRowStretch(2, 1);
    layout->setColumnStretch(1, 1);
    layout->setColumnStretch(3, 1);
}

void ReferenceEditor::setTexts()
{
    m_records->setHorizontalHeaderLabels({tr("Job"), tr("Step"), tr("Layers")});
    m_jobTitle->setText(tr("&Job"));
    m_stepTitle->setText(tr("Ste&p"));
    m_layersTitle->setText(tr("&Layers"));
    m_add->setText(tr("A&dd"));
    m_change->setText(tr("&Change"));
    m_remove->setText(tr("Rem&ove"));
    refresh();
}

void ReferenceEditor::setStep(std::string const & step)
{
    if (step != m_step) {
        m_step = step;
        m_records->setCurrentCell(-1, -1);
        refresh();
    }
}

void ReferenceEditor::refresh()
{
    setTitle(tr("Reference layers of %1, step %2")
                 .arg(QString::fromStdString(m_session.job()), QString::fromStdString(m_step)));
    {
        QSignalBlocker const blocker(m_records);
        int const row = m_records->currentRow();
        m_records->setRowCount(0);
        for (ReferenceLayerInfo const & record : m_book.records(m_session.job(), m_step)) {
            addRow(*m_records, {QString::fromStdString(record.job), QString::fromStdString(record.step),
                                layersText(record)});
        }
        m_records->selectRow(row); // nothing without such a row
    }
    showRecord();
    m_hint->setText(m_records->rowCount() > 0
                        ? QString()
                        : tr("This step has no reference layers. Tick some and add them."));
}

void ReferenceEditor::showRecord()
{
    int const row = m_records->currentRow();
    m_change->setEnabled(row >= 0);
    m_remove->setEnabled(row >= 0);
    auto const records = m_book.records(m_session.job(), m_step);
    if (row < 0 || static_cast<std::size_t>(row) >= records.size()) {
        return;
    }
    ReferenceLayerInfo const & record = records[static_cast<std::size_t>(row)];
    m_job->setEditText(QString::fromStdString(record.job));
    m_refStep->setEditText(QString::fromStdString(record.step));
    offerLayers(record.layers);
}

// Ticked layers come first, in the order chosen.
void ReferenceEditor::offerLayers(std::vector<std::string> const & ticked)
{
    m_layers->clear();
    auto const offer = [this](std::string const & name, Qt::CheckState state) {
        auto * item = new QListWidgetItem(QString::fromStdString(name), m_layers);
        item->setCheckState(state);
    };
    for (std::string const & name : ticked) {
        offer(name, Qt::Checked);
    }
    for (Session::Layer const & layer : m_session.layers()) {
        if (std::find(ticked.begin(), ticked.end(), layer.info.name) == ticked.end()) {
            offer(layer.info.name, Qt::Unchecked);
        }
    }
}

std::optional<ReferenceLayerInfo> ReferenceEditor::entered()
{
    ReferenceLayerInfo record{m_job->currentText().toStdString(), m_refStep->currentText().toStdString(), {}};
    for (int i = 0; i < m_layers->count(); ++i) {
        if (m_layers->item(i)->checkState() == Qt::Checked) {
            record.layers.push_back(m_layers->item(i)->text().toStdString());
        }
    }
    if (record.job.empty() || record.step.empty() || record.layers.empty()) {
        m_hint->setText(tr("A reference needs a job, a step and at least one layer."));
        return std::nullopt;
    }
    return record;
}

void ReferenceEditor::store(ReferenceBook::Records const & records, int select)
{
    m_book.setRecords(m_session.job(), m_step, records);
    refresh();
    m_records->selectRow(select);
    emit changed();
}

void ReferenceEditor::add()
{
    if (auto const record = entered()) {
        auto records = m_book.records(m_session.job(), m_step);
        records.push_back(*record);
        store(records, static_cast<int>(records.size()) - 1);
    }
}

void ReferenceEditor::change()
{
    int const row = m_records->currentRow();
    auto records = m_book.records(m_session.job(), m_step);
    auto const record = entered();
    if (record && row >= 0 && static_cast<std::size_t>(row) < records.size()) {
        records[static_cast<std::size_t>(row)] = *record;
        store(records, row);
    }
}

void ReferenceEditor::remove()
{
    int const row = m_records->currentRow();
    auto records = m_book.records(m_session.job(), m_step);
    if (row >= 0 && static_cast<std::size_t>(row) < records.size()) {
        records.erase(records.begin() + row);
        store(records, std::min(row, static_cast<int>(records.size()) - 1));
    }
}

} // namespace Workbench
