#include "TestFiles.h"
#include "board/BoardView.h"
#include "feature/FeatureDialog.h"
#include "job/CommandLine.h"
#include "job/Session.h"
#include "layers/LayerTable.h"
#include "ui/LogPane.h"
#include "window/BoardPage.h"
#include "window/MainWindow.h"

#include <UIAPICommon.h>

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QRegularExpression>
#include <QSet>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include <memory>

using namespace KVCAM::UIAPI;
using namespace Workbench;

namespace {

class MainWindows : public ::testing::Test
{
protected:
    void SetUp() override { ASSERT_EQ(session.open(UIAPI_SOURCE_DIR "/samples/jobs/demo-board"), ""); }

    std::unique_ptr<MainWindow> open()
    {
        CommandLine commandLine;
        commandLine.output = ".";
        auto window = std::make_unique<MainWindow>(session, log, commandLine);
        window->show();
        window->activateWindow();
        QApplication::processEvents();
        return window;
    }

    Session session;
    LogLines log;
};

QTabWidget & pages(MainWindow & window)
{
    return *qobject_cast<QTabWidget *>(window.centralWidget());
}

TEST_F(MainWindows, AWindowComesBackAsItWasClosed)
{
    QList<int> sizes;
    {
        auto const window = open();
        window->useStateFile("./state.ini", false);
        window->resize(1100, 800);
        window->findChild<QSplitter *>("sides")->setSizes({300, 500, 300});
        sizes = window->findChild<QSplitter *>("sides")->sizes();
        window->showPage("templates");
        setUnit(window->board().currentView()->handle(), 1);
        window->setLanguage(LANGUAGE_CHINESE);
        window->close();
    }
    auto const window = open();
    window->setLanguage(LANGUAGE_ENGLISH);
    window->useStateFile("./state.ini", false);
    EXPECT_EQ(window->size(), QSize(1100, 800));
    EXPECT_EQ(window->findChild<QSplitter *>("sides")->sizes(), sizes);
    EXPECT_EQ(pages(*window).currentWidget()->objectName(), "templates");
    EXPECT_EQ(getUnit(window->board().currentView()->handle()), 1);
    EXPECT_EQ(window->findChild<QComboBox *>()->currentData().toInt(), LANGUAGE_CHINESE);
    auto const other = open(); // started with a unit of its own
    other->useStateFile("./state.ini", true);
    EXPECT_EQ(getUnit(other->board().currentView()->handle()), 0);
}

TEST_F(MainWindows, ADamagedStateChangesNothing)
{
    char const * const states[] = {
        "",
        "\x01\x02 no settings at all [[[",
        "[window]\ngeometry=@ByteArray(nonsense)\npage=nowhere\nunit=7\nchinese=true\n"
        "[splitters]\nsides=@ByteArray(more)\n",
        "[window]\ngeometry=@Variant(\\0\\0\\0\\x7f)\nunit=@Invalid()\npage=@Size(1 2)\n",
    };
    auto const fresh = open();
    for (char const * state : states) {
        writeFile("state.ini", state);
        auto const window = open();
        window->useStateFile("./state.ini", false);
        EXPECT_EQ(window->size(), fresh->size()) << state;
        EXPECT_EQ(window->findChild<QSplitter *>("sides")->sizes(),
                  fresh->findChild<QSplitter *>("sides")->sizes())
            << state;
        EXPECT_EQ(pages(*window).currentIndex(), 0) << state;
        EXPECT_EQ(getUnit(window->board().currentView()->handle()), 0) << state;
    }
    QDir().mkpath("folder.ini");
    auto const window = open();
    window->useStateFile("./folder.ini", false);
    window->close();
    QApplication::processEvents();
    EXPECT_EQ(log.lines().filter("ERROR WindowState").size(), 1) << log.lines().join('\n').toStdString();
}

TEST_F(MainWindows, TabReachesEveryControlOfEveryPage)
{
    auto const window = open();
    for (int page = 0; page < pages(*window).count(); ++page) {
        pages(*window).setCurrentIndex(page);
        QApplication::processEvents();
        pages(*window).tabBar()->setFocus();
        QSet<QWidget *> reached;
        for (int i = 0; i < 500 && !reached.contains(QApplication::focusWidget()); ++i) {
            ASSERT_NE(QApplication::focusWidget(), nullptr);
            reached.insert(QApplication::focusWidget());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QString const name = pages(*window).currentWidget()->objectName();
        for (QWidget * widget : pages(*window).currentWidget()->findChildren<QWidget *>()) {
            bool const wantsTab = (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->isVisible() &&
                                  widget->isEnabled() && widget->focusProxy() == nullptr;
            if (wantsTab && qobject_cast<QHeaderView *>(widget) == nullptr) {
                EXPECT_TRUE(reached.contains(widget))
                    << name.toStdString() << ": " << widget->metaObject()->className();
            }
        }
        EXPECT_GT(reached.size(), 3) << name.toStdString();
    }
}

TEST_F(MainWindows, ShortcutsAreFunctionKeysAndMnemonicsAreUnique)
{
    auto const window = open();
    QStringList keys;
    for (QAction const * action : window->findChildren<QAction *>()) {
        for (QKeySequence const & key : action->shortcuts()) {
            keys.append(key.toString());
        }
    }
    EXPECT_FALSE(keys.isEmpty());
    keys.sort();
    EXPECT_EQ(keys.removeDuplicates(), 0) << keys.join(' ').toStdString();
    for (QString const & key : keys) {
        EXPECT_TRUE(QRegularExpression("^F[0-9]+$").match(key).hasMatch()) << key.toStdString();
    }
    for (LANGUAGE_MODE const language : {LANGUAGE_ENGLISH, LANGUAGE_CHINESE}) {
        window->setLanguage(language);
        QApplication::processEvents();
        QStringList letters; // of the menus and the pages, which Alt reaches at any time
        for (int i = 0; i < pages(*window).count(); ++i) {
            letters.append(QKeySequence::mnemonic(pages(*window).tabText(i)).toString());
        }
        for (QAction const * action : window->menuBar()->actions()) {
            letters.append(QKeySequence::mnemonic(action->text()).toString());
        }
        letters.removeAll(QString());
        EXPECT_GE(letters.size(), 8);
        EXPECT_EQ(letters.removeDuplicates(), 0) << letters.join(' ').toStdString();
    }
    window->setLanguage(LANGUAGE_ENGLISH);
}

// What the window shows: the texts of its labels, buttons, groups, pages, menus and headers.
QStringList shownTexts(QWidget & window)
{
    QStringList texts{window.windowTitle()};
    for (auto const * widget : window.findChildren<QWidget *>()) {
        for (char const * property : {"text", "title", "toolTip"}) {
            bool const isEdit = widget->inherits("QLineEdit") || widget->inherits("QComboBox");
            texts.append(isEdit ? QString() : widget->property(property).toString());
        }
        if (auto const * table = qobject_cast<QTableWidget const *>(widget)) {
            for (int i = 0; i < table->columnCount(); ++i) {
                texts.append(table->horizontalHeaderItem(i)->text());
            }
        } else if (auto const * tabs = qobject_cast<QTabWidget const *>(widget)) {
            for (int i = 0; i < tabs->count(); ++i) {
                texts.append(tabs->tabText(i));
            }
        }
    }
    return texts;
}

TEST_F(MainWindows, EveryTextFollowsTheLanguageThereAndBack)
{
    auto const window = open();
    FeatureDialog & dialog = *window->board().openFeature(0);
    QStringList const english = shownTexts(*window) + shownTexts(dialog);
    window->setLanguage(LANGUAGE_CHINESE);
    QApplication::processEvents();
    QStringList const chinese = shownTexts(*window) + shownTexts(dialog);
    ASSERT_EQ(chinese.size(), english.size());
    static QRegularExpression const han("[\\x{4e00}-\\x{9fff}]");
    // What stays is no text of the program: names, paths, roles, units, what stands on the library's fields.
    static QRegularExpression const sentence("^[&A-Z][a-z&]+( [a-z&]+)*$");
    for (int i = 0; i < english.size(); ++i) {
        if (sentence.match(english[i]).hasMatch()) {
            EXPECT_TRUE(han.match(chinese[i]).hasMatch()) << english[i].toStdString();
        }
    }
    EXPECT_GT(chinese.filter(han).size(), 100);
    window->setLanguage(LANGUAGE_ENGLISH);
    QApplication::processEvents();
    EXPECT_EQ(shownTexts(*window) + shownTexts(dialog), english);
}

TEST_F(MainWindows, ANegativePadStaysNegativeInTheOtherLanguage)
{
    auto const window = open();
    window->board().openFeature(0)->findChild<QComboBox *>("polarity")->setCurrentIndex(1);
    window->setLanguage(LANGUAGE_CHINESE);
    QApplication::processEvents();
    FeatureDialog const & again =
        *window->board().openFeature(0); // in place of the one before, which is saved
    EXPECT_EQ(again.findChild<QComboBox *>("polarity")->currentIndex(), 1);
    window->setLanguage(LANGUAGE_ENGLISH);
    QApplication::processEvents();
    FeatureDialog const & third = *window->board().openFeature(0);
    EXPECT_EQ(third.findChild<QComboBox *>("polarity")->currentIndex(), 1);
}

TEST_F(MainWindows, TickedLayersAreDrawnInEveryStep)
{
    auto const window = open();
    auto & layers = *window->findChild<LayerTable *>();
    EXPECT_TRUE(layers.tickedLayers().empty());
    layers.setCurrentCell(6, 1);
    QTest::keyClick(&layers, Qt::Key_Space);
    layers.setCurrentCell(14, 1);
    QTest::keyClick(&layers, Qt::Key_Space);
    EXPECT_EQ(layers.tickedLayers(), (std::vector<std::size_t>{6, 14}));
    auto & steps = *qobject_cast<QTabWidget *>(window->board().views()[0]->parentWidget()->parentWidget());
    steps.setCurrentIndex(1);
    EXPECT_EQ(layers.tickedLayers(), (std::vector<std::size_t>{6, 14}));
    QTest::keyClick(&layers, Qt::Key_Space);
    EXPECT_EQ(layers.tickedLayers(), std::vector<std::size_t>{6});
    layers.setRowHidden(0, true);
    layers.tickAll(true); // those that are listed
    EXPECT_EQ(layers.tickedLayers().size(), session.layers().size() - 1);
    layers.tickAll(false);
    EXPECT_TRUE(layers.tickedLayers().empty());
}

} // namespace
