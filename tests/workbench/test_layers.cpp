#include "SampleWindow.h"
#include "board/BoardView.h"
#include "board/FeatureSelection.h"
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
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTableWidget>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>

#include <memory>
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

TEST_F(LayersOfAWindow, ThePageOfReferencesShowsAndChangesWhatTheLibraryKeeps)
{
    window->showPage("references");
    auto & records = find<QTableWidget>("references");
    auto & layers = find<QListWidget>("reference layers");
    auto & tree = find<QTreeWidget>("kept references");
    auto const layersOf = [](char const * step) {
        auto const kept = getReferenceLayerInfo("demo-board", step);
        return kept.empty() ? std::vector<std::string>() : kept.back().layers;
    };
    auto const click = [this](char const * name) { find<QPushButton>(name).click(); };
    QString const empty = "This step has no reference layers. Tick some and add them.";
    EXPECT_EQ(find<QLabel>("reference hint").text(), empty);
    click("add");
    EXPECT_EQ(find<QLabel>("reference hint").text(),
              "A reference needs a job, a step and at least one layer.");
    for (int const row : {4, 14}) {
        layers.item(row)->setCheckState(Qt::Checked);
    }
    click("add");
    EXPECT_EQ(layersOf("pcb"), (std::vector<std::string>{"top", "bottom"}));
    layers.item(0)->setCheckState(Qt::Unchecked); // the chosen ones come first
    find<QComboBox>("reference job").setEditText("other board");
    click("change");
    EXPECT_EQ(layersOf("pcb"), std::vector<std::string>{"bottom"});
    EXPECT_EQ(records.item(0, 0)->text(), "other board");

    auto const choose = [&tree](QString const & text) {
        auto const items = tree.findItems(text, Qt::MatchExactly | Qt::MatchRecursive);
        tree.setCurrentItem(items.isEmpty() ? nullptr : items.front());
    };
    auto const rename = [&](QString const & text, QString const & newName) {
        choose(text);
        find<QLineEdit>("new name").setText(newName);
        click("rename");
        return find<QLabel>("told the library").text();
    };
    EXPECT_EQ(rename("bottom", ""), "A name is needed.");
    EXPECT_EQ(rename("bottom", "l6"),
              "renameReferenceLayer(\"demo-board\", \"other board\", \"pcb\", \"bottom\", \"l6\")");
    EXPECT_EQ(records.item(0, 2)->text(), "l6");
    EXPECT_EQ(layers.item(0)->text(), "l6"); // offered although the open job has none
    answer = [] { return Ext::MessageAnswer::No; };
    choose("other board");
    click("delete");
    EXPECT_EQ(layersOf("pcb"), std::vector<std::string>{"l6"});
    answer = [] { return Ext::MessageAnswer::Yes; };
    click("delete");
    EXPECT_TRUE(layersOf("pcb").empty());
    EXPECT_EQ(find<QLabel>("reference hint").text(), empty);
    QString const question =
        "Tell the library that \"other board\" is deleted? All references to it go as well.";
    EXPECT_EQ(takeBoxes(), (QStringList{question, question}));

    for (int i = 0; i < 2; ++i) { // two records with their jobs side by side
        layers.item(0)->setCheckState(Qt::Checked);
        find<QComboBox>("reference job").setEditText(QString("job %1").arg(i));
        click("add");
    }
    EXPECT_EQ(rename("job 0", "job 1"), "This name is taken.");
    records.selectRow(0);
    click("remove");
    EXPECT_EQ(records.rowCount(), 1);
    EXPECT_EQ(records.item(0, 0)->text(), "job 1");
    EXPECT_TRUE(getReferenceLayerInfo("demo-board", "panel").empty());
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

// The rows of the first column of a query on the engine's database.
QStringList queried(QString const & statement)
{
    QSqlDatabase database = QSqlDatabase::database("engine", false);
    if (!database.isValid()) {
        database = QSqlDatabase::addDatabase("QSQLITE", "engine");
        database.setDatabaseName("./uiapi-engine.sqlite");
    }
    EXPECT_TRUE(database.open());
    QSqlQuery query(statement, database);
    QStringList rows;
    while (query.next()) {
        rows.append(query.value(0).toString());
    }
    return rows;
}

TEST_F(LayersOfAWindow, DeletedFeaturesComeBackWithUndoInPictureCountsAndDatabase)
{
    ASSERT_TRUE([] {
        KVCAM::Embedded::setDatabaseFile("./uiapi-engine.sqlite");
        return KVCAM::Embedded::setSaveFlag(true);
    }());
    BoardView & view = *board().currentView();
    auto const & table = find<LayerTable>();
    auto const state = [&] { // drawn, counted, undoable
        return QString("%1 %2 %3")
            .arg(view.features().size())
            .arg(table.item(table.currentRow(), 5)->text())
            .arg(Ext::undoCount("demo-board", "pcb"));
    };
    view.setFocus();
    QTest::keyClick(&view, Qt::Key_Delete);
    EXPECT_EQ(status(), "Nothing is selected. Ctrl with a click selects a feature.");

    FeatureShape const & pad = view.shapes().back();
    view.centreOn(pad.box.center().x(), pad.box.center().y());
    int const feature = pad.feature;
    QPoint const middle = view.rect().center();
    QTest::mouseClick(&view, Qt::LeftButton, Qt::ControlModifier, middle);
    EXPECT_EQ(view.selected(), FeatureSelection::Set{feature});
    EXPECT_TRUE(status().startsWith("selected features: 1   |   ")) << status().toStdString();
    QTest::mouseClick(&view, Qt::LeftButton, Qt::ControlModifier, middle);
    EXPECT_TRUE(view.selected().empty()) << "the second click takes it out";
    QTest::mouseClick(&view, Qt::LeftButton, Qt::ControlModifier, middle);
    QTest::keyClick(&view, Qt::Key_Delete);
    EXPECT_EQ(status(), "Deleted features: 1");
    EXPECT_EQ(state(), "179 179 1");
    EXPECT_TRUE(view.selected().empty());
    view.select({1});
    view.reload();
    EXPECT_TRUE(view.selected().empty());
    QTest::keyClick(&view, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(status(), "Select all: selected features: 179");
    QTest::keyClick(&view, Qt::Key_Delete);
    EXPECT_EQ(state(), "0 0 2");
    EXPECT_EQ(queried("SELECT layer FROM operation"), (QStringList{"top", "top"}));

    QAction const & undoEntry = *window->menuBar()->actions()[1]->menu()->actions().front();
    EXPECT_EQ(undoEntry.text(), "Undo (2)\tCtrl+Z");
    answer = [] { return Ext::MessageAnswer::No; };
    QTest::keyClick(&view, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(state(), "0 0 2");
    answer = [] { return Ext::MessageAnswer::Yes; };
    QTest::keyClick(&view, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(state(), "179 179 1");
    EXPECT_EQ(status(), "Undo: operations left: 1");
    window->menuBar()->actions()[1]->menu()->actions().front()->trigger();
    EXPECT_EQ(state(), "180 180 0");
    EXPECT_EQ(undoEntry.text(), "Undo (0)\tCtrl+Z");
    QTest::keyClick(&view, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(takeBoxes(), (QStringList{"Are you sure to cancel?", "Are you sure to cancel?",
                                        "Are you sure to cancel?", "There are no revocable actions!"}));
    EXPECT_EQ(queried("SELECT layer FROM operation"), QStringList());
    EXPECT_EQ(queried("SELECT call FROM undo_call WHERE call = 'Undo'").size(), 2);
    KVCAM::Embedded::setSaveFlag(false);
}

TEST(Selections, TakeTheSmallestFeatureAtAPlaceAndItsLikes)
{
    FeatureShape line;
    line.kind = FeatureShape::Kind::Line;
    line.feature = 3;
    line.penWidth = 10;
    line.end = {100, 100};
    line.box = {-5, -5, 110, 110};
    FeatureShape ring;
    ring.feature = 5;
    ring.path.addEllipse(QPointF(50, 50), 40, 40);
    ring.path.addEllipse(QPointF(50, 50), 20, 20);
    ring.box = {10, 10, 80, 80};
    ring.penWidth = 40; // matches no stroke
    FeatureShape arc = ring;
    arc.feature = 6;
    arc.filled = false;
    arc.penWidth = 2;
    arc.path.translate(200, 0);
    arc.box.translate(200, 0);
    FeatureShape disc; // a round pad
    disc.kind = FeatureShape::Kind::Pad;
    disc.feature = 7;
    disc.symbol = std::make_shared<FeatureSymbol const>();
    disc.path.addEllipse(QPointF(0, 0), 10, 10);
    disc.place = {500, 500};
    disc.box = {490, 490, 20, 20};
    struct
    {
        QPointF place;
        double tolerance;
        int feature;
    } const rows[] = {
        {{505, 505}, 1, 7},  {{509, 509}, 1, -1}, {{0, 8}, 1, 3},    {{0, 8}, 0.5, -1},   {{2, 2}, 1, 3},
        {{0, 100}, 1, -1},   {{80, 50}, 1, 5},    {{50, 50}, 1, 3},  {{50, 62}, 1, -1},   {{50, 62}, 9, 5},
        {{250, 10.5}, 1, 6}, {{250, 16}, 1, -1},  {{250, 16}, 6, 6}, {{1e300, 0}, 1, -1},
    };
    for (auto const & row : rows) {
        EXPECT_EQ(FeatureSelection::featureAt({line, ring, arc, disc}, row.place, row.tolerance), row.feature)
            << row.place.x() << ' ' << row.place.y() << ' ' << row.tolerance;
    }
    std::vector<FeatureShape> const both = {ring, line};
    int meant = -1;
    for (int const next : {5, 3, 5}) { // one click after the other where both are
        meant = FeatureSelection::featureAt(both, {20, 20}, 9, meant);
        EXPECT_EQ(meant, next);
    }
    FeatureSelection::Features const features = {
        {0, 'P', "r10", true, {}}, {2, 'P', "r10", true, {}}, {4, 'P', "r10", false, {}},
        {5, 'L', "r10", true, {}}, {7, 'P', "s10", true, {}},
    };
    using Set = FeatureSelection::Set;
    EXPECT_EQ(FeatureSelection::withSame({2, 7}, features), (Set{0, 2, 7}));
    EXPECT_EQ(FeatureSelection::withSame({}, features), Set{});
    EXPECT_EQ(FeatureSelection::reversed({2, 7}, features), (Set{0, 4, 5}));
    EXPECT_EQ(FeatureSelection::all(features), (Set{0, 2, 4, 5, 7}));
}

} // namespace
