#pragma once

#include <QVariant>
#include <QWidget>

#include <map>
#include <set>

class QGridLayout;
class QLabel;
class QTableWidget;

namespace Workbench {

struct Setting;

/// The settings of "server.json" and what the loaders found wrong in the configuration files. A setting that
/// can be saved is saved as soon as it is edited; the page says where that failed.
class SettingsPage : public QWidget
{
    Q_OBJECT

public:
    explicit SettingsPage(QWidget * parent = nullptr);

private:
    void addSetting(QGridLayout & form, Setting const & setting);
    void store(Setting const & setting, QVariant const & value);
    QString stateText(Setting const & setting) const;
    void refreshDiagnostics();

    std::map<Setting const *, QLabel *> m_states; ///< whether each is saved
    std::set<Setting const *> m_unsaved;          ///< which the file does not hold
    QLabel * m_summary;
    QTableWidget * m_diagnostics;
};

} // namespace Workbench
