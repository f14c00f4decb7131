#pragma once

#include "ui/Units.h"

#include <QJsonArray>
#include <QWidget>

class QGroupBox;
class QTableWidget;

namespace Workbench {

/// One symbol name of the job in both units.
struct SymbolRow
{
    QString stored;
    Unit unit = Unit::Inch; ///< of the stored sizes
    QString inch;
    QString metric;
    QString description;
    int features = 0;
};

/// Every symbol name of the job, sorted.
std::vector<SymbolRow> symbolRows(std::string const & job);
QJsonArray toJson(std::vector<SymbolRow> const & rows);

/// A table of the job's symbol names, and the result of each of the library's functions for the selected name
/// in the unit of a view.
class SymbolsPage : public QWidget
{
    Q_OBJECT

public:
    SymbolsPage(std::string const & job, void const * view, QWidget * parent = nullptr);

    /// Shows the results in the unit of another view.
    void setView(void const * view);
    /// Lists the symbols again after the engine's features have changed: at once or when the page is shown,
    /// since for that all layers are read that have not been.
    void refresh();

protected:
    void showEvent(QShowEvent * event) override;

private:
    void setTexts();
    void showResults();

    std::string m_job;
    void const * m_view;
    QTableWidget * m_names;
    QGroupBox * m_resultsTitle;
    QTableWidget * m_results;
    bool m_isStale = true;
};

} // namespace Workbench
