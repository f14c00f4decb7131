#include "pages/AttributesPage.h"

#include "ui/LanguageChange.h"
#include "ui/TableTools.h"

#include <UIAPICommon.h>

#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

namespace Workbench {

namespace {

using namespace KVCAM::UIAPI;

QString joined(std::vector<std::string> const & texts)
{
    QStringList list;
    for (std::string const & text : texts) {
        list.append(QString::fromStdString(text));
    }
    return list.join(", ");
}

} // namespace

AttributesPage::AttributesPage(QWidget * parent) : QWidget(parent)
{
    m_pattern = new QLineEdit("*");
    m_pattern->setClearButtonEnabled(true);
    m_attributes = makeTable({{}, {}, {}, {}, {}});
    m_attributes->horizontalHeader()->setMaximumSectionSize(420);

    auto * catalogue = new QGroupBox;
    auto * catalogueLayout = new QVBoxLayout(catalogue);
    auto * search = new QHBoxLayout;
    auto * show = new QLabel;
    show->setBuddy(m_pattern);
    search->addWidget(show);
    search->addWidget(m_pattern, 1);
    catalogueLayout->addLayout(search);
    catalogueLayout->addWidget(m_attributes, 1);

    auto * flow = new QGroupBox;
    auto * flowLayout = new QVBoxLayout(flow);
    auto * nodes = new QListWidget;
    for (std::string const & node : getCamMateNodes()) {
        nodes->addItem(QString::fromStdString(node));
    }
    flowLayout->addWidget(nodes);

    auto * layout = new QHBoxLayout(this);
    layout->addWidget(catalogue, 1);
    layout->addWidget(flow);
    connect(m_pattern, &QLineEdit::editingFinished, this, &AttributesPage::refresh);
    setTextsNowAndLater(*this, [this, catalogue, flow, show] {
        m_pattern->setToolTip(tr("A wildcard pattern, for example *pad or .imp*"));
        m_attributes->setHorizontalHeaderLabels({tr("Attribute"), tr("Takes a value"), tr("Unit"),
                                                 tr("Values of the file"),
                                                 tr("Values offered by the library")});
        catalogue->setTitle(tr("Attribute catalogue"));
        flow->setTitle(tr("CAM-mate nodes"));
        show->setText(tr("Sho&w"));
        refresh();
    });
}

void AttributesPage::refresh()
{
    std::vector<std::string> parents;
    getParentAttribute(parents);
    QStringList names;
    for (std::string const & name : parents) {
        names.append(QString::fromStdString(name));
    }
    QStringList shown;
    find_input_items(names, m_pattern->text(), shown);

    std::map<std::string, std::tuple<int, int, std::vector<std::string>>> catalogue;
    getTotalAttribute(catalogue);
    m_attributes->setRowCount(0);
    for (QString const & name : shown) {
        auto const & [hasParameter, unit, values] = catalogue.at(name.toStdString());
        std::vector<std::string> offered;
        getChildAttribute(name.toStdString(), offered);
        addRow(*m_attributes, {name, hasParameter != 0 ? tr("yes") : tr("no"), QString::number(unit),
                               joined(values), joined(offered)});
    }
}

} // namespace Workbench
