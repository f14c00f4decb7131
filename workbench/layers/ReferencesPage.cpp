#include "layers/ReferencesPage.h"

#include "layers/ReferenceEditor.h"
#include "ui/LanguageChange.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace Workbench {

using namespace KVCAM::UIAPI;

namespace {

// The data of a tree entry are the names that it stands for: a job, a job's step, or a step's layer.
constexpr int ofJob = 1;
constexpr int ofStep = 2;

QStringList namesOf(QTreeWidgetItem const & item)
{
    return item.data(0, Qt::UserRole).toStringList();
}

// Adds an entry, which shows the last of its names.
template <class Parent>
QTreeWidgetItem * addItem(Parent * parent, QStringList const & names, QString const & meaning)
{
    auto * item = new QTreeWidgetItem(parent, QStringList{names.back(), meaning});
    item->setData(0, Qt::UserRole, names);
    return item;
}

bool isTaken(QTreeWidget const & tree, QTreeWidgetItem const & item, QString const & name)
{
    QTreeWidgetItem const * const parent =
        item.parent() != nullptr ? item.parent() : tree.invisibleRootItem();
    for (int i = 0; i < parent->childCount(); ++i) {
        if (parent->child(i) != &item && parent->child(i)->text(0) == name) {
            return true;
        }
    }
    return false;
}

} // namespace

ReferencesPage::ReferencesPage(Session const & session, QWidget * parent)
    : QWidget(parent)
    , m_editor(new ReferenceEditor(session, m_book))
    , m_kept(new QGroupBox)
    , m_tree(new QTreeWidget)
    , m_empty(new QLabel)
    , m_newNameTitle(new QLabel)
    , m_newName(new QLineEdit)
    , m_rename(new QPushButton)
    , m_delete(new QPushButton)
    , m_calls(new QLabel)
{
    auto * layout = new QHBoxLayout(this);
    layout->addWidget(m_editor, 1);
    layout->addWidget(makeTree(), 1);
    connect(m_editor, &ReferenceEditor::changed, this, [this] {
        m_calls->clear();
        refresh();
    });
    connect(m_tree, &QTreeWidget::currentItemChanged, this, &ReferencesPage::showSelected);
    connect(m_newName, &QLineEdit::returnPressed, this, &ReferencesPage::rename);
    connect(m_rename, &QPushButton::clicked, this, &ReferencesPage::rename);
    connect(m_delete, &QPushButton::clicked, this, &ReferencesPage::remove);
    setTextsNowAndLater(*this, [this] { setTexts(); });
}

QWidget * ReferencesPage::makeTree()
{
    m_tree->setObjectName("kept references");
    m_tree->setColumnCount(2);
    m_tree->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    m_newName->setObjectName("new name");
    m_newNameTitle->setBuddy(m_newName);
    m_rename->setObjectName("rename");
    m_delete->setObjectName("delete");
    m_calls->setObjectName("told the library");
    m_calls->setWordWrap(true);
    m_calls->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_empty->setWordWrap(true);
    auto * names = new QHBoxLayout;
    names->addWidget(m_newNameTitle);
    names->addWidget(m_newName, 1);
    names->addWidget(m_rename);
    names->addWidget(m_delete);
    auto * layout = new QVBoxLayout(m_kept);
    layout->addWidget(m_tree, 1);
    layout->addWidget(m_empty);
    layout->addLayout(names);
    layout->addWidget(m_calls);
    return m_kept;
}

void ReferencesPage::setTexts()
{
    m_kept->setTitle(tr("What the library keeps"));
    m_tree->setHeaderLabels({tr("Name"), tr("Meaning")});
    m_empty->setText(tr("The library keeps no reference layers."));
    m_newNameTitle->setText(tr("Ne&w name"));
    m_rename->setText(tr("Rename"));
    m_delete->setText(tr("Delete..."));
    m_kept->setToolTip(
        tr("The library is told as if the host had renamed or deleted it; the files of the job "
           "stay as they are."));
    refresh();
}

void ReferencesPage::setStep(std::string const & step)
{
    m_editor->setStep(step);
}

void ReferencesPage::refresh()
{
    m_tree->clear();
    for (auto const & [job, steps] : m_book.owners()) {
        QString const owner = QString::fromStdString(job);
        auto * jobItem = addItem(m_tree, {owner}, tr("job with references"));
        for (std::string const & step : steps) {
            auto * stepItem = addItem(jobItem, {owner, QString::fromStdString(step)}, tr("its step"));
            for (ReferenceLayerInfo const & record : m_book.records(job, step)) {
                QStringList const of{QString::fromStdString(record.job), QString::fromStdString(record.step)};
                auto * refJob = addItem(stepItem, of.mid(0, 1), tr("refers to the job"));
                auto * refStep = addItem(refJob, of, tr("step of it"));
                for (std::string const & layer : record.layers) {
                    addItem(refStep, of + QStringList{QString::fromStdString(layer)}, tr("layer"));
                }
            }
        }
    }
    m_tree->expandAll();
    m_empty->setVisible(m_tree->topLevelItemCount() == 0);
    showSelected();
}

void ReferencesPage::showSelected()
{
    QTreeWidgetItem const * const item = m_tree->currentItem();
    m_newName->setEnabled(item != nullptr);
    m_rename->setEnabled(item != nullptr);
    m_delete->setEnabled(item != nullptr);
    m_newName->setText(item != nullptr ? item->text(0) : QString());
}

void ReferencesPage::rename()
{
    QTreeWidgetItem const * const item = m_tree->currentItem();
    QString const entered = m_newName->text();
    if (item == nullptr || entered == item->text(0)) {
        return;
    }
    if (entered.isEmpty() || isTaken(*m_tree, *item, entered)) {
        m_calls->setText(entered.isEmpty() ? tr("A name is needed.") : tr("This name is taken."));
        return;
    }
    QStringList const names = namesOf(*item);
    std::string const job = names[0].toStdString();
    std::string const step = names.value(1).toStdString();
    std::string const newName = entered.toStdString();
    showCalls(names.size() == ofJob    ? m_book.renameJob(job, newName)
              : names.size() == ofStep ? m_book.renameStep(job, step, newName)
                                       : m_book.renameLayer(job, step, names[2].toStdString(), newName));
}

void ReferencesPage::remove()
{
    QTreeWidgetItem const * const item = m_tree->currentItem();
    if (item == nullptr) {
        return;
    }
    QStringList const names = namesOf(*item);
    QPointer<ReferencesPage> const alive(this);
    auto const answer =
        Ext::showMessage({Ext::MessageKind::Question, this, tr("Delete"),
                          tr("Tell the library that \"%1\" is deleted? All references to it go as well.")
                              .arg(names.join(" / "))});
    if (!alive || answer != Ext::MessageAnswer::Yes) {
        return;
    }
    std::string const job = names[0].toStdString();
    std::string const step = names.value(1).toStdString();
    showCalls(names.size() == ofJob    ? m_book.deleteJob(job)
              : names.size() == ofStep ? m_book.deleteStep(job, step)
                                       : m_book.deleteLayer(job, step, names[2].toStdString()));
}

void ReferencesPage::showCalls(QStringList const & calls)
{
    m_calls->setText(calls.join('\n'));
    refresh();
    m_editor->refresh();
}

} // namespace Workbench
