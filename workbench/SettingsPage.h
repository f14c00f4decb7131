#pragma once

#include <QVariant>
#include <QWidget>

class QGridLayout;
class QLabel;
class QTableWidget;

namespace Workbench {

struct Setting;

/// The settings of "server.json" and what the loaders found wrong in the configuration files. A setting that
/// can be saved is saved as soon as it is edited.
class SettingsPage : public QWidget
{
    Q_OBJECT

public:
    explicit SettingsPage(QWidget * parent = nullptr);

private:
    void addSetting(QGridLayout & form, Setting const & setting);
    void store(Setting const & setting, QVariant const & value);
    void refreshDiagnostics();

    QLabel * m_summary;
    QTableWidget * m_diagnostics;
};

} // namespace Workbench
