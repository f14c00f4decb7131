#include "pages/SymbolsPage.h"

#include "ui/LanguageChange.h"
#include "ui/TableTools.h"

#include <EmbeddedEngine.h>
#include <UIAPICommon.h>

#include <QGroupBox>
#include <QJsonObject>
#include <QVBoxLayout>

#include <algorithm>

namespace Workbench {

namespace {

using namespace KVCAM::UIAPI;

// Names stored in mil are shown rounded and snapped, as in the library's own lists; those in micrometres are
// converted to mil first.
SymbolRow symbolRow(KVCAM::Embedded::SymbolUse const & use)
{
    SymbolRow row;
    row.stored = QString::fromStdString(use.name);
    row.unit = Ext::unitOfCode(use.unit);
    row.features = use.features;
    int const inch = Ext::unitCode(Unit::Inch);
    QString mil = row.stored;
    if (row.unit != Unit::Inch) {
        setSymbolUIData(mil, inch);
    }
    row.inch = QString::fromStdString(getSymbolNameByUnit(mil.toStdString(), inch));
    int const metric = Ext::unitCode(Unit::Millimetre);
    row.metric = row.unit != Unit::Inch
                     ? row.stored
                     : QString::fromStdString(getSymbolNameByUnit(mil.toStdString(), metric));
    row.description = symbolText(row.stored, row.unit);
    return row;
}

char const * sizeUnitOf(SymbolRow const & row)
{
    return row.unit == Unit::Inch ? "mil" : "µm";
}

} // namespace

std::vector<SymbolRow> symbolRows(std::string const & job)
{
    std::vector<SymbolRow> rows;
    for (KVCAM::Embedded::SymbolUse const & use : KVCAM::Embedded::jobSymbols(job)) {
        rows.push_back(symbolRow(use));
    }
    return rows;
}

QJsonArray toJson(std::vector<SymbolRow> const & rows)
{
    QJsonArray symbols;
    for (SymbolRow const & row : rows) {
        symbols.append(QJsonObject{{"name", row.stored},
                                   {"unit", row.unit == Unit::Inch ? "mil" : "my"},
                                   {"mil", row.inch},
                                   {"my", row.metric},
                                   {"description", row.description},
                                   {"features", row.features}});
    }
    return symbols;
}

SymbolsPage::SymbolsPage(std::string const & job, void const * view, QWidget * parent)
    : QWidget(parent), m_job(job), m_view(view)
{
    m_names = makeTable({{}, {}, {}, {}, {}, {}});
    wrapLastColumn(*m_names);
    m_results = makeTable({{}, {}});
    m_resultsTitle = new QGroupBox;
    auto * resultsLayout = new QVBoxLayout(m_resultsTitle);
    resultsLayout->addWidget(m_results);

    auto * layout = new QVBoxLayout(this);
    layout->addWidget(m_names, 3);
    layout->addWidget(m_resultsTitle, 1);
    connect(m_names, &QTableWidget::itemSelectionChanged, this, &SymbolsPage::showResults);
    connect(Ext::Notifier::instance(), &Ext::Notifier::viewChanged, this, &SymbolsPage::showResults);
    setTextsNowAndLater(*this, [this] { setTexts(); });
}

void SymbolsPage::setView(void const * view)
{
    m_view = view;
    showResults();
}

void SymbolsPage::setTexts()
{
    m_names->setHorizontalHeaderLabels({tr("As stored"), tr("Stored in"), tr("In mil"),
                                        tr("In micrometres (µm)"), tr("Features"), tr("Description")});
    m_results->setHorizontalHeaderLabels({tr("Function"), tr("Result")});
    refresh();
}

void SymbolsPage::refresh()
{
    m_isStale = !isVisible();
    if (m_isStale) {
        return;
    }
    int const current = std::max(m_names->currentRow(), 0);
    m_names->setRowCount(0);
    for (SymbolRow const & row : symbolRows(m_job)) {
        addRow(*m_names,
               {row.stored, sizeUnitOf(row), row.inch, row.metric, QString::number(row.features),
                row.description},
               {4});
    }
    m_names->selectRow(std::min(current, m_names->rowCount() - 1));
    showResults();
}

void SymbolsPage::showEvent(QShowEvent * event)
{
    QWidget::showEvent(event);
    if (m_isStale) {
        refresh();
    }
}

void SymbolsPage::showResults()
{
    m_results->setRowCount(0);
    if (m_names->currentRow() < 0) {
        return;
    }
    QString const name = m_names->item(m_names->currentRow(), 0)->text();
    int const unit = getUnit(m_view);
    m_resultsTitle->setTitle(
        tr("%1 by each function, unit %2").arg(name, QString::fromStdString(getUnitString(m_view))));
    auto const changed = [&name](auto change) {
        QString copy = name;
        change(copy);
        return copy;
    };
    addRow(*m_results, {"setSymbolUIData", changed([&](QString & text) { setSymbolUIData(text, unit); })});
    addRow(*m_results,
           {"getSymbolNameByUnit", QString::fromStdString(getSymbolNameByUnit(name.toStdString(), unit))});
    addRow(*m_results,
           {"setSymbolDataByUnit", changed([&](QString & text) { setSymbolDataByUnit(m_view, text); })});
    addRow(*m_results, {"setSymbolDataByMilUnit",
                        changed([&](QString & text) { setSymbolDataByMilUnit(m_view, text); })});
    addRow(*m_results,
           {"setSymbolAPIData", changed([&](QString & text) { setSymbolAPIData(m_view, text); })});
}

} // namespace Workbench
