#include "SampleWindow.h"
#include "checks/ResultFiles.h"
#include "checks/ResultsPage.h"
#include "feature/FeatureDialog.h"
#include "layers/LayerTable.h"
#include "window/KeysDialog.h"

#include <UIAPICommon.h>

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QRegularExpression>
#include <QSet>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include <functional>
#include <utility>

using namespace KVCAM::UIAPI;
using namespace Workbench;

namespace {

using MainWindows = SampleWindow;

QTabWidget & pages(MainWindow & window)
{
    return *qobject_cast<QTabWidget *>(window.centralWidget());
}

TEST_F(MainWindows, AWindowComesBackAsItWasClosed)
{
    open();
    window->useStateFile("./state.ini", false);
    window->resize(1100, 800);
    QSize const size = window->size(); // wider with wide fonts
    find<QSplitter>("sides").setSizes({300, 500, 300});
    QList<int> const sizes = find<QSplitter>("sides").sizes();
    window->showPage("templates");
    setUnit(view(), 1);
    window->setLanguage(LANGUAGE_CHINESE);
    window->close();
    window.reset();
    open();
    window->setLanguage(LANGUAGE_ENGLISH);
    window->useStateFile("./state.ini", false);
    EXPECT_EQ(window->size(), size);
    EXPECT_EQ(find<QSplitter>("sides").sizes(), sizes);
    EXPECT_EQ(pages(*window).currentWidget()->objectName(), "templates");
    EXPECT_EQ(getUnit(view()), 1);
    EXPECT_EQ(find<QComboBox>().currentData().toInt(), LANGUAGE_CHINESE);
    auto const other = makeWindow(); // starts with its own unit
    other->useStateFile("./state.ini", true);
    EXPECT_EQ(getUnit(other->board().currentView()->handle()), 0);
}

TEST_F(MainWindows, ADamagedStateChangesNothing)
{
    char const * const states[] = {
        "",
        "\x01\x02 no settings at all [[[",
        ("[window]\ngeometry=@ByteArray(nonsense)\npage=nowhere\nunit=7\nchinese=true\n"
         "[splitters]\nsides=@ByteArray(more)\n"),
        "[window]\ngeometry=@Variant(\\0\\0\\0\\x7f)\nunit=@Invalid()\npage=@Size(1 2)\n",
    };
    auto const fresh = makeWindow();
    for (char const * state : states) {
        writeFile("state.ini", state);
        open();
        window->useStateFile("./state.ini", false);
        EXPECT_EQ(window->size(), fresh->size()) << state;
        EXPECT_EQ(find<QSplitter>("sides").sizes(), fresh->findChild<QSplitter *>("sides")->sizes()) << state;
        EXPECT_EQ(pages(*window).currentIndex(), 0) << state;
        EXPECT_EQ(getUnit(view()), 0) << state;
    }
    QDir().mkpath("folder.ini");
    open();
    window->useStateFile("./folder.ini", false);
    window->close();
    QApplication::processEvents();
    EXPECT_EQ(log.lines().filter("ERROR WindowState").size(), 1) << log.lines().join('\n').toStdString();
}

TEST_F(MainWindows, TabReachesEveryControlOfEveryPage)
{
    open();
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
    open();
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
        QStringList letters; // of menus and pages: Alt always reaches them
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

// The texts that the window shows: those of its labels, buttons, groups, pages, menus and headers.
QStringList shownTexts(QWidget & window)
{
    QStringList texts{window.windowTitle()};
    for (auto const * action : window.findChildren<QAction *>()) {
        texts.append(action->text());
    }
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
    open();
    FeatureDialog & dialog = *board().openFeature(0);
    QStringList const english = shownTexts(*window) + shownTexts(dialog);
    window->setLanguage(LANGUAGE_CHINESE);
    QApplication::processEvents();
    QStringList const chinese = shownTexts(*window) + shownTexts(dialog);
    ASSERT_EQ(chinese.size(), english.size());
    static QRegularExpression const han("[\\x{4e00}-\\x{9fff}]");
    // The rest is not the program's text: names, paths, roles, units, the texts of the library's fields.
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
    open();
    board().openFeature(0)->findChild<QComboBox *>("polarity")->setCurrentIndex(1);
    board().closeFeature(); // saves the text of the polarity in English
    window->setLanguage(LANGUAGE_CHINESE);
    QApplication::processEvents();
    FeatureDialog const & again = *board().openFeature(0); // replaces the previous one, which is saved
    EXPECT_EQ(again.findChild<QComboBox *>("polarity")->currentIndex(), 1);
    window->setLanguage(LANGUAGE_ENGLISH);
    QApplication::processEvents();
    FeatureDialog const & third = *board().openFeature(0);
    EXPECT_EQ(third.findChild<QComboBox *>("polarity")->currentIndex(), 1);
}

TEST_F(MainWindows, TickedLayersAreDrawnInEveryStep)
{
    open();
    auto & layers = find<LayerTable>();
    EXPECT_TRUE(layers.tickedLayers().empty());
    layers.setCurrentCell(6, 1);
    QTest::keyClick(&layers, Qt::Key_Space);
    layers.setCurrentCell(14, 1);
    QTest::keyClick(&layers, Qt::Key_Space);
    EXPECT_EQ(layers.tickedLayers(), (std::vector<std::size_t>{6, 14}));
    auto & steps = *qobject_cast<QTabWidget *>(board().views()[0]->parentWidget()->parentWidget());
    steps.setCurrentIndex(1);
    EXPECT_EQ(layers.tickedLayers(), (std::vector<std::size_t>{6, 14}));
    QTest::keyClick(&layers, Qt::Key_Space);
    EXPECT_EQ(layers.tickedLayers(), std::vector<std::size_t>{6});
    layers.setRowHidden(0, true);
    layers.tickAll(true); // the listed ones
    EXPECT_EQ(layers.tickedLayers().size(), session.layers().size() - 1);
    layers.tickAll(false);
    EXPECT_TRUE(layers.tickedLayers().empty());
}

// Shows progress immediately and calls a function when its window handles events.
class AtProgress : public QObject
{
public:
    explicit AtProgress(std::function<void()> act) : m_act(std::move(act)) { qApp->installEventFilter(this); }

    bool eventFilter(QObject * watched, QEvent * event) override
    {
        auto * progress = qobject_cast<KVProgressDialog *>(watched);
        if (progress != nullptr && event->type() == QEvent::WindowTitleChange) {
            progress->setMinimumDuration(0);
            QTimer::singleShot(0, m_act);
        }
        return false;
    }

private:
    std::function<void()> m_act;
};

TEST_F(MainWindows, AreDeletedWhileTheyAskAndNothingIsDone)
{
    writeFile("autoMatrix/mine.json", R"({"template": [{"name": "mine", "prefix": {}, "suffix": {}}]})");
    struct
    {
        char const * what;
        std::function<void()> ask;
        int boxes;
    } const rows[] = {
        {"undo by its key",
         [this] { QTest::keyPress(window->windowHandle(), Qt::Key_Z, Qt::ControlModifier); }, 1},
        {"undo in the menu",
         [this] { window->menuBar()->actions()[1]->menu()->actions().front()->trigger(); }, 1},
        {"deleting a reference",
         [this] {
             find<QListWidget>("reference layers").item(0)->setCheckState(Qt::Checked);
             find<QPushButton>("add").click();
             auto & tree = find<QTreeWidget>("kept references");
             tree.setCurrentItem(tree.topLevelItem(0));
             find<QPushButton>("delete").click();
         },
         1},
        {"a template that stays",
         [this] {
             QFile::remove("autoMatrix/mine.json");
             QDir().mkpath("autoMatrix/mine.json");
             auto & page = find<QWidget>("templates");
             auto & list = *page.findChild<QTableWidget *>();
             list.selectRow(list.rowCount() - 1);
             buttonOf(page, "Delete").click();
         },
         1},
        {"files to attach", [this] { buttonOf(*board().openFeature(0), "Attach files").click(); }, 0},
        {"a file for the keys", [this] { buttonOf(*window->showKeys(), "Export...").click(); }, 0},
        {"a file for the report",
         [this] {
             window->results().runChecks();
             find<QPushButton>("report").click();
         },
         0},
        {"checks",
         [this] {
             AtProgress const filter([this] { window.reset(); });
             EXPECT_EQ(writeResults(window->results(), {}).errors, QStringList("the checks were stopped"));
         },
         0},
    };
    answer = [this] {
        window.reset();
        return Ext::MessageAnswer::Yes;
    };
    for (auto const & row : rows) {
        open();
        row.ask();
        EXPECT_EQ(takeBoxes().size(), row.boxes) << row.what;
        EXPECT_EQ(window == nullptr, row.boxes != 0 || row.what == QString("checks")) << row.what;
        bool const isAsking = QApplication::activeModalWidget() != nullptr;
        EXPECT_EQ(isAsking, window != nullptr) << row.what;
        window.reset();
        QApplication::processEvents();
    }
    EXPECT_EQ(getReferenceLayerInfo("demo-board", "pcb").size(), 1U);
}

} // namespace
