#include "harness/UiapiTest.h"

#include "uiapi/UIAPICommonPara.h"
#include "uiapi/flat/References.h"

#include <algorithm>
#include <iterator>
#include <random>

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
    renameCompareJob("none", "x"); // had the read added a key, this would replace x
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
        char const * x = "own/a:l1"; // the owner x, whose name stands in the records of "own", too
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
             // Its list was empty before: it does not become so.
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

/// The tables as plain lists, changed at random together with the library's.
class RandomOperations
{
public:
    void step()
    {
        Name const a = name(), b = name(), c = name(), d = name(), e = name();
        switch (m_random() % 13) {
        case 0:
        case 1:
        case 2:
            return set(a, b);
        case 3:
            resetReferenceLayerInfo(a);
            return drop([&](Entry const & entry) { return entry.job == a; });
        case 4:
            renameReferenceJob(a, b, c);
            return change(a, nullptr, [&](auto & r) { r.job = r.job == b ? c : r.job; });
        case 5:
            renameReferenceStep(a, b, c, d);
            return change(a, nullptr, [&](auto & r) { r.step = r.job == b && r.step == c ? d : r.step; });
        case 6:
            renameReferenceLayer(a, b, c, d, e);
            return change(a, nullptr, [&](auto & r) {
                for (Name & layer : r.layers) {
                    layer = r.job == b && r.step == c && layer == d ? e : layer;
                }
            });
        case 7:
            deleteReferenceJob(a, b, c);
            return change(a, &b, [&](auto & r) { r.step = r.job == c ? gone : r.step; });
        case 8:
            deleteReferenceStep(a, b, c, d);
            return change(a, &b, [&](auto & r) { r.step = r.job == c && r.step == d ? gone : r.step; });
        case 9:
            deleteReferenceLayer(a, b, c, d, e);
            return change(a, &b, [&](auto & r) {
                while (r.job == c && r.step == d && std::count(r.layers.begin(), r.layers.end(), e) != 0) {
                    r.layers.erase(std::find(r.layers.begin(), r.layers.end(), e));
                    r.step = r.layers.empty() ? gone : r.step;
                }
            });
        case 10:
            renameCompareJob(a, b);
            return move([&](Entry const & entry) { return entry.job == a; },
                        [&](Entry const & entry) { return entry.job == b; }, &Entry::job, b);
        case 11:
            renameCompareStep(a, b, c);
            return move([&](Entry const & entry) { return entry.job == a && entry.step == b; },
                        [&](Entry const & entry) { return entry.job == a && entry.step == c; }, &Entry::step,
                        c);
        default:
            deleteCompareStep(a, b);
            return drop([&](Entry const & entry) { return entry.job == a && entry.step == b; });
        }
    }

    void compareWithTheLibrary() const
    {
        for (char const * job : names) {
            for (char const * step : names) {
                Records expected;
                for (Entry const & entry : m_entries) {
                    if (entry.job == job && entry.step == step) {
                        expected = entry.records;
                    }
                }
                ASSERT_EQ(at(job, step), shown(expected));
            }
        }
    }

private:
    struct Entry
    {
        Name job, step;
        Records records;
    };
    static constexpr char const * names[] = {"", "a", "b", "B"};
    static constexpr char const * gone = "(gone)"; // the step of a record that is to go
    static constexpr char const * mark = "(job)";  // a step of each job, which stays one without any other

    Name name() { return names[m_random() % std::size(names)]; }

    void set(Name const & job, Name const & step)
    {
        Records records;
        for (unsigned left = m_random() % 4; left > 0; --left) {
            records.push_back({name(), name(), std::vector<Name>(m_random() % 3, name())});
            records.back().layers.push_back(name());
        }
        setReferenceLayerInfo(job, step, records);
        drop([&](Entry const & entry) {
            return entry.job == job && (entry.step == step || entry.step == mark);
        });
        m_entries.push_back({job, step, records});
        m_entries.push_back({job, mark, {}});
    }

    template <class Matches>
    void drop(Matches const & matches)
    {
        m_entries.erase(std::remove_if(m_entries.begin(), m_entries.end(), matches), m_entries.end());
    }

    template <class Change>
    void change(Name const & job, Name const * step, Change const & change)
    {
        for (Entry & entry : m_entries) {
            if (entry.job == job && (step == nullptr || entry.step == *step)) {
                std::for_each(entry.records.begin(), entry.records.end(), change);
                entry.records.erase(std::remove_if(entry.records.begin(), entry.records.end(),
                                                   [](auto const & r) { return r.step == gone; }),
                                    entry.records.end());
            }
        }
    }

    template <class From, class To>
    void move(From const & from, To const & to, Name Entry::*member, Name const & name)
    {
        std::vector<Entry> moved;
        std::copy_if(m_entries.begin(), m_entries.end(), std::back_inserter(moved), from);
        if (!moved.empty()) {
            drop(from);
            drop(to);
            for (Entry & entry : moved) {
                entry.*member = name;
                m_entries.push_back(entry);
            }
        }
    }

    std::mt19937 m_random{static_cast<unsigned>(
        qEnvironmentVariableIsSet("UIAPI_FUZZ_SEED") ? qEnvironmentVariableIntValue("UIAPI_FUZZ_SEED") : 1)};
    std::vector<Entry> m_entries;
};

TEST_F(References, FuzzTheTablesAgreeWithPlainLists)
{
    int const count = qEnvironmentVariableIsSet("UIAPI_FUZZ_COUNT")
                          ? qEnvironmentVariableIntValue("UIAPI_FUZZ_COUNT")
                          : 5000;
    RandomOperations operations;
    for (int i = 0; i < count && !HasFatalFailure(); ++i) {
        SCOPED_TRACE(i);
        operations.step();
        operations.compareWithTheLibrary();
    }
}

} // namespace
