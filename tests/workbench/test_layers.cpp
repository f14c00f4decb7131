#include "SampleWindow.h"
#include "board/BoardView.h"
#include "layers/FilterBar.h"
#include "layers/LayerTable.h"
#include "ui/LayerColours.h"

#include <UIAPICommon.h>

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QColor>
#include <QComboBox>
#include <QCompleter>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <QToolButton>

#include <set>

using namespace KVCAM::UIAPI;
using namespace Workbench;

namespace {

using Request = QMap<QString, QString>;

class LayersOfAWindow : public SampleWindow
{
protected:
    void SetUp() override
    {
        SampleWindow::SetUp();
        for (Session::Layer & layer : session.layers()) {
            session.countFeatures(layer);
        }
        open();
    }
    QString explanation() const { return find<QLabel>("explanation").text(); }
};

// "5 9": the rows of the matrix that the table shows.
QString shownRows(LayerTable const & table)
{
    QStringList rows;
    for (int row = 0; row < table.rowCount(); ++row) {
        if (!table.isRowHidden(row)) {
            rows.append(table.item(row, 0)->text());
        }
    }
    return rows.join(' ');
}

TEST_F(LayersOfAWindow, TheFilterBarShowsWhatItIsAskedForAndSaysWhyNot)
{
    auto & bar = find<FilterBar>();
    auto & table = find<LayerTable>();
    ASSERT_EQ(table.item(table.currentRow(), 1)->text(), "top");
    QString const all = shownRows(table);
    EXPECT_EQ(all.count(' '), 24);
    struct
    {
        Request request;
        QString rows;
        char const * explanation;
    } const questions[] = {
        {{}, all, "All layers are shown."},
        {{{"type", "signal"}}, "5 9 11 13 15", "\"top\" matches."},
        {{{"type", "signal|"}}, "5 9 11 13 15", "Type: no layer of the job is \"\". \"top\" matches."},
        {{{"side", "inner"}}, "9 11 13", "\"top\" is left out by: Side."},
        {{{"side", "top|bottom"}, {"context", "board"}}, "5 15", "\"top\" matches."},
        {{{"pos", "negative"}}, "7", "\"top\" is left out by: Polarity."},
        {{{"pos", "negative|positive"}}, all, "\"top\" matches."},
        {{{"type", "drill|rout"}, {"context", "board"}, {"pos", "positive"}},
         "20 21 22 23",
         "\"top\" is left out by: Type."},
        {{{"context", "misc"}}, "24 25", "\"top\" is left out by: Context."},
        {{{"type", "power_ground"}, {"side", "inner"}},
         "",
         "No layer matches. \"top\" is left out by: Type."},
        {{{"side", "Top"}},
         "",
         "Side: \"Top\" is not a word of this field. No layer matches. \"top\" is left out by: Side."},
        {{{"type", "copper|signal"}},
         "5 9 11 13 15",
         "Type: no layer of the job is \"copper\". \"top\" matches."},
    };
    for (auto const & question : questions) {
        bar.ask(question.request);
        EXPECT_EQ(bar.request(), question.request);
        EXPECT_EQ(shownRows(table), question.rows) << question.explanation;
        EXPECT_EQ(explanation(), question.explanation);
        int const count = question.rows.isEmpty() ? 0 : question.rows.count(' ') + 1;
        EXPECT_EQ(find<QLabel>("layer count").text(), QString("%1 of 25 layers").arg(count));
    }
    auto & more = find<QToolButton>("more filters");
    EXPECT_TRUE(bar.findChild<QComboBox *>("type")->isVisible()) << "a question unfolds what it fills";
    more.setChecked(false);
    EXPECT_FALSE(bar.findChild<QComboBox *>("type")->isVisible());
    bar.ask({{"type", "signal"}, {"side", "inner"}});
    EXPECT_TRUE(more.isChecked());
    table.setCurrentCell(6, 1);
    EXPECT_EQ(explanation(), "\"l2_gnd\" is left out by: Type.");
    window->setLanguage(LANGUAGE_CHINESE);
    QApplication::processEvents();
    EXPECT_EQ(explanation(), QString::fromUtf8("“l2_gnd”被此项排除：类型。"));
    EXPECT_EQ(shownRows(table), "9 11 13");
    window->setLanguage(LANGUAGE_ENGLISH);
}

TEST_F(LayersOfAWindow, OthersAreGreyedOnRequestAndAnalysisHasALayerListOfItsOwn)
{
    auto & bar = find<FilterBar>();
    auto & table = find<LayerTable>();
    auto const greyRows = [&table] {
        int rows = 0;
        for (int row = 0; row < table.rowCount(); ++row) {
            rows += table.item(row, 1)->foreground().style() != Qt::NoBrush ? 1 : 0;
        }
        return rows;
    };
    bar.ask({{"side", "inner"}});
    int ticks = 0;
    QObject::connect(&table, &LayerTable::ticksChanged, &table, [&ticks] { ++ticks; });
    bar.findChild<QCheckBox *>()->click();
    EXPECT_EQ(shownRows(table).count(' '), 24);
    EXPECT_EQ(greyRows(), 22);
    for (LANGUAGE_MODE const language : {LANGUAGE_CHINESE, LANGUAGE_ENGLISH}) {
        window->setLanguage(language); // refills the table
        QApplication::processEvents();
        EXPECT_EQ(greyRows(), 22);
    }
    bar.ask({});
    EXPECT_EQ(greyRows(), 0);
    EXPECT_EQ(ticks, 0);

    bar.findChild<QCheckBox *>()->click();
    table.setCurrentCell(0, 1);
    find<QPushButton>("for analysis").click();
    EXPECT_EQ(shownRows(table), "2 3 4 5 7 9 11 13 15 16 17 18 20 21 22 23");
    EXPECT_EQ(explanation(),
              "These are the layers that analysis and checks read. \"comp_+_top\" is not one of them.");
    EXPECT_FALSE(find<QComboBox>("type").isEnabled());
    find<QPushButton>("for analysis").click();
    EXPECT_EQ(shownRows(table).count(' '), 24);
    EXPECT_TRUE(find<QComboBox>("type").isEnabled());
}

TEST_F(LayersOfAWindow, TypingInAFieldFiltersAndIsNoHotKey)
{
    auto & type = find<QComboBox>("type");
    SNAP_TYPE_MODE const snap = getSnapType(view());
    type.setFocus();
    QTest::keyClicks(type.lineEdit(), "sg");
    EXPECT_EQ(type.currentText(), "sg");
    EXPECT_EQ(getSnapType(view()), snap);
    EXPECT_EQ(shownRows(find<LayerTable>()), "");
    type.setEditText({});
    QTest::keyClicks(type.lineEdit(), "signal|dr");
    QCompleter & completer = *type.completer();
    EXPECT_EQ(completer.currentCompletion(), "signal|drill");
    EXPECT_EQ(shownRows(find<LayerTable>()), "5 9 11 13 15");
    completer.popup()->hide();
}

// "5 9": the rows of the matrix in the order shown.
QString order(LayerTable const & table, int count)
{
    QStringList rows;
    for (int place = 0; place < count; ++place) {
        rows.append(table.item(table.verticalHeader()->logicalIndex(place), 0)->text());
    }
    return rows.join(' ');
}

TEST_F(LayersOfAWindow, AreFoundByNameAndSortedByAnyColumn)
{
    auto & bar = find<FilterBar>();
    auto & table = find<LayerTable>();
    auto & name = find<QLineEdit>("layer name");
    int const shown = table.currentRow();
    struct
    {
        char const * words;
        QString rows;
        char const * explanation;
    } const rows[] = {
        {"MASK", "4 16", "\"top\" is left out by: Name."},
        {"l?_s", "9 11 13", "\"top\" is left out by: Name."},
        {"mask|silk_t", "2 4 16", "\"top\" is left out by: Name."},
        {"comp_+", "1 19", "\"top\" is left out by: Name."},
        {"to[p", "", "No layer matches. \"top\" is left out by: Name."},
        {"s*_top", "2 3 4", "\"top\" is left out by: Name."},
    };
    for (auto const & row : rows) {
        bar.ask({});
        name.setText(row.words);
        if (row.words == QString("s*_top")) { // both filters
            bar.ask({{"context", "board"}});
            name.setText("*k_top|paste_top");
        }
        EXPECT_EQ(shownRows(table), row.rows) << row.words;
        EXPECT_EQ(explanation(), row.explanation) << row.words;
    }
    find<QPushButton>("for analysis").click();
    EXPECT_TRUE(explanation().endsWith("\"top\" is left out by: Name.")) << explanation().toStdString();
    find<QPushButton>("for analysis").click();
    bar.ask({});
    EXPECT_TRUE(name.text().isEmpty());

    struct
    {
        int column;
        Qt::SortOrder order;
        char const * rows;
    } const orders[] = {{1, Qt::AscendingOrder, "24 15 19 1"},
                        {5, Qt::DescendingOrder, "5 4 15 9"},
                        {3, Qt::AscendingOrder, "1 19 6 8"},
                        {0, Qt::DescendingOrder, "25 24 23 22"},
                        {0, Qt::AscendingOrder, "1 2 3 4"}};
    for (auto const & each : orders) {
        table.horizontalHeader()->setSortIndicator(each.column, each.order);
        EXPECT_EQ(order(table, 4), each.rows) << each.column;
        board().refresh(); // refills the table
        EXPECT_EQ(order(table, 4), each.rows) << each.column;
        EXPECT_EQ(table.currentRow(), shown);
        EXPECT_EQ(table.layerName(shown), "top");
    }
}

TEST_F(LayersOfAWindow, AMenuShowsComparesCopiesAndColours)
{
    auto & table = find<LayerTable>();
    auto const choose = [&table](int row, int entry) {
        QPoint const place = table.visualItemRect(table.item(row, 1)).center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, table.viewport()->mapToGlobal(place));
        QApplication::sendEvent(table.viewport(), &event);
        auto * menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        menu->actions().at(entry)->trigger();
        menu->close();
    };
    BoardView const & view = *board().currentView();
    table.tickAll(true);
    choose(8, 0); // show only this
    EXPECT_TRUE(table.tickedLayers().empty());
    EXPECT_EQ(view.layer(), "l3_sig");
    table.setCurrentCell(1, 1);
    choose(1, 1); // all copper
    EXPECT_EQ(table.tickedLayers(), (std::vector<std::size_t>{4, 6, 8, 10, 12, 14}));
    EXPECT_EQ(view.layer(), "top");
    choose(0, 2); // tick
    EXPECT_EQ(table.tickedLayers().front(), 0U);
    QString other;
    QObject::connect(&table, &LayerTable::compareWanted, &table,
                     [&other](QString const & name) { other = name; });
    choose(14, 4);
    EXPECT_EQ(other, "bottom");
    choose(3, 5);
    EXPECT_EQ(QApplication::clipboard()->text(), "mask_top");

