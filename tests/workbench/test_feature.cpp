#include "SampleWindow.h"
#include "checks/ResultsPage.h"
#include "feature/FeaturePane.h"
#include "job/SaveAs.h"
#include "layers/LayerTable.h"
#include "window/Desk.h"

#include <EmbeddedEngine.h>
#include <UIAPICommon.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QGroupBox>
#include <QMessageBox>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>
#include <QTextEdit>

#include <memory>

using namespace KVCAM::UIAPI;
using namespace Workbench;

namespace {

// A window on a board with every kind of feature, in inches.
class Features : public SampleWindow
{
protected:
    void SetUp() override
    {
        SampleWindow::SetUp();
        writeJob("board", {{"SIGNAL", "TOP"}, {"SIGNAL", "BOTTOM"}});
        writeFile("board/steps/pcb/profile",
                  "UNITS=MM\nS P 0\nOB 0 0 I\nOS 60 0\nOS 60 60\nOS 0 60\nOE\nSE\n");
        writeFile("board/steps/pcb/layers/top/features",
                  "UNITS=INCH\n$0 rect20x30\n$1 r10\n$2 mark\n@0 .drill\n@1 .string\n&0 R <b>7</b>\n"
                  "S P 0\nOB 0.5 0.5 I\nOS 2 0.5\nOS 2 1.5\nOS 0.5 1.5\nOE\nSE\n"
                  "P 1 1 0 P 0 0;0=2\nL 1 1.25 1.5 1.25 1 P 0;1=0\nA 1.25 0.625 1.5 0.875 1.5 0.625 1 N 0 Y\n"
                  "P 1.75 1 2 P 0 0\nP 1 1.375 1 P 0 0\n");
        writeFile("board/symbols/mark/features", "UNITS=MM\n$0 r300\nP 0 0 0 P 0 0\n");
        writeFile("board/steps/pcb/eda/data", "HDR x\nLYR top\nNET GND\nFID C 0 1\n");
        ASSERT_EQ(session.open("board"), "");
        readCounts();
        open();
        setUnit(view(), 0);
    }

