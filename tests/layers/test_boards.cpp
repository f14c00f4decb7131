// Real boards in the default engine; their layers were counted by hand.
#include "harness/SharedFolder.h"

#include <EmbeddedEngine.h>
#include <KVCAM_API.h>
#include <UIAPICommon.h>

#include <gtest/gtest.h>

using namespace KVCAM;

namespace {

using Request = QMap<QString, QString>;

std::string joined(std::vector<std::string> const & names)
{
    std::string text;
    for (std::string const & name : names) {
        text += (text.empty() ? "" : " ") + name;
    }
    return text;
}

std::vector<std::string> selected(char const * job, Request const & request)
{
    std::vector<std::string> names;
    UIAPI::UIAPICommonPara::instance()->selectLayersByType(job, names, request);
    return names;
}

struct Counts
{
    char const * job;
    std::size_t layers, signal, board, misc, negative, analysed;
    char const * top;
    char const * inner;
    char const * bottom;
};

void checkCounts(QString const & folder, Counts const & counts)
{
    char const * const job = counts.job;
    ASSERT_TRUE(API::open_job(folder.toStdString(), job)) << Embedded::lastError();
    EXPECT_EQ(selected(job, {}).size(), counts.layers);
    EXPECT_EQ(selected(job, {{"type", "signal"}}).size(), counts.signal);
    EXPECT_EQ(selected(job, {{"context", "board"}}).size(), counts.board);
    EXPECT_EQ(selected(job, {{"context", "misc"}}).size(), counts.misc);
    EXPECT_EQ(selected(job, {{"pos", "negative"}}).size(), counts.negative);
    EXPECT_EQ(selected(job, {{"pos", "positive"}}).size(), counts.layers - counts.negative);
    EXPECT_EQ(joined(selected(job, {{"side", "top"}})), counts.top);
    EXPECT_EQ(joined(selected(job, {{"side", "inner"}, {"pos", "positive"}})), counts.inner);
    EXPECT_EQ(joined(selected(job, {{"side", "bottom"}, {"type", "signal"}, {"context", "board"}})),
              counts.bottom);
    EXPECT_EQ(UIAPI::getAnalyzeAndDFMLayers(job, "pcb").size(), counts.analysed);
}

TEST(Boards, LayersOfTheSampleJob)
{
    // The board with inner and negative layers.
    checkCounts(UIAPI_SOURCE_DIR "/samples/jobs",
                {"demo-board", 25, 5, 23, 2, 1, 16, "top", "l3_sig l4_sig l5_sig", "bottom"});
    EXPECT_EQ(joined(selected("Demo-Board", {{"pos", "negative"}})), "l2_gnd");
    EXPECT_EQ(joined(selected("demo-board", {{"type", "drill|rout"}})),
              "drill_plated drill_non-plated slots outline");
    EXPECT_FALSE(UIAPI::Ext::explainLayerFilter("none", {}).result);
}

TEST(Boards, LayersOfRealBoards)
{
    QString const jobs = Testing::sharedPath("jobs");
    if (jobs.isEmpty()) {
        GTEST_SKIP() << "no boards at hand";
    }
    // Three signal layers: the middle one is not an inner layer.
    checkCounts(jobs, {"oc-breakout", 20, 3, 17, 3, 0, 12, "top", "", "bottom"});
    checkCounts(jobs, {"kicad-flat-hierarchy", 24, 2, 12, 12, 0, 10, "top_copper", "", "bottom_copper"});
}

TEST(Boards, UndoTakesARealDeletionBack)
{
    ASSERT_TRUE(API::open_job(UIAPI_SOURCE_DIR "/samples/jobs", "demo-board"));
    ASSERT_TRUE(Embedded::setSaveFlag(true)) << Embedded::lastError();
    auto features = [] { return Embedded::features("demo-board", "pcb", "top").size(); };
    std::size_t const all = features();
    ASSERT_TRUE(Embedded::deleteFeatures("demo-board", "pcb", "top", {0, 1}));
    ASSERT_TRUE(Embedded::deleteFeatures("demo-board", "pcb", "top", {2}));
    EXPECT_EQ(UIAPI::Ext::undoCount("Demo-Board", "PCB"), 2);

    QStringList boxes;
    UIAPI::Ext::MessageAnswer answer = UIAPI::Ext::MessageAnswer::No;
    UIAPI::Ext::setMessagePresenter([&](UIAPI::Ext::Message const & message) {
        boxes << message.text;
        return answer;
    });
    UIAPI::undo("Demo-Board", "PCB", nullptr);
    EXPECT_EQ(features(), all - 3);
    answer = UIAPI::Ext::MessageAnswer::Yes;
    for (std::size_t left : {2U, 0U, 0U}) {
        UIAPI::undo("Demo-Board", "PCB", nullptr);
        EXPECT_EQ(features(), all - left);
    }
    UIAPI::undo("none", "pcb", nullptr); // ends: it has no history to correct
    EXPECT_EQ(boxes.join('|').toStdString(),
              "Are you sure to cancel?|Are you sure to cancel?|Are you sure to cancel?|"
              "There are no revocable actions!|There are no revocable actions!");
    EXPECT_EQ(UIAPI::Ext::undoCount("demo-board", "pcb"), 0);
    UIAPI::Ext::setMessagePresenter({});
    EXPECT_TRUE(Embedded::setSaveFlag(false));
}

} // namespace
