#include "pages/TemplatesPage.h"

#include "ui/LanguageChange.h"
#include "ui/TableTools.h"

#include <QDir>
#include <QFile>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalBlocker>

#include <algorithm>

namespace Workbench {

namespace {

using namespace KVCAM::UIAPI;

constexpr int firstUserIndex = 2;    // the library's first index for user templates
constexpr int noIndex = -1;          // to delete only a file
constexpr char const * noFile = "/"; // to delete only a template: no file has this name

// A template's file has its name; characters not allowed in file names are replaced.
QString fileName(AutoMatrixTmp const & tmpl)
{
    static QRegularExpression const forbidden(R"([\\/:*?"<>|\p{Cc}]|^\.+)");
    return QString::fromStdString(tmpl.name).replace(forbidden, "_");
}

QString shownFile(QString const & file)
{
    return "autoMatrix/" + file + ".json";
}

QString userTemplatePath(QString const & file)
{
    return QDir().absoluteFilePath(Ext::userFile(shownFile(file)));
}

// Whether the file holds the library's template of this index. The library does not report a failed save.
bool isStored(int index, QString const & file)
{
    auto const stored = Ext::autoMatrixFile(index);
    return stored && stored->isStored && stored->name == file;
}

bool isSameFile(QString const & a, QString const & b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0; // some file systems ignore case
}

} // namespace

TemplatesPage::TemplatesPage(QWidget * parent) : QWidget(parent)
{
    m_list = makeTable({{}, {}, {}});
    m_list->horizontalHeader()->setStretchLastSection(false);
    m_list->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    m_current = new QLabel;
    m_current->setWordWrap(true);

    auto * all = new QGroupBox;
    auto * allLayout = new QVBoxLayout(all);
    allLayout->addWidget(m_list, 1);
    allLayout->addWidget(m_current);
    auto * layout = new QHBoxLayout(this);
    layout->addWidget(all, 2);
    layout->addWidget(makeEditor(), 3);

    connect(m_list, &QTableWidget::itemSelectionChanged, this, &TemplatesPage::showSelected);
    refreshList(0);
    setTextsNowAndLater(*this, [this, all] {
        m_list->setHorizontalHeaderLabels({tr("Index"), tr("Name"), tr("Current")});
        all->setTitle(tr("Templates"));
        showCurrent();
        describeFile(selectedIndex());
    });
}

QWidget * TemplatesPage::makeEditor()
{
    auto * editor = new QGroupBox;
    m_editor = editor;
    setTextsNowAndLater(*editor, [editor] { editor->setTitle(tr("How the layers are recognised")); });
    auto const label = [](char const * text) {
        auto * widget = new QLabel;
        setTextsNowAndLater(*widget, [widget, text] { widget->setText(tr(text)); });
        return widget;
    };
    auto * grid = new QGridLayout(editor);
    m_name = new QLineEdit;
    m_name->setObjectName("name");
    grid->addWidget(label(QT_TR_NOOP("Name")), 0, 0);
    grid->addWidget(m_name, 0, 1, 1, 2);
    grid->addWidget(label(QT_TR_NOOP("Role")), 1, 0);
    grid->addWidget(label(QT_TR_NOOP("Name begins with")), 1, 1);
    grid->addWidget(label(QT_TR_NOOP("Name ends with")), 1, 2);
    for (std::size_t i = 0; i < m_prefixes.size(); ++i) {
        int const row = static_cast<int>(i) + 2;
        m_prefixes[i] = new QLineEdit;
        m_suffixes[i] = new QLineEdit;
        m_prefixes[i]->setObjectName(Ext::autoMatrixRoles[i].key); // also for the form's state
        m_suffixes[i]->setObjectName(m_prefixes[i]->objectName() + " end");
        grid->addWidget(new QLabel(Ext::autoMatrixRoles[i].key), row, 0);
        grid->addWidget(m_prefixes[i], row, 1);
        grid->addWidget(m_suffixes[i], row, 2);
    }
    auto * buttons = new QHBoxLayout;
    auto const addButton = [&](char const * text, void (TemplatesPage::*action)()) {
        auto * button = new QPushButton;
        setTextsNowAndLater(*button, [button, text] { button->setText(tr(text)); });
        buttons->addWidget(button);
        connect(button, &QPushButton::clicked, this, action);
    };
    addButton(QT_TR_NOOP("Use as current"), &TemplatesPage::select);
    addButton(QT_TR_NOOP("Save"), &TemplatesPage::save);
    addButton(QT_TR_NOOP("Save as new"), &TemplatesPage::saveAsNew);
    addButton(QT_TR_NOOP("Delete"), &TemplatesPage::remove);
    buttons->addStretch(1);
    grid->addLayout(buttons, grid->rowCount(), 0, 1, 3);
    m_hint = new QLabel;
    m_hint->setObjectName("hint");
    m_hint->setWordWrap(true);
    grid->addWidget(m_hint, grid->rowCount(), 0, 1, 3);
    grid->setRowStretch(grid->rowCount(), 1);
    return editor;
}

