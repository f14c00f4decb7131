#include "checks/WaiversBox.h"

#include "checks/MeasureTexts.h"
#include "ui/CategoryNames.h"
#include "ui/TableTools.h"

#include <QVBoxLayout>

#include <algorithm>

namespace Workbench {

using namespace KVCAM::UIAPI;

WaiversBox::WaiversBox(QWidget * parent) : QGroupBox(parent), m_table(makeTable({{}, {}, {}, {}, {}}))
{
    m_table->setObjectName("waivers");
    wrapLastColumn(*m_table);
    (new QVBoxLayout(this))->addWidget(m_table);
}

void WaiversBox::showReport(Ext::AnalysisReport const & report, void const * view)
{
    std::vector<Ext::Waiver> const & waivers = report.waivers();
    setVisible(!waivers.empty());
    m_table->setRowCount(0);
    if (waivers.empty()) {
        return;
    }
    Ext::SeverityCounts const counts = report.waivedCounts();
    setTitle(tr("Waived: %1 red, %2 yellow, %3 green")
                 .arg(counts[static_cast<std::size_t>(Ext::Severity::Red)])
                 .arg(counts[static_cast<std::size_t>(Ext::Severity::Yellow)])
                 .arg(counts[static_cast<std::size_t>(Ext::Severity::Green)]));
    m_table->setHorizontalHeaderLabels({tr("Violation"), tr("State"), tr("By"), tr("Until"), tr("Reason")});
    std::vector<QString> violations(waivers.size());
    std::transform(waivers.begin(), waivers.end(), violations.begin(),
                   [](Ext::Waiver const & waiver) { return QString::fromStdString(waiver.id); });
    for (Ext::ReportCategory const & category : report.categories()) {
        for (Ext::ReportEntry const & entry : category.entries) {
            if (entry.waiver && entry.measured) {
                violations.at(*entry.waiver) =
                    QString("%1, %2: %3 %4")
                        .arg(shownName(category.name), QString::fromStdString(entry.layer),
                             measuredText(view, *entry.measured), smallUnitName(view));
            }
        }
    }
    auto const stateOf = [](Ext::WaiverState state) {
        return state == Ext::WaiverState::Used      ? tr("waived")
               : state == Ext::WaiverState::Expired ? tr("expired")
                                                    : tr("accepts nothing");
    };
    for (std::size_t i = 0; i < waivers.size(); ++i) {
        Ext::Waiver const & waiver = waivers[i];
        addRow(*m_table, {violations[i], stateOf(waiver.state), QString::fromStdString(waiver.author),
                          QString::fromStdString(waiver.expires), QString::fromStdString(waiver.reason)});
    }
    m_table->resizeRowsToContents();
}

} // namespace Workbench
