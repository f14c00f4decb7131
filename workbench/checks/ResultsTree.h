#pragma once

#include "checks/ResultsFilter.h"

#include <QTreeView>

namespace Workbench {

/// The tree of the results: filtered, sorted by a click on a column, its rows copied by key and menu. The
/// current row is always in view.
class ResultsTree : public QTreeView
{
    Q_OBJECT

public:
    /// The model is not owned and outlives the tree.
    explicit ResultsTree(KVCAM::UIAPI::Ext::ReportModel & model, QWidget * parent = nullptr);

    ResultsFilter & filter() { return m_filter; }
    /// The current row; empty without one.
    KVCAM::UIAPI::Ext::ReportModel::Row current() const { return m_filter.at(currentIndex()); }
    /// Makes a row current, given by the report's category; the first one without it or when it is hidden.
    void showCategory(std::string const & table, int number);
    /// Makes the worst measurement of a check current, or the check if it has none, and shows what is hidden.
    /// False if the check has no row.
    bool showWorst(std::string const & table, int number);
    /// Makes the next or the previous violation current; false if there is none.
    bool showViolation(int way);
    /// Columns as wide as their visible texts.
    void fitColumns();

signals:
    /// Another row is current.
    void currentRowChanged();

protected:
    void currentChanged(QModelIndex const & current, QModelIndex const & previous) override;

private:
    KVCAM::UIAPI::Ext::ReportModel & m_model;
    ResultsFilter m_filter;
};

} // namespace Workbench
