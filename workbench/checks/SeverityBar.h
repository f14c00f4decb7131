#pragma once

#include <UIAPICommon.h>

#include <QWidget>

#include <array>

class QToolButton;

namespace Workbench {

/// A button for each severity, the worst first: how many measurements have it, and whether they are shown.
class SeverityBar : public QWidget
{
    Q_OBJECT

public:
    explicit SeverityBar(QWidget * parent = nullptr);

    void setCounts(KVCAM::UIAPI::Ext::SeverityCounts const & counts);
    /// Presses all buttons without a signal.
    void showAll();

signals:
    /// The user wants to see the measurements of a severity, or not.
    void shown(int severity, bool on);

private:
    void setTexts();

    std::array<QToolButton *, KVCAM::UIAPI::Ext::severityCount> m_buttons{}; ///< by severity
    KVCAM::UIAPI::Ext::SeverityCounts m_counts{};
};

} // namespace Workbench
