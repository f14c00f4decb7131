#pragma once

#include <QDialog>

class QLabel;
class QTabWidget;
class QTableWidget;

namespace Workbench {

/// The current hot keys, and the findings on the user's own file.
class CheatSheet : public QDialog
{
    Q_OBJECT

public:
    explicit CheatSheet(QWidget * parent = nullptr);

    /// Shows the bindings and checks the file again.
    void refresh();
    /// Brings the tab with the user's own file to the front.
    void showOwnFile();
    /// Writes the bindings to a file; the hint shows the outcome.
    void exportTo(QString const & path);

private:
    void loadAgain();
    void chooseExport();
    void showBindings();
    void showFile();

    QTabWidget * m_tabs;
    QTableWidget * m_bindings;
    QTableWidget * m_findings;
    QLabel * m_file;
    QLabel * m_hint;
};

} // namespace Workbench
