#include "harness/UiapiTest.h"

#include "uiapi/UIAPICommonPara.h"
#include "uiapi/flat/References.h"

#include <algorithm>
#include <random>
#include <tuple>

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

class References : public UiapiTest
{
protected:
    static std::string at(Name const & job, Name const & step)
    {
        return shown(getReferenceLayerInfo(job, step));
    }

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

/// The tables as plain lists.
class Model
{
public:
    struct Entry
    {
        Name job, step;
        Records records;
    };
    std::vector<Entry> entries;
    std::vector<std::tuple<Name, Name, Drawings>> drawings;

    template <class Matches>
    void drop(Matches const & matches)
    {
        entries.erase(std::remove_if(entries.begin(), entries.end(), matches), entries.end());
    }
    void set(Name const & job, Name const & step, Records const & records)
    {
        drop([&](Entry const & entry) { return entry.job == job && entry.step == step; });
        entries.push_back({job, step, records});
    }
    Records get(Name const & job, Name const & step) const
    {
        for (Entry const & entry : entries) {
            if (entry.job == job && entry.step == step) {
                return entry.records;
            }
        }
        return {};
    }
    bool has(Name const & job) const
    {
        return std::any_of(entries.begin(), entries.end(),
                           [&](Entry const & entry) { return entry.job == job; });
    }
};

class RandomOperations
{
public:
    void step()
    {
        Name const a = name(), b = name(), c = name(), d = name(), e = name();
        switch (m_random() % 13) {
        case 0:
        case 1: {
            Records records;
            for (unsigned left = m_random() % 4; left > 0; --left) {
                records.push_back({name(), name(), {}});
                for (unsigned layers = m_random() % 4; layers > 0; --layers) {
                    records.back().layers.push_back(name());
                }
            }
            setReferenceLayerInfo(a, b, records);
            return m_model.set(a, b, records);
        }
        case 2:
            if (m_random() % 4 == 0) {
                resetReferenceLayerInfo(a);
                m_jobs.erase(std::remove(m_jobs.begin(), m_jobs.end(), a), m_jobs.end());
                m_model.drop([&](auto const & entry) { return entry.job == a; });
            }
            return;
        case 3:
            renameReferenceJob(a, b, c);
            return ofJob(a, [&](auto & record) { record.job = record.job == b ? c : record.job; });
        case 4:
            renameReferenceStep(a, b, c, d);
            return ofJob(a, [&](auto & record) {
                if (record.job == b && record.step == c) {
                    record.step = d;
                }
            });
        case 5:
            renameReferenceLayer(a, b, c, d, e);
            return ofJob(a, [&](auto & record) {
                for (Name & layer : record.layers) {
                    layer = record.job == b && record.step == c && layer == d ? e : layer;
                }
            });
        case 6:
            deleteReferenceJob(a, b, c);
            return keepIn(a, b, [&](auto & record) { return record.job != c; });
        case 7:
            deleteReferenceStep(a, b, c, d);
            return keepIn(a, b, [&](auto & record) { return record.job != c || record.step != d; });
        case 8:
            deleteReferenceLayer(a, b, c, d, e);
            return keepIn(a, b, [&](auto & record) {
                std::vector<Name> left;
                for (Name const & layer : record.layers) {
                    if (record.job != c || record.step != d || layer != e) {
                        left.push_back(layer);
                    }
                }
                bool const becomesEmpty = left.empty() && !record.layers.empty();
                record.layers = left;
                return !becomesEmpty;
            });
        default:
            return compareStep(a, b, c);
        }
    }

    void compareWithTheLibrary() const
    {
        for (char const * job : names) {
            for (char const * step : names) {
                ASSERT_EQ(shown(getReferenceLayerInfo(job, step)), shown(m_model.get(job, step)));
                Drawings expected;
                for (auto const & [ownJob, ownStep, list] : m_model.drawings) {
                    if (ownJob == job && ownStep == step) {
                        expected = list;
                    }
                }
                ASSERT_EQ(getDrawingLayer(job, step), expected);
            }
        }
    }

private:
    static constexpr char const * names[] = {"", "a", "b", "B"};

    Name name() { return names[m_random() % std::size(names)]; }

    template <class Change>
    void ofJob(Name const & job, Change const & change)
    {
        for (auto & entry : m_model.entries) {
            if (entry.job == job) {
                std::for_each(entry.records.begin(), entry.records.end(), change);
            }
        }
    }

    template <class Keep>
    void keepIn(Name const & job, Name const & step, Keep const & keep)
    {
        for (auto & entry : m_model.entries) {
            if (entry.job == job && entry.step == step) {
                Records kept;
                for (ReferenceLayerInfo record : entry.records) {
                    if (keep(record)) {
                        kept.push_back(record);
                    }
                }
                entry.records = kept;
            }
        }
    }

    void compareStep(Name const & a, Name const & b, Name const & c)
    {
        switch (m_random() % 5) {
        case 0: {
            renameCompareJob(a, b);
            bool const known = m_model.has(a) || std::count(m_jobs.begin(), m_jobs.end(), a) != 0;
            if (a != b && known) {
                m_model.drop([&](auto const & entry) { return entry.job == b; });
                for (auto & entry : m_model.entries) {
                    entry.job = entry.job == a ? b : entry.job;
                }
                std::replace(m_jobs.begin(), m_jobs.end(), a, b);
            }
            return;
        }
        case 1: {
            renameCompareStep(a, b, c);
            auto const isOld = [&](auto const & entry) { return entry.job == a && entry.step == b; };
            auto const & entries = m_model.entries;
            if (b != c && std::any_of(entries.begin(), entries.end(), isOld)) {
                m_model.drop([&](auto const & entry) { return entry.job == a && entry.step == c; });
                std::find_if(m_model.entries.begin(), m_model.entries.end(), isOld)->step = c;
            }
            return;
        }
        case 2:
            deleteCompareStep(a, b);
            if (m_model.has(a)) {
                m_jobs.push_back(a); // a job without steps is still one
            }
            return m_model.drop([&](auto const & entry) { return entry.job == a && entry.step == b; });
        case 3:
            if (m_random() % 4 == 0) {
                resetDrawingLayer(a);
                auto & rows = m_model.drawings;
                rows.erase(std::remove_if(rows.begin(), rows.end(),
                                          [&](auto const & row) { return std::get<0>(row) == a; }),
                           rows.end());
            }
            return;
        default:
            Drawings const list(m_random() % 3, {c, int(m_random() % 9)});
            setDrawingLayer(a, b, list);
            m_model.drawings.emplace_back(a, b, list); // the latest counts
            return;
        }
    }

    std::mt19937 m_random{static_cast<unsigned>(
        qEnvironmentVariableIsSet("UIAPI_FUZZ_SEED") ? qEnvironmentVariableIntValue("UIAPI_FUZZ_SEED") : 1)};
    Model m_model;
    std::vector<Name> m_jobs; // those that may have no steps
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
