#include "TemplatesPage.h"

#include "TableTools.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>

#include <algorithm>

namespace Workbench {

namespace {

using namespace KVCAM::UIAPI;

constexpr int firstUserIndex = 2; // where the library counts the user's templates from

// A template's file is called after it; what no file may be called is replaced.
QString fileName(AutoMatrixTmp const & tmpl)
{
    static QRegularExpression const forbidden(R"([\\/:*?"<>|]|^\.+)");
    return QString::fromStdString(tmpl.name).replace(forbidden, "_");
}

} // namespace

TemplatesPage::TemplatesPage(QWidget * parent) : QWidget(parent)
{
    m_list = makeTable({tr("Index"), tr("Name"), tr("Current")});
    m_list->horizontalHeader()->setStretchLastSection(false);
    m_list->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    m_current = new QLabel;
    m_current->setWordWrap(true);

    auto * all = new QGroupBox(tr("Templates"));
    auto * allLayout = new QVBoxLayout(all);
    allLayout->addWidget(m_list, 1);
    allLayout->addWidget(m_current);
    auto * layout = new QHBoxLayout(this);
    layout->addWidget(all, 2);
    layout->addWidget(makeEditor(), 3);

    connect(m_list, &QTableWidget::itemSelectionChanged, this, &TemplatesPage::showSelected);
    refreshList(0);
}

QWidget * TemplatesPage::makeEditor()
{
    auto * editor = new QGroupBox(tr("How the layers are recognised"));
    auto * grid = new QGridLayout(editor);
    m_name = new QLineEdit;
    grid->addWidget(new QLabel(tr("Name")), 0, 0);
    grid->addWidget(m_name, 0, 1, 1, 2);
    grid->addWidget(new QLabel(tr("Role")), 1, 0);
    grid->addWidget(new QLabel(tr("Name begins with")), 1, 1);
    grid->addWidget(new QLabel(tr("Name ends with")), 1, 2);
    for (std::size_t i = 0; i < m_prefixes.size(); ++i) {
        int const row = static_cast<int>(i) + 2;
        m_prefixes[i] = new QLineEdit;
        m_suffixes[i] = new QLineEdit;
        grid->addWidget(new QLabel(Ext::autoMatrixRoles[i].key), row, 0);
        grid->addWidget(m_prefixes[i], row, 1);
        grid->addWidget(m_suffixes[i], row, 2);
    }
    auto * buttons = new QHBoxLayout;
    auto const addButton = [&](QString const & text, void (TemplatesPage::*action)()) {
        auto * button = new QPushButton(text);
        buttons->addWidget(button);
        connect(button, &QPushButton::clicked, this, action);
    };
    addButton(tr("Use as current"), &TemplatesPage::select);
    addButton(tr("Save"), &TemplatesPage::save);
    addButton(tr("Save as new"), &TemplatesPage::saveAsNew);
    addButton(tr("Delete"), &TemplatesPage::remove);
    buttons->addStretch(1);
    grid->addLayout(buttons, grid->rowCount(), 0, 1, 3);
    grid->setRowStretch(grid->rowCount(), 1);
    return editor;
}

void TemplatesPage::refreshList(int selectIndex)
{
    std::string const current = getCurrentAutoMatrixTmp().name;
    m_list->setRowCount(0);
    for (auto const & [index, tmpl] : getAutoMatrixTmpMap()) {
        addRow(*m_list, {QString::number(index), QString::fromStdString(tmpl.name),
                         tmpl.name == current ? tr("yes") : QString()});
        if (index == selectIndex) {
            m_list->selectRow(m_list->rowCount() - 1);
        }
    }
    m_current->setText(tr("Current template: %1").arg(QString::fromStdString(current)));
}

int TemplatesPage::selectedIndex() const
{
    int const row = m_list->currentRow();
    return row < 0 ? -1 : m_list->item(row, 0)->text().toInt();
}

void TemplatesPage::showSelected()
{
    auto const templates = getAutoMatrixTmpMap();
    auto const found = templates.find(selectedIndex());
    AutoMatrixTmp const tmpl = found == templates.end() ? AutoMatrixTmp() : found->second;
    m_name->setText(QString::fromStdString(tmpl.name));
    for (std::size_t i = 0; i < m_prefixes.size(); ++i) {
        m_prefixes[i]->setText(QString::fromStdString(tmpl.*Ext::autoMatrixRoles[i].prefix));
        m_suffixes[i]->setText(QString::fromStdString(tmpl.*Ext::autoMatrixRoles[i].suffix));
    }
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
    refreshList(selectedIndex());
}

void TemplatesPage::save()
{
    int const index = selectedIndex();
    if (index < 0) {
        saveAsNew();
        return;
    }
    AutoMatrixTmp const before = getAutoMatrixTmpMap()[index];
    AutoMatrixTmp const tmpl = edited();
    if (before.name != tmpl.name) { // the file of the old name would come back at the next start
        deleteAutoMatrix(index, fileName(before));
    }
    saveCurrentAutoMatrixTmp(index, fileName(tmpl), tmpl);
    refreshList(index);
}

void TemplatesPage::saveAsNew()
{
    auto const templates = getAutoMatrixTmpMap();
    int const index =
        templates.empty() ? firstUserIndex : std::max(firstUserIndex, templates.rbegin()->first + 1);
    AutoMatrixTmp tmpl = edited();
    if (getAutomatrixMatrixIndex(QString::fromStdString(tmpl.name)) >= 0) {
        tmpl.name += ' ' + std::to_string(index); // a file of its own
    }
    saveCurrentAutoMatrixTmp(index, fileName(tmpl), tmpl);
    refreshList(index);
}

void TemplatesPage::remove()
{
    auto const templates = getAutoMatrixTmpMap();
    auto const found = templates.find(selectedIndex());
    if (found == templates.end()) {
        return;
    }
    deleteAutoMatrix(found->first, fileName(found->second));
    auto const left = getAutoMatrixTmpMap();
    refreshList(left.empty() ? -1 : left.begin()->first);
}

} // namespace Workbench
