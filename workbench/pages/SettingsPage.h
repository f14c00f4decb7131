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

/// The settings of "server.json", and what the loaders found wrong in the configuration files. A setting is
/// saved as soon as it is edited, if it can be saved at all; the page says where saving failed.
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

    std::map<Setting const *, QLabel *> m_states; ///< saved or not
    std::set<Setting const *> m_unsaved;          ///< not in the file
    QLabel * m_summary;
    QTableWidget * m_diagnostics;
};

} // namespace Workbench
