#pragma once

#include "checks/AnalysisRun.h"

#include <QAbstractItemModel>

#include <cstddef>
#include <optional>
#include <vector>

namespace Workbench {

/// The measurements of a run as a tree: categories, their layers by row, and the measurements in the engine's
/// order. Measurements have no items of their own: their texts are made when shown.
class ResultsModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column : int
    {
        Name,
        Severity, ///< of a category or layer: the worst
        Count,
        Red,
        Yellow,
        Green,
        Measured, ///< of a category or layer: the smallest
        Limit,    ///< of a category: its three levels
        Position,
        ColumnCount
    };
    /// What a row stands for; null where it has no such part.
    struct Row
    {
        KVCAM::UIAPI::Ext::ReportCategory const * category = nullptr;
        std::string const * layer = nullptr;
        KVCAM::UIAPI::Ext::ReportEntry const * entry = nullptr;
    };

    /// The run outlives the model, which shows its report from the first reload() on.
    explicit ResultsModel(AnalysisRun const & run, QObject * parent = nullptr);

    /// Shows the report of a new run. The model must not be used between the run and this call.
    void reload();
    /// Updates the severities.
    void regrade();
    /// Shows lengths in the unit of a view.
    void setView(void const * view);
    /// Updates all texts after a change of the language or of the view's unit.
    void refreshTexts();

    Row at(QModelIndex const & index) const;
    /// The row of a category, or an invalid index.
    QModelIndex find(std::string const & table, int number) const;
    /// Of a row's measurements by severity.
    KVCAM::UIAPI::Ext::SeverityCounts countsAt(QModelIndex const & index) const;
    /// Of a category or layer: the smallest.
    std::optional<KVCAM::UIAPI::Ext::Length> measuredAt(QModelIndex const & index) const;

    QModelIndex index(int row, int column, QModelIndex const & parent = {}) const override;
    QModelIndex parent(QModelIndex const & child) const override;
    int rowCount(QModelIndex const & parent = {}) const override;
    int columnCount(QModelIndex const & parent = {}) const override;
    QVariant data(QModelIndex const & index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    // A layer of a category: its measurements [begin, end).
    struct Group
    {
        std::size_t category = 0;
        std::string layer;
        std::size_t begin = 0;
        std::size_t end = 0;
        KVCAM::UIAPI::Ext::SeverityCounts counts{};
        std::optional<KVCAM::UIAPI::Ext::Length> smallest;
    };

    /// The severity that a column counts, None for other columns.
    static KVCAM::UIAPI::Ext::Severity severityOf(int column);
    void addGroups(std::size_t category);
    void countGroups();
    bool isCategory(QModelIndex const & index) const;
    bool isGroup(QModelIndex const & index) const;
    Group const & group(std::size_t category, int row) const;
    QString text(QModelIndex const & index) const;
    QString measurementText(int column, Row const & row, int number) const;
    QString sumText(QModelIndex const & index, Row const & row) const;
    std::optional<KVCAM::UIAPI::Ext::Length> smallestOf(std::size_t category) const;

    AnalysisRun const & m_run;
    void const * m_view = nullptr;
    std::vector<Group> m_groups;       // by category
    std::vector<std::size_t> m_firsts; // the first group of each category, then the end
};

} // namespace Workbench
