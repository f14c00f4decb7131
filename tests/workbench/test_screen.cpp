#include "SampleWindow.h"
#include "layers/LayerTable.h"
#include "pages/EnginePane.h"
#include "ui/Colours.h"
#include "ui/Legible.h"
#include "window/Pane.h"
#include "window/WindowState.h"

#include <QAction>
#include <QApplication>
#include <QPalette>
#include <QSplitter>

#include <algorithm>

using namespace KVCAM::UIAPI;
using namespace Workbench;

namespace {

using Screens = SampleWindow;

TEST_F(Screens, TheFirstWindowFitsAndEveryPageCanBeThatSmall)
{
    struct
    {
        QSize available;
        QSize window;
    } const rows[] = {
        {{2560, 1440}, {1440, 900}},
        {{1440, 872}, {1424, 824}},
        {{1024, 700}, {1008, 652}},
        {{960, 540}, {944, 492}}, // Full HD at 200 %
    };
    open();
    for (LANGUAGE_MODE const language : {LANGUAGE_ENGLISH, LANGUAGE_CHINESE}) {
        window->setLanguage(language);
        QApplication::processEvents();
        for (auto const & row : rows) {
            EXPECT_EQ(firstWindowSize(row.available), row.window);
            window->resize(row.window);
            EXPECT_EQ(window->size(), row.window) << "at least " << window->minimumSizeHint().width() << " x "
                                                  << window->minimumSizeHint().height();
        }
    }
    window->setLanguage(LANGUAGE_ENGLISH);
}

TEST(FirstPanes, GiveTheBoardTheMost)
{
    struct
    {
        QSize window;
        QSize letter;
        bool hasFeature;
        bool hasLog;
    } const rows[] = {
        {{1440, 900}, {6, 15}, true, true},                                         //
        {{1424, 824}, {6, 15}, true, true},                                         //
        {{1424, 824}, {8, 19}, true, false},                                        // larger letters
        {{1300, 824}, {8, 19}, false, false}, {{1008, 652}, {6, 15}, false, false}, //
        {{944, 492}, {6, 15}, false, false},                                        //
        {{2560, 600}, {6, 15}, true, false},                                        //
    };
    for (auto const & row : rows) {
        FirstPanes const panes = firstPanes(row.window, row.letter);
        EXPECT_EQ(panes.hasFeature, row.hasFeature) << row.window.width();
        EXPECT_EQ(panes.hasLog, row.hasLog) << row.window.height();
        int const board = row.window.width() - panes.layers - (panes.hasFeature ? panes.feature : 0);
        EXPECT_GT(board, std::max(panes.layers, panes.feature)) << row.window.width();
        EXPECT_GE(panes.layers, 40 * row.letter.width());
    }
}

TEST_F(Screens, PanesAreClosedOpenedAndRemembered)
{
    open();
    board().arrange(firstPanes({944, 492}, {6, 15}));
    EXPECT_FALSE(find<Pane>("feature").isVisible() || find<QSplitter>("right").isVisible());
    EXPECT_FALSE(find<Pane>("log").isVisible());
    window->resize(1440, 900);
    board().arrange(firstPanes({1440, 900}, {6, 15}));
    EXPECT_GT(board().currentView()->width(), find<Pane>("layers").width());
    auto const isOpen = [this](char const * name) { return find<Pane>(name).isVisible(); };
    EXPECT_TRUE(isOpen("layers") && isOpen("feature") && isOpen("log") && !isOpen("engine"));
    ASSERT_EQ(board().paneActions().size(), 4);
    for (QAction * action : board().paneActions()) {
        action->trigger();
    }
    EXPECT_TRUE(!isOpen("layers") && !isOpen("feature") && !isOpen("log") && isOpen("engine"));
    for (auto const & [pane, open] : {std::pair("engine", false), std::pair("feature", true)}) {
        find<Pane>(pane).setOpen(open); // both closed give their room away, and take it again
        EXPECT_EQ(find<QSplitter>("right").isVisible(), open);
    }
    find<Pane>("feature").setOpen(false);
    find<Pane>("engine").setOpen(true);
    window->useStateFile("./state.ini", true); // nothing there yet
    EXPECT_TRUE(!isOpen("layers") && isOpen("engine"));
    window->close();
    open();
    window->useStateFile("./state.ini", true);
    EXPECT_TRUE(!isOpen("layers") && !isOpen("log") && isOpen("engine"));
}

TEST_F(Screens, AStepsViewIsMadeWhenItIsShownAndStartsInTheWindowsUnit)
{
    open();
    std::size_t const before = Ext::views().size();
    EXPECT_EQ(static_cast<int>(window->findChildren<BoardView *>().size()), 1);
    board().setUnit(Unit::Millimetre);
    EXPECT_EQ(getUnit(view()), 1);
    ASSERT_TRUE(board().showStep("panel"));
    EXPECT_EQ(static_cast<int>(window->findChildren<BoardView *>().size()), 2);
    EXPECT_EQ(Ext::views().size(), before + 1);
    EXPECT_EQ(board().currentView()->step(), "panel");
    EXPECT_EQ(getUnit(view()), 1);
    ASSERT_TRUE(board().showStep("PCB"));
    ASSERT_TRUE(board().showStep("panel"));
    EXPECT_EQ(static_cast<int>(window->findChildren<BoardView *>().size()), 2);
}

TEST(Colours, CanBeReadOnLightAndDarkBackgrounds)
{
    QPalette const before = QApplication::palette();
    for (QColor const & base : {QColor(Qt::white), QColor("#eff0f1"), QColor("#2a2a2a"), QColor(Qt::black)}) {
        QPalette palette = before;
        bool const isDark = base.lightness() < 128;
        palette.setColor(QPalette::Base, base);
        palette.setColor(QPalette::Text, isDark ? Qt::white : Qt::black);
        QApplication::setPalette(palette);
        for (QColor const & colour : {QColor(faultColour), QColor(inkColour), QColor("#8a5a00"),
                                      QColor(Qt::yellow), QColor(Qt::blue)}) {
            QColor const shown = legibleText(colour);
            EXPECT_GE(contrast(shown, base), 3) << colour.name().toStdString() << base.name().toStdString();
            EXPECT_EQ(shown == colour, contrast(colour, base) >= 3); // else it stays
        }
        EXPECT_GE(contrast(dimmedText(), base), 3);
        EXPECT_LT(contrast(dimmedText(), base), contrast(palette.color(QPalette::Text), base));
        EXPECT_TRUE(textStyle(faultColour).contains(legibleText(QColor(faultColour)).name()));
    }
    QApplication::setPalette(before);
    EXPECT_NEAR(contrast(Qt::white, Qt::black), 21, 1e-9);
}

} // namespace
