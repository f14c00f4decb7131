#pragma once

#include "window/KeyPlan.h"

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;
class QTabWidget;
class QTableWidget;

namespace Workbench {

class KeyField;

/// The hot keys: searched, changed, set back and exported; and the findings on the user's own file. A change
/// is saved to that file and holds at once.
class KeysDialog : public QDialog
{
    Q_OBJECT

public:
    explicit KeysDialog(QWidget * parent = nullptr);

    /// Shows the bindings and checks the file again.
    void refresh();
    /// Brings the tab with the user's own file to the front.
    void showOwnFile();
    /// Writes the bindings to a file; the hint shows the outcome.
    void exportTo(QString const & path);

private:
    QWidget * makeKeysTab();
    void makeButtons();
    void setTexts();
    void loadAgain();
    void chooseExport();
    void assign(bool adds);
    void remove();
    void resetAll();
    void save(bool keepsOld);
    void showBindings();
    void filter();
    void showVerdict();
    void showFile();
    std::size_t row() const;

    QTabWidget * m_tabs;
    QLineEdit * m_search;
    QTableWidget * m_bindings;
    KeyField * m_field;
    QLabel * m_verdict;
    QPushButton * m_assign = nullptr;
    QPushButton * m_add = nullptr;
    QPushButton * m_remove = nullptr;
    QPushButton * m_reset = nullptr;
    QPushButton * m_load = nullptr;
    QPushButton * m_export = nullptr;
    QPushButton * m_close = nullptr;
    QTableWidget * m_findings;
    QLabel * m_file;
    QLabel * m_hint;
    KeyPlan m_plan;
};

} // namespace Workbench