// What was typed is saved by now, or of a template that is gone.
void TemplatesPage::refreshList(int selectIndex)
{
    m_form.reset();
    m_list->setRowCount(0);
    for (auto const & [index, tmpl] : getAutoMatrixTmpMap()) {
        addRow(*m_list, {QString::number(index), QString::fromStdString(tmpl.name), {}});
        if (index == selectIndex) {
            m_list->selectRow(m_list->rowCount() - 1);
        }
    }
    showCurrent();
}

void TemplatesPage::showCurrent()
{
    QString const current = QString::fromStdString(getCurrentAutoMatrixTmp().name);
    for (int row = 0; row < m_list->rowCount(); ++row) {
        m_list->item(row, 2)->setText(m_list->item(row, 1)->text() == current ? tr("yes") : QString());
    }
    m_current->setText(tr("Current template: %1").arg(current));
}

int TemplatesPage::selectedIndex() const
{
    int const row = m_list->currentRow();
    return row < 0 ? -1 : m_list->item(row, 0)->text().toInt();
}

void TemplatesPage::showSelected()
{
    QPointer<TemplatesPage> const alive(this);
    if (!mayLeave()) {
        if (alive) {
            QSignalBlocker const quiet(m_list);
            m_list->selectRow(m_row);
        }
        return;
    }
    m_row = m_list->currentRow();
    m_form.reset();
    auto const templates = getAutoMatrixTmpMap();
    auto const found = templates.find(selectedIndex());
    AutoMatrixTmp const tmpl = found == templates.end() ? AutoMatrixTmp() : found->second;
    m_name->setText(QString::fromStdString(tmpl.name));
    for (std::size_t i = 0; i < m_prefixes.size(); ++i) {
        m_prefixes[i]->setText(QString::fromStdString(tmpl.*Ext::autoMatrixRoles[i].prefix));
        m_suffixes[i]->setText(QString::fromStdString(tmpl.*Ext::autoMatrixRoles[i].suffix));
    }
    m_form = std::make_unique<Ext::FormState>(m_editor);
    connect(m_form.get(), &Ext::FormState::changed, this, [this] { describeFile(selectedIndex()); });
    describeFile(selectedIndex());
}

// Another template takes the place of what was typed only if the user agrees.
bool TemplatesPage::mayLeave()
{
    QPointer<TemplatesPage> const alive(this);
    return m_form == nullptr || !m_form->isDirty() ||
           (Ext::showMessage({Ext::MessageKind::Question, this, tr("Templates"),
                              tr("The template \"%1\" was changed and is not saved. Discard the changes?")
                                  .arg(m_name->text())}) == Ext::MessageAnswer::Yes &&
            alive);
}

void TemplatesPage::describeFile(int index)
{
    auto const file = Ext::autoMatrixFile(index);
    if (index < 0) {
        m_hint->clear();
    } else if (file && file->isAlone) {
        m_hint->setText(tr("Save and Delete change the file \"%1\".").arg(shownFile(file->name)));
    } else {
        QString const origin =
            file ? tr("This template shares the file \"%1\" with others.").arg(shownFile(file->name))
                 : tr("This template is a shipped one.");
        m_hint->setText(origin + ' ' +
                        tr("Save makes a copy of it under a new index; Delete lasts until the next start."));
    }
    if (m_form != nullptr && m_form->isDirty()) {
        m_hint->setText(tr("Not saved yet.") + ' ' + m_hint->text());
    }
}