    auto const colourOf = [&table](int row) {
        return table.item(row, 0)->data(Qt::DecorationRole).value<QColor>();
    };
    std::set<QRgb> colours;
    for (int row = 0; row < table.rowCount(); ++row) {
        colours.insert(colourOf(row).rgb());
    }
    EXPECT_EQ(colours.size(), 25U);
    QColor const own = colourOf(4);
    board().useColours("state.ini");
    table.setColour(4, QColor(1, 2, 3));
    EXPECT_EQ(colourOf(4), QColor(1, 2, 3));
    EXPECT_NE(colourOf(6), QColor(1, 2, 3));
    LayerColours another; // of the next session
    another.useFile("state.ini");
    another.setLayers({session.layers()[4].info, session.layers()[6].info});
    EXPECT_EQ(another.of(session.layers()[4].info), QColor(1, 2, 3));
    choose(4, 8); // its own colour
    EXPECT_EQ(colourOf(4), own);
    another.useFile("state.ini");
    EXPECT_FALSE(another.isChosen("top"));
    writeFile("damaged.ini", "[layer-colours]\ntop=no colour\nbottom=#010203\n\x01\xff[[\n");
    another.useFile("damaged.ini");
    EXPECT_FALSE(another.isChosen("top"));
    EXPECT_TRUE(another.isChosen("bottom"));
    LayerColours::shown().useFile(QString());
}

} // namespace
