#include "TestFiles.h"
#include "job/JobLoading.h"
#include "job/ReadingProgress.h"
#include "job/Session.h"
#include "ui/LogPane.h"
#include "window/Desk.h"
#include "window/MainWindow.h"

#include <EmbeddedEngine.h>
#include <UIAPICommon.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QTest>
#include <QTimer>

#include <functional>

using namespace KVCAM;
using namespace KVCAM::UIAPI;
using namespace Workbench;

namespace {

KVProgressDialog * shownDialog()
{
    for (QWidget * widget : QApplication::topLevelWidgets()) {
        if (auto * dialog = qobject_cast<KVProgressDialog *>(widget);
            dialog != nullptr && dialog->isVisible()) {
            return dialog;
        }
    }
    return nullptr;
}

// The slowest there is to read; it takes no memory beside its own.
QByteArray const blankLines(60'000'000, '\n');

// A board with a large layer and a small one.
class LargeBoard : public ::testing::Test
{
protected:
    void SetUp() override
    {
        writeJob(path, {{"SIGNAL", "LARGE"}, {"SIGNAL", "SMALL"}});
        writeFile(path + "/steps/pcb/layers/small/features", "$0 r10\nP 1 2 0 P 0 0\n");
        writeFile(path + "/steps/pcb/layers/large/features", blankLines);
        looks.setInterval(10);
        QObject::connect(&looks, &QTimer::timeout, [this] {
            if (KVProgressDialog * const dialog = shownDialog(); dialog != nullptr && stop && ++seen == 3) {
                sinceStop.start();
                stop(*dialog);
            }
        });
        looks.start();
        time.start();
    }

    QString const path = QDir("boards/large").absolutePath();
    QTimer looks; // which come only while events are handled
    std::function<void(KVProgressDialog &)> stop;
    int seen = 0;
    QElapsedTimer time;
    QElapsedTimer sinceStop;
};

TEST(Nets, AreReadWithTheLayers)
{
    QString const path = QDir("boards/nets").absolutePath();
    writeJob(path, {{"SIGNAL", "TOP"}});
    writeFile(path + "/steps/pcb/layers/top/features", "$0 r10\nP 1 2 0 P 0 0\n");
    writeFile(path + "/steps/pcb/eda/data", "LYR top\nNET a\nFID C 0 0\n");
    Session session;
    ASSERT_EQ(session.open(path), "");
    EXPECT_TRUE(readLayers(session));
    writeFile(path + "/steps/pcb/eda/data", "");
    EXPECT_EQ(Embedded::featureNet("nets", "pcb", "top", 0), "a");
}

TEST_F(LargeBoard, CanBeStoppedWithinOneFile)
{
    struct Row
    {
        char const * what;
        std::function<void(KVProgressDialog &)> stop;
        bool isQuit;
    };
    for (Row const & row : {Row{"its button", [](auto & dialog) { buttonOf(dialog, "Stop").click(); }, false},
                            Row{"F1", [](auto & dialog) { QTest::keyClick(&dialog, Qt::Key_F1); }, false},
                            Row{"closing it", [](auto & dialog) { dialog.close(); }, false},
                            Row{"the end of the program", [](auto &) { QCoreApplication::exit(0); }, true}}) {
        Session session;
        ASSERT_EQ(session.open(path), "");
        stop = row.stop;
        seen = 0;
        time.restart();
        {
            ReadingProgress progress("Opening");
            EXPECT_FALSE(readLayers(session, progress)) << row.what;
            EXPECT_LT(sinceStop.elapsed(), 100) << row.what;
            EXPECT_EQ(shownDialog(), nullptr) << row.what;
            EXPECT_EQ(progress.isQuit(), row.isQuit) << row.what;
        }
        EXPECT_GE(time.elapsed() - sinceStop.elapsed(), 300) << "the dialog comes late";
        EXPECT_EQ(session.layers()[0].features.size(), 0) << "not counted";
        EXPECT_EQ(session.firstCopperLayer("pcb"), -1) << "none has been read";
    }
}

TEST_F(LargeBoard, IsShownWithWhatWasReadAndOneThatIsNotOpenNotAtAll)
{
    QString const slow = QDir("boards/slow").absolutePath();
    writeJob(slow, {{"SIGNAL", "TOP"}});
    writeFile(slow + "/steps/pcb/layers/top/features", "");
    writeFile(slow + "/steps/pcb/profile", blankLines);
    int boxes = 0;
    Ext::setMessagePresenter([&boxes](Ext::Message const &) { return ++boxes, Ext::MessageAnswer::Ok; });
    LogLines log;
    Desk desk(log, {}, "./state.ini");
    ASSERT_TRUE(desk.open(sampleJob));
    stop = [&](KVProgressDialog & dialog) {
        EXPECT_FALSE(desk.open(sampleJob)) << "one after the other";
        EXPECT_TRUE(desk.window()->isVisible());
        EXPECT_EQ(QApplication::activeModalWidget(), &dialog) << "so nobody can close the window";
        dialog.cancel();
    };
    EXPECT_FALSE(desk.open(slow));
    EXPECT_EQ(seen, 3);
    EXPECT_EQ(Embedded::openJobs(), std::vector<std::string>{"demo-board"});

    seen = 0;
    EXPECT_TRUE(desk.open(path));
    EXPECT_EQ(seen, 3);
    EXPECT_EQ(Embedded::openJobs(), std::vector<std::string>{"large"});
    EXPECT_EQ(boxes, 0);
    Ext::setMessagePresenter({});
}

} // namespace
