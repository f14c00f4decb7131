#pragma once

#include "../units/Length.h"
#include "../units/Unit.h"
#include "AnalysisReport.h"
#include "Grade.h"
#include "UIAPICommonExport.h"

#include <QAbstractItemModel>
#include <QString>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace KVCAM::UIAPI::Ext {

/// The worst severity that has an entry; None without any.
/// \since 0.2
[[nodiscard]] UIAPICOMMON_EXPORT Severity worstOf(SeverityCounts const & counts);
/// A severity in short, with its icon and letter: "✖ R", and "–" for None.
/// \since 0.2
[[nodiscard]] UIAPICOMMON_EXPORT QString severitySign(Severity severity);
/// A severity in words, translated: "red".
/// \since 0.2
[[nodiscard]] UIAPICOMMON_EXPORT QString severityName(Severity severity);

/// A report as a tree for QTreeView: categories in the report's order, in each its layers, in each layer the
/// measurements in the engine's order. Texts are made when they are shown, so 100,000 measurements cost no
/// more than their indices. With a QSortFilterProxyModel, set its sortRole to SortRole. GUI thread only.
/// \since 0.2
class UIAPICOMMON_EXPORT ReportModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    /// What a column shows. Lengths are numbers without a unit, which is in the header.
    enum Column : int
    {
        NameColumn,     ///< category, layer, or number of the measurement; all columns' children are here
        SeverityColumn, ///< of a category or layer: the worst
        CountColumn,    ///< of a category or layer: the measurements; the next three those of a severity
        RedColumn,
        YellowColumn,
        GreenColumn,
        MeasuredColumn, ///< of a category or layer: the smallest
        LimitColumn,    ///< the level that gave the severity; of a category: its three levels
        PositionColumn,
        ColumnCount
    };
    /// What data() gives besides texts. The first, third and fourth are the same in every column.
    enum Role : int
    {
        SeverityRole = Qt::UserRole, ///< int, a Severity; of a category or layer: the worst
        SortRole,                    ///< what orders the column: a number or text, invalid for nothing
        MeasuredRole,                ///< Length; of a category or layer the smallest; invalid for none
        PositionRole                 ///< QPointF in micrometres, of a measurement; invalid for none
    };
    /// What a row stands for; null where it has no such part. Valid until the model shows another report.
    struct Row
    {
        ReportCategory const * category = nullptr; ///< null for an invalid index
        std::string const * layer = nullptr;       ///< null for a category
        ReportEntry const * entry = nullptr;       ///< null for a category or layer
    };

    /// Empty; lengths in inches.
    explicit ReportModel(QObject * parent = nullptr);
    ~ReportModel() override;

    /// Shows a report, which the model keeps alive; null shows nothing. An object that owns its report can
    /// pass itself along: std::shared_ptr<AnalysisReport const>(object, &object->report()).
    void setReport(std::shared_ptr<AnalysisReport const> report);
    /// As passed to setReport().
    std::shared_ptr<AnalysisReport const> const & report() const;
    /// Updates the severities, after AnalysisReport::setLevels() or setLevelUnit() of the report shown. Rows
    /// keep their places. After any other change of it call setReport() again, before the model is used.
    void regrade();
    /// The unit of lengths and positions.
    void setUnit(Unit unit);
    /// As passed to setUnit().
    Unit unit() const;
    /// The layers in the order in which each category shows them, such as that of the matrix; others follow
    /// by name. Without it all are by name. Shows the report again.
    void setLayerOrder(std::vector<std::string> const & layers);
    /// Makes all texts again, after installTranslation().
    void refreshTexts();

    /// What a row stands for.
    Row at(QModelIndex const & index) const;
    /// The row of a category, or an invalid index.
    QModelIndex find(std::string const & table, int number) const;
    /// The measurements of a row by severity, without the waived ones.
    SeverityCounts countsAt(QModelIndex const & index) const;
    /// What a row's measurement is; of a category or layer: the smallest.
    std::optional<Length> measuredAt(QModelIndex const & index) const;

    ///@{
    /// As in QAbstractItemModel.
    QModelIndex index(int row, int column, QModelIndex const & parent = {}) const override;
    QModelIndex parent(QModelIndex const & child) const override;
    int rowCount(QModelIndex const & parent = {}) const override;
    int columnCount(QModelIndex const & parent = {}) const override;
    QVariant data(QModelIndex const & index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    ///@}

private:
    struct UIAPICOMMON_NO_EXPORT Group;
    struct UIAPICOMMON_NO_EXPORT Private;

    void build();
    void addGroups(std::size_t category);
    bool isCategory(QModelIndex const & index) const;
    bool isGroup(QModelIndex const & index) const;
    Group const & group(std::size_t category, int row) const;
    QVariant sortKey(QModelIndex const & index) const;
    QString text(QModelIndex const & index) const;
    QString sumText(int column, Row const & row, QModelIndex const & index) const;
    QString measurementText(int column, Row const & row, int number) const;

    std::unique_ptr<Private> d;
};

} // namespace KVCAM::UIAPI::Ext
