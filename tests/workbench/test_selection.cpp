#include "SampleWindow.h"
#include "board/BoardView.h"
#include "board/FeatureSelection.h"
#include "layers/LayerTable.h"

#include <UIAPICommon.h>

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTest>

#include <memory>

using namespace KVCAM::UIAPI;
using namespace Workbench;

namespace {

using Selections = SampleWindow;

TEST_F(Selections, TakeTheSmallestFeatureAtAPlaceAndItsLikes)
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

TEST_F(Selections, DeletedFeaturesComeBackWithUndoInPictureCountsAndDatabase)
{
    ASSERT_TRUE([] {
        KVCAM::Embedded::setDatabaseFile("./uiapi-engine.sqlite");
        return KVCAM::Embedded::setSaveFlag(true);
    }());
    for (Session::Layer & layer : session.layers()) {
        session.countFeatures(layer);
    }
    open();
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

} // namespace
