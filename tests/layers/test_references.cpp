#include "harness/UiapiTest.h"

#include "uiapi/UIAPICommonPara.h"
#include "uiapi/flat/References.h"

using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {

using Name = std::string;
using Records = std::vector<ReferenceLayerInfo>;
using Drawings = std::vector<std::pair<Name, int>>;

/// "job/step:layer,layer" for each record.
std::string shown(Records const & records)
{
    std::string text;
    for (ReferenceLayerInfo const & record : records) {
        text += (text.empty() ? "" : " ") + record.job + "/" + record.step + ":";
        for (std::size_t i = 0; i < record.layers.size(); ++i) {
            text += (i == 0 ? "" : ",") + record.layers[i];
        }
    }
    return text;
}

std::string at(Name const & job, Name const & step)
{
    return shown(getReferenceLayerInfo(job, step));
}

class References : public UiapiTest
{
protected:
    static void fill()
    {
        setReferenceLayerInfo("own", "a",
                              {{"x", "s", {"l1", "l2", "l1"}}, {"y", "s", {"l1"}}, {"x", "t", {}}});
        setReferenceLayerInfo("own", "b", {{"x", "s", {"l1"}}});
        setReferenceLayerInfo("x", "s", {{"own", "a", {"l1"}}});
    }
};

TEST_F(References, ASetReplacesAndAReadAddsNoKey)
{
    EXPECT_EQ(at("own", "a"), "");
    fill();
    setReferenceLayerInfo("own", "a", {{"z", "s", {"l"}}});
    EXPECT_EQ(at("own", "a"), "z/s:l");
    EXPECT_EQ(at("own", "A") + at("OWN", "a") + at("none", "a"), "");
    renameCompareJob("none", "x"); // if reading had added a key, this would replace x
    EXPECT_EQ(at("x", "s"), "own/a:l1");
    resetReferenceLayerInfo("own");
    resetReferenceLayerInfo("none");
    EXPECT_EQ(at("own", "a") + at("own", "b"), "");
    EXPECT_EQ(at("x", "s"), "own/a:l1");
}

TEST_F(References, EachChangeReachesTheRecordsItNames)
{
    struct Row
    {
        void (*change)();
        char const * a;
        char const * b;
        char const * x = "own/a:l1"; // the owner x, whose name also occurs in the records of "own"
    };
    char const * const a = "x/s:l1,l2,l1 y/s:l1 x/t:";
    char const * const b = "x/s:l1";
    int number = 0;
    for (Row const & row : {
             Row{[] { renameReferenceJob("own", "x", "y"); }, "y/s:l1,l2,l1 y/s:l1 y/t:", "y/s:l1"},
             Row{[] { renameReferenceJob("own", "own", "y"); }, a, b},
             Row{[] { renameReferenceJob("none", "x", "y"); }, a, b},
             Row{[] { renameReferenceStep("own", "x", "s", "t"); }, "x/t:l1,l2,l1 y/s:l1 x/t:", "x/t:l1"},
             Row{[] { renameReferenceStep("own", "z", "s", "t"); }, a, b},
             Row{[] { renameReferenceLayer("own", "x", "s", "l1", "l2"); },
                 "x/s:l2,l2,l2 y/s:l1 x/t:", "x/s:l2"},
             Row{[] { renameReferenceLayer("own", "x", "t", "l1", "l2"); }, a, b},
             Row{[] { deleteReferenceJob("own", "a", "x"); }, "y/s:l1", b},
             Row{[] { deleteReferenceJob("own", "none", "x"); }, a, b},
             Row{[] { deleteReferenceStep("own", "a", "x", "s"); }, "y/s:l1 x/t:", b},
             Row{[] { deleteReferenceStep("none", "a", "x", "s"); }, a, b},
             Row{[] { deleteReferenceLayer("own", "a", "x", "s", "l1"); }, "x/s:l2 y/s:l1 x/t:", b},
             Row{[] { deleteReferenceLayer("own", "a", "y", "s", "l1"); }, "x/s:l1,l2,l1 x/t:", b},
             // Its list was already empty and so did not become empty.
             Row{[] { deleteReferenceLayer("own", "a", "x", "t", "l1"); }, a, b},
             Row{[] { renameCompareStep("own", "a", "b"); }, "", a},
             Row{[] { renameCompareStep("own", "a", "a"); }, a, b},
             Row{[] { renameCompareStep("own", "none", "b"); }, a, b},
             Row{[] { renameCompareStep("none", "a", "b"); }, a, b},
             Row{[] { renameCompareJob("own", "own"); }, a, b},
             Row{[] { renameCompareJob("own", "x"); }, "", "", ""},
             Row{[] { renameCompareJob("x", "own"); }, "", "", ""},
             Row{[] { deleteCompareStep("own", "a"); }, "", b},
             Row{[] { deleteCompareStep("own", "none"); }, a, b},
         }) {
        SCOPED_TRACE(number++);
        resetReferenceLayerInfo("x");
        resetReferenceLayerInfo("own");
        fill();
        row.change();
        EXPECT_EQ(at("own", "a"), row.a);
        EXPECT_EQ(at("own", "b"), row.b);
        EXPECT_EQ(at("x", "s"), row.x);
    }
    renameCompareJob("x", "y");
    renameCompareJob("own", "x");
    EXPECT_EQ(at("x", "a"), a);
    EXPECT_EQ(at("y", "s"), "own/a:l1");
    EXPECT_EQ(log.take(), Lines{});
    EXPECT_EQ(engine.take(), Lines{});
}

TEST_F(References, DrawingLayersAreKeptForEachStep)
{
    setDrawingLayer("j", "a", {{"l", 1}, {"l", -2}});
    setDrawingLayer("j", "b", {{"m", 3}});
    setDrawingLayer("k", "a", {{"n", 4}});
    setDrawingLayer("j", "b", {});
    EXPECT_EQ(getDrawingLayer("j", "a"), (Drawings{{"l", 1}, {"l", -2}}));
    EXPECT_EQ(getDrawingLayer("j", "b"), Drawings{});
    EXPECT_EQ(getDrawingLayer("none", "a"), Drawings{});
    resetDrawingLayer("none");
    resetDrawingLayer("j");
    EXPECT_EQ(getDrawingLayer("j", "a"), Drawings{});
    EXPECT_EQ(getDrawingLayer("k", "a"), (Drawings{{"n", 4}}));
}

TEST_F(References, TheJobTextIsOneForAllJobsAndACopyOfTheTablesIsDetached)
{
    auto & para = *UIAPICommonPara::instance();
    EXPECT_EQ(para.getJobJsonPara("a"), "");
    para.setJobJsonPara("a", "{}");
    EXPECT_EQ(para.getJobJsonPara("b"), "{}");
    fill();
    setDrawingLayer("own", "a", {{"l", 1}});
    auto & copy = *new UIAPICommonPara(para); // cannot be destroyed
    copy.resetReferenceLayerInfo("own");
    copy.resetDrawingLayer("own");
    copy.setJobJsonPara("a", "[]");
    copy.setWorkLayer("w");
    EXPECT_EQ(at("own", "b"), "x/s:l1");
    EXPECT_EQ(getDrawingLayer("own", "a"), (Drawings{{"l", 1}}));
    EXPECT_EQ(para.getJobJsonPara({}), "{}");
    std::vector<Name> affected;
    para.getAffectLayers(affected);
    EXPECT_EQ(affected, std::vector<Name>{""});
    static auto * const kept = &copy; // no leak
    EXPECT_NE(kept, nullptr);
}

} // namespace
