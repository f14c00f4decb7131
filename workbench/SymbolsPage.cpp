#include "SymbolsPage.h"

#include "TableTools.h"

#include <UIAPICommon.h>

#include <QJsonObject>
#include <QVBoxLayout>

namespace Workbench {

namespace {

using namespace KVCAM::UIAPI;

// Names that are stored in mil are shown rounded and snapped, as the library does for its own lists; those in
// micrometres are first turned into mil.
SymbolRow symbolRow(KVCAM::Embedded::SymbolUse const & use)
{
    SymbolRow row;
    row.stored = QString::fromStdString(use.name);
    row.unit = use.unit;
    row.features = use.features;
    QString mil = row.stored;
    if (use.unit != 0) {
        setSymbolUIData(mil, 0);
    }
    row.inch = QString::fromStdString(getSymbolNameByUnit(mil.toStdString(), 0));
    row.metric =
        use.unit != 0 ? row.stored : QString::fromStdString(getSymbolNameByUnit(mil.toStdString(), 1));
    row.description = Ext::describeSymbol(row.stored, use.unit);
    return row;
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
                                   {"unit", row.unit == 0 ? "mil" : "my"},
                                   {"mil", row.inch},
                                   {"my", row.metric},
                                   {"description", row.description},
                                   {"features", row.features}});
    }
    return symbols;
}

SymbolsPage::SymbolsPage(std::string const & job, QWidget * parent) : QWidget(parent)
{
    auto * table = makeTable({tr("As stored"), tr("Stored in"), tr("In mil"), tr("In micrometres (my)"),
                              tr("Features"), tr("Description")});
    wrapLastColumn(*table);
    for (SymbolRow const & row : symbolRows(job)) {
        addRow(*table,
               {row.stored, row.unit == 0 ? tr("mil") : tr("my"), row.inch, row.metric,
                QString::number(row.features), row.description},
               {4});
    }
    auto * layout = new QVBoxLayout(this);
    layout->addWidget(table);
}

} // namespace Workbench