std::optional<QString> TemplatesPage::ownFile(int index)
{
    auto const file = Ext::autoMatrixFile(index);
    return file && file->isAlone ? std::optional(file->name) : std::nullopt;
}

AutoMatrixTmp TemplatesPage::edited() const
{
    AutoMatrixTmp tmpl;
    tmpl.name = m_name->text().toStdString();
    for (std::size_t i = 0; i < m_prefixes.size(); ++i) {
        tmpl.*Ext::autoMatrixRoles[i].prefix = m_prefixes[i]->text().toStdString();
        tmpl.*Ext::autoMatrixRoles[i].suffix = m_suffixes[i]->text().toStdString();
    }
    return tmpl;
}

void TemplatesPage::select()
{
    setCurrentAutoMatrixTmp(edited());
    showCurrent(); // what is not saved stays as it was typed
}

void TemplatesPage::save()
{
    int const index = selectedIndex();
    auto const own = ownFile(index);
    if (!own) {
        saveAsNew();
        return;
    }
    AutoMatrixTmp const tmpl = edited();
    QString const & old = *own; // may differ from the template's name
    bool const isRenamed = getAutoMatrixTmpMap()[index].name != tmpl.name;
    QString const file = isRenamed && !isSameFile(fileName(tmpl), old) ? fileName(tmpl) : old;
    if (file != old && refuseUsedFile(file)) {
        return;
    }
    saveCurrentAutoMatrixTmp(index, file, tmpl);
    // The old file would come back at the next start; it is deleted once the new one is complete.
    if (file != old && isStored(index, file)) {
        deleteAutoMatrix(noIndex, old);
    }
    refreshList(index);
    checkStored(index, file);
}

void TemplatesPage::saveAsNew()
{
    auto const templates = getAutoMatrixTmpMap();
    int const index =
        templates.empty() ? firstUserIndex : std::max(firstUserIndex, templates.rbegin()->first + 1);
    AutoMatrixTmp tmpl = edited();
    if (getAutomatrixMatrixIndex(QString::fromStdString(tmpl.name)) >= 0) {
        tmpl.name += ' ' + std::to_string(index); // gets a file of its own
    }
    QString const file = fileName(tmpl);
    if (refuseUsedFile(file)) {
        return;
    }
    saveCurrentAutoMatrixTmp(index, file, tmpl);
    refreshList(index);
    checkStored(index, file);
}

void TemplatesPage::checkStored(int index, QString const & file)
{
    if (!isStored(index, file)) {
        m_hint->setText(tr("The file \"%1\" was not saved; what you see lasts until the next start.")
                            .arg(shownFile(file)));
    }
}

bool TemplatesPage::refuseUsedFile(QString const & file)
{
    auto const templates = getAutoMatrixTmpMap();
    bool const isUsed = // a file that the library took no template from is not overwritten either
        QFile::exists(userTemplatePath(file)) ||
        std::any_of(templates.begin(), templates.end(), [&file](auto const & entry) {
            auto const used = Ext::autoMatrixFile(entry.first);
            return used && isSameFile(used->name, file);
        });
    if (isUsed) {
        inform(tr("The file \"%1\" already exists. Choose another name.").arg(shownFile(file)));
    }
    return isUsed;
}

void TemplatesPage::inform(QString const & text)
{
    Ext::showMessage({Ext::MessageKind::Information, this, tr("Information"), text});
}

void TemplatesPage::remove()
{
    int const index = selectedIndex();
    if (index < 0) {
        return;
    }
    auto const own = ownFile(index);
    QString const file = own.value_or(noFile);
    deleteAutoMatrix(index, file);
    if (own && QFile::exists(userTemplatePath(file))) {
        QPointer<TemplatesPage> const alive(this);
        inform(tr("The file \"%1\" cannot be deleted.").arg(shownFile(file)));
        if (!alive) {
            return;
        }
    }
    auto const left = getAutoMatrixTmpMap();
    refreshList(left.empty() ? -1 : left.begin()->first);
}

} // namespace Workbench
