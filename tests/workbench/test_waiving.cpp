#include "TestFiles.h"
#include "checks/ResultsPage.h"
#include "checks/ResultsTree.h"
#include "checks/WaiveDialog.h"
#include "ui/LogPane.h"
#include "window/MainWindow.h"

#include <UIAPICommon.h>
#include <analysis/Waivers.h>

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QTableWidget>

using namespace KVCAM::UIAPI;
using namespace Workbench;

namespace {

// What the box of waivers shows, by row: state and reason.
QStringList shownWaivers(ResultsPage const & page)
{
    auto const & table = *page.findChild<QTableWidget *>("waivers");
    QStringList rows;
    for (int row = 0; row < table.rowCount(); ++row) {
        rows += table.item(row, 1)->text() + ": " + table.item(row, 4)->text();
    }
    return rows;
}

TEST(Waiving, TheWindowCountsApartWhatTheFileAccepts)
{
    writeFile("config/ranges/mine/SignalLayerRanges.json",
              R"({"rangesList": [{"name": "Lines", "RedLv": "4", "YellowLv": "5", "GreenLv": "6"}]})");
    writeJob("tiny", {{"SIGNAL", "TOP"}});
    writeFile("tiny/steps/pcb/layers/top/features",
              "UNITS=MM\n$0 r100\n$1 r127\nL 0 1 10 1 1 P 0\nL 0 0 10 0 0 P 0\n");
    writeFile("w.json", R"({"format": "report-waivers", "version": 1, "waivers": [
        {"id": "SignalLayerRanges/46/bot/0,0/-", "reason": "gone", "author": "me", "date": "2020-01-01"}]})");
    Session session;
    ASSERT_EQ(session.open(QDir().absoluteFilePath("tiny")), "");
    LogLines log;
    CommandLine const commandLine;
    MainWindow window(session, log, commandLine);
    ResultsPage & page = window.results();
    ASSERT_TRUE(page.runChecks());
    EXPECT_EQ(shownWaivers(page), QStringList());
    std::vector<Ext::Waiver> waivers;
    ASSERT_TRUE(Ext::readWaivers("w.json", waivers));
    page.setWaivers(waivers, QDir().absoluteFilePath("w.json"));
    EXPECT_EQ(shownWaivers(page), QStringList{"accepts nothing: gone"});
    QPushButton & button = *page.findChild<QPushButton *>("waive");

    // The red track is accepted; the dialog insists on a reason.
    ASSERT_TRUE(page.showCheck("SignalLayerRanges", 46));
    ASSERT_TRUE(button.isEnabled());
    button.click();
    auto * dialog = page.findChild<WaiveDialog *>();
    ASSERT_NE(dialog, nullptr);
    QPushButton & accept = *dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
    dialog->findChild<QLineEdit *>("author")->setText("me");
    EXPECT_FALSE(accept.isEnabled());
    dialog->findChild<QLineEdit *>("reason")->setText("coupon");
    dialog->findChild<QCheckBox *>("expires")->setChecked(true);
    accept.click();
    EXPECT_EQ(shownWaivers(page), (QStringList{"accepts nothing: gone", "waived: coupon"}));
    EXPECT_EQ(page.run().report().counts(), (Ext::SeverityCounts{0, 0, 1, 0}));
    EXPECT_EQ(page.run().report().waivedCounts(), (Ext::SeverityCounts{0, 0, 0, 1}));
    EXPECT_FALSE(button.isEnabled()) << "accepted already";

    // The file holds both, and a run without the window accepts the same.
    ASSERT_TRUE(Ext::readWaivers("w.json", waivers));
    ASSERT_EQ(waivers.size(), 2U);
    EXPECT_EQ(waivers[1].reason, "coupon");
    EXPECT_FALSE(waivers[1].expires.empty());
    AnalysisRun run(session);
    run.setWaivers(waivers);
    ASSERT_EQ(run.run("pcb"), AnalysisRun::Outcome::Done);
    EXPECT_EQ(run.report().waivedCounts(), page.run().report().waivedCounts());
}

} // namespace