    void readCounts()
    {
        for (Session::Layer & layer : session.layers()) {
            session.countFeatures(layer);
        }
    }
    BoardView & shown() const { return *board().currentView(); }
    template <class Widget>
    Widget & part(char const * name) const
    {
        return *board().feature().findChild<Widget *>(name);
    }
    // As bytes, which are legible in a failure.
    std::string text(char const * name) const { return part<QLabel>(name).text().toStdString(); }
    void type(QLineEdit & field, QString const & typed) const
    {
        field.selectAll();
        QTest::keyClick(&field, Qt::Key_Delete);
        QTest::keyClicks(&field, typed);
    }
    void enter(char const * name, QString const & typed) const
    {
        auto & field = part<QLineEdit>(name);
        type(field, typed);
        QTest::keyClick(&field, Qt::Key_Return);
        QApplication::processEvents(); // the field is done with its key
    }
    std::string symbolOf(int index) const
    {
        for (auto const & feature : shown().features()) {
            if (feature.index == index) {
                return feature.symbol;
            }
        }
        return "none";
    }
    int undoable() const { return Ext::undoCount("board", "pcb"); }
};

TEST_F(Features, AClickShowsWhatIsThere)
{
    struct
    {
        QPointF inches;
        char const * facts; ///< heading, description, size, net, position, polarity, attributes
    } const rows[] = {
        {{1.005, 1.014},
         "Pad 1|rectangle, width 20 mil (508 µm), height 30 mil (762 µm)|20 x 30 mil = 508 x 762 µm|GND|x "
         "1.000 y 1.000 inch|Positive|.drill = "
         "2"},
        {{1.2, 1.25},
         "Line 2, part of a text|round, 10 mil (254 µm)|10 mil = 254 µm|not known|from x 1.000 y 1.250 inch\n"
         "to x 1.500 y 1.250 inch\nlength 500 mil = 12700 µm|Positive|.string = R <b>7</b>"},
        {{1.325, 0.802},
         "Arc 3|round, 10 mil (254 µm)|10 mil = 254 µm|not known|from x 1.250 y 0.625 inch\nto x 1.500 y "
         "0.875 "
         "inch\nabout x 1.500 y 0.625 inch|Negative|"},
        {{1.75, 1},
         "Pad 4|user symbol mark|11.81102 x 11.81102 mil = 300 x 300 µm|not known|x 1.750 y 1.000 "
         "inch|Positive|"},
        {{0.7, 0.7},
         "Surface 0||1500 x 1000 mil = 38100 x 25400 µm|not known|around x 1.250 y 1.000 inch|Positive|"},
        {{0.2, 0.2}, "Nothing is selected. A click selects a feature, with Ctrl one more.||||||"},
    };
    for (auto const & row : rows) {
        QPointF const at = shown().pixelOf(row.inches.x() * 25400, row.inches.y() * 25400);
        QTest::mouseClick(&shown(), Qt::LeftButton, {}, at.toPoint());
        QStringList facts;
        for (char const * name : {"feature", "description", "size", "net", "position", "polarity"}) {
            facts.append(QString::fromStdString(text(name)));
        }
        facts.append(part<QTextEdit>("attributes").toPlainText());
        EXPECT_EQ(facts.join('|').toStdString(), row.facts);
    }
    QTest::keyClick(window.get(), Qt::Key_F4);
    EXPECT_EQ(status(), "Nothing with a symbol is selected. A click selects a feature.");
}

TEST_F(Features, ATypedSizeChangesTheFeature)
{
    shown().select({1});
    struct
    {
        char const * typed;
        char const * below;  ///< what stands below the fields before it is finished
        char const * symbol; ///< of the feature afterwards
    } const rows[] = {
        {"10+2.5", "= 12.5 mil = 317.5 µm", "rect12.5x30"},
        {"0.1mm+0.0854mm", "= 7.2992 mil = 185.4 µm", "rect7.2992x30"},
        {"90000*2", "Allowed: 0.01 mil to 100000 mil, both included.", "rect7.2992x30"},
        {"0/0", "\"0\" is zero: nothing can be divided by it.", "rect7.2992x30"},
        {"0", "Allowed: 0.01 mil to 100000 mil, both included.", "rect7.2992x30"},
        {"254.1234", "= 254.1234 mil = 6454.734 µm", "rect254.1234x30"},
    };
    for (auto const & row : rows) {
        type(part<QLineEdit>("width"), row.typed);
        EXPECT_EQ(text("verdict"), row.below) << row.typed;
        QTest::keyClick(&part<QLineEdit>("width"), Qt::Key_Return);
        QApplication::processEvents();
        EXPECT_EQ(symbolOf(1), row.symbol) << row.typed;
        EXPECT_EQ(shown().selected(), FeatureSelection::Set{1}) << "it can be changed again";
    }
    EXPECT_EQ(undoable(), 3);
    enter("height", "30");
    EXPECT_EQ(undoable(), 3) << "the size it has";
    for (int i = 0; i < 10; ++i) {
        setUnit(view(), 1 - getUnit(view()));
    }
    EXPECT_EQ(undoable(), 3) << "looking changes nothing";
    setUnit(view(), 1);
    shown().select({2});
    enter("width", "300");
    EXPECT_EQ(symbolOf(2), "r300") << "not r11.81102";
    EXPECT_NEAR(shown().shapes()[2].penWidth, 300, 1e-6);
    EXPECT_TRUE(window->isWindowModified());
    for (int i = 0; i < 4; ++i) {
        board().undoLast();
    }
    EXPECT_EQ(takeBoxes().size(), 4);
    EXPECT_EQ(symbolOf(1) + symbolOf(2), "rect20x30r10");
    EXPECT_FALSE(window->isWindowModified());
}

TEST_F(Features, ATypedSymbolOrOneOfTheListBecomesTheFeatures)
{
    shown().select({2, 5});
    EXPECT_EQ(text("feature"), "2 features");
    enter("symbol", "oval30x20");
    EXPECT_EQ(symbolOf(2) + symbolOf(5), "oval30x20oval30x20");
    EXPECT_EQ(undoable(), 1) << "one operation";
    auto const & symbols = *find<QWidget>("symbols").findChild<QTableWidget *>();
    EXPECT_EQ(symbols.rowCount(), 0) << "read when it is shown";
    window->showPage("symbols");
    EXPECT_EQ(symbols.item(1, 0)->text() + symbols.item(1, 4)->text(), "oval30x202")
        << "sorted: after the mark";
    window->showPage("board");
    enter("symbol", "rect30");
    EXPECT_EQ(text("description"), "height: This field is missing.");
    enter("symbol", "nowhere");
    EXPECT_TRUE(status().startsWith("Nothing was changed: board: \"nowhere\" is neither"));
    EXPECT_EQ(part<QLineEdit>("symbol").text(), "oval30x20");
    EXPECT_EQ(undoable(), 1);
    enter("symbol", "mark");
    EXPECT_EQ(symbolOf(5), "mark");
    EXPECT_FALSE(part<QLineEdit>("width").isEnabled());
    shown().select({1, 2});
    EXPECT_EQ(text("description"), "The features have several symbols, or none.");
    EXPECT_FALSE(part<QLineEdit>("symbol").isEnabled());
    shown().select({0});
    EXPECT_FALSE(part<QLineEdit>("symbol").isEnabled()) << "a surface";
    shown().select({1});
    board().feature().showNames();
    auto & names = find<KVListWidget>();
    ASSERT_EQ(names.count(), 4) << "those of the layer's table";
    std::string const chosen = names.item(3)->text().toStdString();
    emit names.itemClicked(names.item(3));
    QApplication::processEvents();
    EXPECT_EQ(symbolOf(1), chosen);
}

TEST_F(Features, WhatWasTypedCountsForWhatWasSelectedThen)
{
    shown().select({1});
    auto & width = part<QLineEdit>("width");
    QTest::keyClick(window.get(), Qt::Key_F4);
    EXPECT_TRUE(width.hasFocus());
    type(width, "40");
    QFocusEvent left(QEvent::FocusOut);
    QApplication::sendEvent(&width, &left);
    find<LayerTable>().selectRow(1); // another layer
    QApplication::processEvents();
    EXPECT_EQ(shown().layer(), "bottom");
    find<LayerTable>().selectRow(0);
    EXPECT_EQ(symbolOf(1), "rect40x30");

    shown().select({1});
    type(width, "50");
    QApplication::sendEvent(&width, &left);
    window.reset();
    QApplication::processEvents();
    EXPECT_EQ(undoable(), 1) << "a window that goes away finishes nothing";
}

// Windows of a class that are shown.
template <class Widget>
Widget * front()
{
    for (QWidget * widget : QApplication::topLevelWidgets()) {
        if (auto * found = qobject_cast<Widget *>(widget); found != nullptr && found->isVisible()) {
            return found;
        }
    }
    return nullptr;
}

QPushButton & answerOf(QString const & text)
{
    auto * box = front<QMessageBox>();
    return buttonOf(box == nullptr ? *QApplication::activeWindow() : *box, text);
}

TEST_F(Features, NoChangeIsLostWithoutAQuestion)
{
    auto const change = [this] {
        shown().select({1});
        enter("width", QString::number(40 + undoable()));
    };
    change();
    window->close();
    EXPECT_TRUE(window->isVisible());
    window->close();
    answerOf("&Cancel").click();
    EXPECT_TRUE(window->isVisible());

    window->close();
    answerOf("&Save As...").click();
    ASSERT_NE(front<QFileDialog>(), nullptr);
    front<QFileDialog>()->reject();
    QApplication::processEvents();
    EXPECT_TRUE(window->isVisible()) << "saving was cancelled";
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    writeFile("full/x", "");
    for (QString const target : {"full", "copy"}) {
        EXPECT_TRUE(window->isVisible() && window->isWindowModified());
        window->close();
        answerOf("&Save As...").click();
        ASSERT_NE(front<QFileDialog>(), nullptr);
        emit front<QFileDialog>()->fileSelected(QFileInfo(target).absoluteFilePath());
        delete front<QFileDialog>();
    }
    EXPECT_EQ(takeBoxes().size(), 1) << "a folder that is not empty";
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(readFile("copy/steps/pcb/layers/top/features").contains("\n$3 rect40x30\n"));

    window.reset();
    open();
    change();
    window->close();
    answerOf("&Discard").click();
    EXPECT_FALSE(window->isVisible());
}

TEST_F(Features, AnotherBoardWaitsForTheAnswer)
{
    window.reset();
    Desk desk(log, {}, "./state.ini");
    ASSERT_TRUE(desk.open("board"));
    ASSERT_TRUE(KVCAM::Embedded::deleteFeatures("board", "pcb", "top", {1}));
    auto const title = [&desk] { return desk.window()->windowTitle().section('[', 0, 0); };
    EXPECT_FALSE(desk.open(sampleJob));
    answerOf("&Cancel").click();
    EXPECT_EQ(title(), "board");
    EXPECT_FALSE(desk.open("./nowhere"));
    answerOf("&Discard").click();
    EXPECT_EQ(takeBoxes().size(), 1);
    EXPECT_EQ(title(), "board");
    EXPECT_FALSE(desk.open("board")) << "the same again: its changes would be lost, too";
    answerOf("&Cancel").click();
    EXPECT_EQ(undoable(), 1);
    EXPECT_FALSE(desk.open(sampleJob));
    answerOf("&Discard").click();
    EXPECT_EQ(title(), "demo-board");
}

using Samples = SampleWindow;

TEST_F(Samples, TheSymbolsPageFollowsTheLanguageAndTheShownStep)
{
    open();
    window->showPage("symbols");
    auto & page = find<QWidget>("symbols");
    auto * names = page.findChild<QTableWidget *>();
    QString const english = names->item(0, 5)->text();
    window->setLanguage(LANGUAGE_CHINESE);
    QApplication::processEvents();
    EXPECT_NE(names->item(0, 5)->text(), english);
    window->setLanguage(LANGUAGE_ENGLISH);
    QApplication::processEvents();
    EXPECT_EQ(names->item(0, 5)->text(), english);

    setUnit(board().view(1).handle(), 1);
    auto * results = page.findChild<QGroupBox *>();
    EXPECT_TRUE(results->title().endsWith("Inch")) << results->title().toStdString();
    ASSERT_TRUE(board().showStep("panel"));
    EXPECT_TRUE(results->title().endsWith("MM")) << results->title().toStdString();
    EXPECT_TRUE(window->results().findChild<QLabel *>("empty")->text().contains("step panel"));
}

} // namespace
