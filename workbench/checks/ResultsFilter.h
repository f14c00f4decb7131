#pragma once

#include <UIAPICommonExt.h>

#include <QSortFilterProxyModel>

#include <array>

namespace Workbench {

/// The results as the user wants to see them: of some severities only, sorted by any column, in colours that
/// can be read on the desktop's background, the checks named in the language of the screen. Until a column is
/// chosen the order is that of the checks, the layers and the engine.
class ResultsFilter : public QSortFilterProxyModel
{
public:
    /// The model is not owned and outlives the filter.
    explicit ResultsFilter(KVCAM::UIAPI::Ext::ReportModel & model, QObject * parent = nullptr);

    /// Shows or hides the measurements of a severity. Checks without measurements are hidden with any.
    void setShown(KVCAM::UIAPI::Ext::Severity severity, bool on);
    bool isShown(KVCAM::UIAPI::Ext::Severity severity) const;
    void showAll();
    /// The severities may have changed.
    void regrade() { invalidate(); }

    KVCAM::UIAPI::Ext::ReportModel::Row at(QModelIndex const & shown) const
    {
        return m_model.at(mapToSource(shown));
    }
    /// The violation after a row (way 1) or before it (way -1), beginning again at the other end; an invalid
    /// row counts as before the first. A violation has a colour; if nothing shown has one, all measurements
    /// count. Invalid if there is none.
    QModelIndex violation(QModelIndex const & from, int way) const;

    QVariant data(QModelIndex const & index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

protected:
    bool filterAcceptsRow(int row, QModelIndex const & parent) const override;
    bool lessThan(QModelIndex const & left, QModelIndex const & right) const override;

private:
    bool holds(KVCAM::UIAPI::Ext::SeverityCounts const & counts, bool coloured) const;
    QModelIndex neighbour(QModelIndex const & from, int way, bool coloured) const;

    KVCAM::UIAPI::Ext::ReportModel & m_model;
    std::array<bool, KVCAM::UIAPI::Ext::severityCount> m_shown;
};

} // namespace Workbench
