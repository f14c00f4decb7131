#include "TestFiles.h"
#include "job/RecentBoards.h"
#include "ui/FileDialogs.h"
#include "ui/LogPane.h"
#include "window/Desk.h"
#include "window/MainWindow.h"
#include "window/StartPage.h"

#include <EmbeddedEngine.h>
#include <UIAPICommon.h>

#include <QApplication>
#include <QDropEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPointer>
#include <QTest>
#include <QUrl>

using namespace KVCAM::UIAPI;
using namespace Workbench;

namespace {

using Jobs = std::vector<std::string>;

// Boards follow one another. Boxes are collected, not shown.
class Desks : public ::testing::Test
{
protected:
    void SetUp() override
    {
        Ext::setMessagePresenter([this](Ext::Message const & message) {
            boxes.append(message.text);
            return Ext::MessageAnswer::Yes;
        });
        writeJob(other, {{"SIGNAL", "TOP"}});
        writeFile(other + "/steps/pcb/layers/top/features", "UNITS=MM\n");
    }
    void TearDown() override { Ext::setMessagePresenter({}); }

    static CommandLine options()
    {
        CommandLine commandLine;
        commandLine.output = ".";
        return commandLine;
    }
    /// Whether the drop is accepted.
    static bool drop(QWidget & target, QList<QUrl> const & urls)
    {
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter(QPoint(5, 5), Qt::MoveAction | Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&target, &enter);
        QDropEvent event(QPointF(5, 5), Qt::MoveAction | Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&target, &event);
        EXPECT_EQ(enter.isAccepted(), event.isAccepted());
        EXPECT_TRUE(!event.isAccepted() || event.dropAction() == Qt::CopyAction);
        return event.isAccepted();
    }
    QString title() const { return desk.window()->windowTitle().section('[', 0, 0); }

    QString const other = QDir("boards/other").absolutePath();
    QStringList boxes;
    LogLines log;
    Desk desk{log, options(), "./state.ini"};
};

TEST_F(Desks, ABoardTakesThePlaceOfTheOneBefore)
{
    ASSERT_TRUE(desk.open(sampleJob));
    QPointer<MainWindow> const first = desk.window();
    first->resize(1100, 800);
    QSize const size = first->size(); // larger with large fonts

    EXPECT_FALSE(desk.open("./nowhere"));
    EXPECT_FALSE(desk.open(sampleJob, "nostep"));
    EXPECT_EQ(desk.window(), first);
    EXPECT_EQ(boxes.size(), 2) << "each says what is wrong, and the board stays";
    EXPECT_EQ(KVCAM::Embedded::openJobs(), Jobs{"demo-board"});

    EXPECT_FALSE(drop(*first, {QUrl("https://example.org/board.tgz")}));
    EXPECT_FALSE(drop(*first, {QUrl::fromLocalFile(other), QUrl::fromLocalFile(sampleJob)}));
    EXPECT_TRUE(drop(*first, {QUrl::fromLocalFile(other)}));
    ASSERT_TRUE(QTest::qWaitFor([&] { return first.isNull(); }));
    EXPECT_EQ(title(), "other");
    EXPECT_TRUE(desk.window()->windowTitle().contains('(' + QDir::toNativeSeparators(other) + ')'));
    EXPECT_TRUE(desk.window()->isVisible());
    EXPECT_EQ(desk.window()->size(), size);
    EXPECT_EQ(KVCAM::Embedded::openJobs(), Jobs{"other"});

    ASSERT_TRUE(desk.open(other)); // read again under the same name
    EXPECT_EQ(KVCAM::Embedded::openJobs(), Jobs{"other"});
    ASSERT_TRUE(desk.open(sampleJob));
    EXPECT_EQ(title(), "demo-board");
    EXPECT_EQ(recentBoards("./state.ini"), (QStringList{sampleJob, other}));
    EXPECT_EQ(boxes.size(), 2);
}

TEST_F(Desks, TheDialogTakesTheFolderOfABoardAndEntersOthers)
{
    desk.showStart();
    QWidget * page = QApplication::topLevelWidgets().value(0);
    QString taken;
    auto const front = [] { return qobject_cast<QFileDialog *>(QApplication::activeModalWidget()); };
    auto const ask = [&] {
        taken.clear();
        askForBoard(*page, other, [&taken](QString const & path) { taken = path; });
        return front();
    };
    QFileDialog * dialog = ask();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->directory().absolutePath(), QFileInfo(other).absolutePath());
    dialog->setDirectory(QDir::rootPath());
    dialog->findChild<QLineEdit *>("fileNameEdit")->setText(other);
    static_cast<QDialog *>(dialog)->accept(); // what Return does
    EXPECT_TRUE(QTest::qWaitFor([&] { return taken == other; }));
    ASSERT_NE(dialog = ask(), nullptr);
    dialog->setDirectory(QFileInfo(other).absoluteDir().absolutePath() + "/..");
    dialog->selectFile("boards");
    QMetaObject::invokeMethod(dialog, "onChoice");
    EXPECT_EQ(taken, QString());
    ASSERT_TRUE(front() != nullptr && front() != dialog) << "asked again";
    EXPECT_EQ(front()->directory().absolutePath(), QFileInfo(other).absolutePath());
    front()->reject();
}

TEST_F(Desks, TheStartPageOffersTheBoardsOpenedLately)
{
    for (int i = 0; i < 12; ++i) {
        keepRecentBoard("./state.ini", QString::number(i));
    }
    keepRecentBoard("./state.ini", other);
    desk.showStart();
    EXPECT_EQ(desk.window(), nullptr);
    StartPage * page = nullptr;
    for (QWidget * widget : QApplication::topLevelWidgets()) {
        page = page == nullptr ? qobject_cast<StartPage *>(widget) : page;
    }
    ASSERT_NE(page, nullptr);
    auto & list = *page->findChild<QListWidget *>("recent");
    ASSERT_EQ(list.count(), 10);
    emit list.itemActivated(list.item(1));
    EXPECT_EQ(boxes.size(), 1) << "a board that is gone";
    EXPECT_TRUE(page->isVisible());
    emit list.itemActivated(list.item(0));
    EXPECT_EQ(title(), "other");
    EXPECT_FALSE(page->isVisible());
}

} // namespace
