#pragma once

#include <UIAPICommonExt.h>

#include <QGroupBox>

class QTableWidget;

namespace Workbench {

/// The waivers that were applied to a report: which violation each accepts and why; also those that accept
/// nothing. Hidden without waivers.
class WaiversBox : public QGroupBox
{
    Q_OBJECT

public:
    explicit WaiversBox(QWidget * parent = nullptr);

    /// Measured values are in the unit of the view.
    void showReport(KVCAM::UIAPI::Ext::AnalysisReport const & report, void const * view);

private:
    QTableWidget * m_table;
};

} // namespace Workbench
