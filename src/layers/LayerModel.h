#pragma once

#include "UIAPICommonExport.h"

#include <kvcam/Records.h>

#include <QAbstractTableModel>
#include <QModelIndex>

#include <string>
#include <vector>

namespace KVCAM::UIAPI::Ext {

/// The layers of a matrix as a table for item views: a row is a layer, in the order given. The model holds a
/// copy. For a completer or combo box of names, take NameColumn; for a QSortFilterProxyModel, set sortRole
/// to SortRole and filterRole to the role of what is filtered by. A derived class may add columns behind
/// these. GUI thread only.
/// \since 0.2
class UIAPICOMMON_EXPORT LayerModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// What a column shows.
    enum Column : int
    {
        RowColumn, ///< the number of the row in the matrix
        NameColumn,
        ContextColumn,
        TypeColumn,
        PolarityColumn,
        ColumnCount
    };
    /// What data() gives besides texts. All but SortRole are the same in every column.
    enum Role : int
    {
        SortRole = Qt::UserRole, ///< of the column: a number, or a text for comparing in which digits count
                                 ///< as numbers ("l2" before "l10") and case does not count
        RowRole,                 ///< int, the number of the row in the matrix
        NameRole,                ///< QString, as the next three
        ContextRole,
        TypeRole,
        PolarityRole,
        EndRole ///< the first one free for a derived class
    };

    /// Empty.
    explicit LayerModel(QObject * parent = nullptr);
    ~LayerModel() override;

    /// Shows other layers, such as KVCAM::API::get_layers_info() gave.
    void setLayers(std::vector<KVCAM::API::layer_info> layers);
    /// As passed to setLayers(); one for each row.
    std::vector<KVCAM::API::layer_info> const & layers() const { return m_layers; }
    /// The first row of a name, or an invalid index.
    QModelIndex find(std::string const & name) const;
    /// Makes the titles again, after installTranslation().
    void refreshTexts();

    ///@{
    /// As in QAbstractTableModel.
    int rowCount(QModelIndex const & parent = {}) const override;
    int columnCount(QModelIndex const & parent = {}) const override;
    QVariant data(QModelIndex const & index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    ///@}

private:
    std::vector<KVCAM::API::layer_info> m_layers;
};

} // namespace KVCAM::UIAPI::Ext
