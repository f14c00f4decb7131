#include "harness/UiapiTest.h"

#include "layers/LayerModel.h"

#include <QAbstractItemModelTester>
#include <QSortFilterProxyModel>

using namespace KVCAM::UIAPI;

namespace {

using Ext::LayerModel;

QString names(QAbstractItemModel const & model)
{
    QStringList all;
    for (int row = 0; row < model.rowCount(); ++row) {
        all.append(model.index(row, LayerModel::PolarityColumn).data(LayerModel::NameRole).toString());
    }
    return all.join(' ');
}

TEST(LayerModel, ShowsTheLayersAndFiltersAndSortsThemByRoles)
{
    LayerModel model;
    QAbstractItemModelTester const tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.setLayers({{"board", "signal", "l10", "POS", 7},
                     {"board", "drill", "drl", "POS", 11},
                     {"board", "signal", "l2", "NEG", 3},
                     {"misc", "signal", "\xc3\xbc\x31", "POS", 20}});
    QStringList cells;
    for (int column = 0; column < model.columnCount(); ++column) {
        cells.append(model.headerData(column, Qt::Horizontal).toString() + ' ' +
                     model.index(2, column).data().toString());
    }
    EXPECT_EQ(cells.join(", "), "Row 3, Name l2, Context board, Type signal, Polarity NEG");
    EXPECT_EQ(model.find("l2"), model.index(2, LayerModel::NameColumn));
    EXPECT_FALSE(model.find("l3").isValid());
    QModelIndex const any = model.index(2, LayerModel::TypeColumn);
    EXPECT_EQ(any.data(LayerModel::RowRole), 3);
    EXPECT_EQ(any.data(LayerModel::ContextRole), "board");
    EXPECT_EQ(any.data(LayerModel::TypeRole), "signal");
    EXPECT_EQ(any.data(LayerModel::PolarityRole), "NEG");

    QSortFilterProxyModel shown;
    shown.setSourceModel(&model);
    shown.setSortRole(LayerModel::SortRole);
    shown.setFilterRole(LayerModel::TypeRole);
    shown.setFilterKeyColumn(LayerModel::NameColumn);
    shown.sort(LayerModel::NameColumn);
    EXPECT_EQ(names(shown), QString::fromUtf8("drl l2 l10 ü1"));
    shown.sort(LayerModel::RowColumn, Qt::DescendingOrder);
    EXPECT_EQ(names(shown), QString::fromUtf8("ü1 drl l10 l2"));
    shown.setFilterFixedString("signal");
    EXPECT_EQ(names(shown), QString::fromUtf8("ü1 l10 l2"));
}

TEST(LayerModel, PutsNamesInTheOrderInWhichPeopleDo)
{
    QStringList const ordered = {"",   "-",   "7",     "12",  "a b",   "a-",      "a1",
                                 "L2", "l2a", "l002b", "l10", "l10_1", "l10_01x", "l99999999999999999999",
                                 "m",  "m1"};
    auto const keyOf = [](QString const & name) {
        LayerModel model;
        model.setLayers({{"", "", name.toStdString(), "", 0}});
        return model.index(0, LayerModel::NameColumn).data(LayerModel::SortRole).toString();
    };
    for (int i = 1; i < ordered.size(); ++i) {
        EXPECT_LT(keyOf(ordered[i - 1]), keyOf(ordered[i])) << ordered[i].toStdString();
    }
    EXPECT_EQ(keyOf("L02"), keyOf("l2"));
}

} // namespace
