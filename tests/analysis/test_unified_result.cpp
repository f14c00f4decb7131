#include "CheckEntries.h"
#include "harness/UiapiTest.h"

#include "analysis/BoundedMergeSort.h"
#include "analysis/CheckOrder.h"
#include "analysis/UnifiedResultStore.h"
#include "analysis/Unified_AnalysisResult.h"
#include "checks/CheckReply.h"

#include <json/reader.h>
#include <json/value.h>

#include <QCryptographicHash>

#include <algorithm>
#include <limits>
#include <map>
#include <random>
#include <sstream>

using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {

constexpr int least = std::numeric_limits<int>::min();
constexpr int largest = std::numeric_limits<int>::max();

using Answer = std::vector<std::pair<std::string, Entries>>;
using Layers = std::map<std::string, unified_check_result>;

class UnifiedResultTest : public UiapiTest
{
protected:
    Unified_AnalysisResult & result = *Unified_AnalysisResult::instance();

    std::vector<int> filed(int item, int group, std::string const & layer = "top")
    {
        Answer answer;
        EXPECT_TRUE(result.getUnifiedResult(static_cast<unified_check_items>(item), group, answer));
        for (auto const & [name, entries] : answer) {
            if (name == layer) {
                return valuesOf(entries);
            }
        }
        return {-1};
    }

    /// Expects the checks of each item, as number and group, in the first `groups` groups only.
    void expectFiled(std::string const & layer, std::map<int, std::vector<int>> const & checks, int groups)
    {
        for (int item = 0; item < 60; ++item) {
            for (int group = 0; group < 4; ++group) {
                std::vector<int> expected(checks.count(item) == 0 ? 1 : 0, -1);
                for (int const check :
                     checks.count(item) != 0 && group < groups ? checks.at(item) : std::vector<int>{}) {
                    expected.push_back(check * 10 + group);
                }
                EXPECT_EQ(filed(item, group, layer), expected) << item << ' ' << group;
            }
        }
    }

    /// The summary's rows.
    Json::Value summary()
    {
        std::string text = "before";
        result.jsonoutput(text);
        Json::Value document;
        std::istringstream(text) >> document;
        return document;
    }

    /// "layer=value" of each element of a row's result.
    static std::vector<std::string> entriesOf(Json::Value const & row)
    {
        std::vector<std::string> out;
        for (Json::Value const & entry : (*row.begin())["result"]) {
            out.push_back(entry["layername"].asString() + "=" + entry["value"].asString());
        }
        return out;
    }
};

TEST_F(UnifiedResultTest, TheFirstsKindChoosesThePointOfBoth)
{
    struct Row
    {
        check_info a, b;
        bool expected;
    };
    // Less only at the relevant point, more at every other.
    auto const less = [](std::size_t point, int value, int others) {
        std::vector<int> points(8, others);
        points[point] = value;
        return points;
    };
    std::vector<Row> rows;
    for (auto const & [kind, point] : std::map<int, std::size_t>{{0, 2}, {1, 4}, {2, 4}, {3, 6}, {5, 2}}) {
        std::vector<int> const low = less(point, 1, 9);
        std::vector<int> const high = less(point, 2, 0);
        rows.push_back({{kind, 0, low}, {kind, 0, high}, true});
        rows.push_back({{kind, 0, high}, {kind, 0, low}, false});
        rows.push_back({{kind, 0, low}, {kind, 0, low}, false});
        rows.push_back({{kind, 0, {}}, {kind, 0, high}, false});
        rows.push_back({{kind, 0, less(point, -1, 0)}, {kind, 0, {0, 0}}, false}); // a missing point is not 0
    }
    std::vector<int> const low(8, 1);
    std::vector<int> const high(8, 2);
    for (int const kind : {-1, 4, 6, 100, least}) {
        rows.push_back({{kind, 0, high}, {0, 0, low}, true});
        rows.push_back({{kind, 0, {}}, {kind, 0, {}}, true});
        rows.push_back({{0, 0, high}, {kind, 0, low}, false});
    }
    rows.push_back({{0, 0, {0, 0, 1}}, {3, 0, {0, 0, 2, 0, 0, 0, 0, 0}}, true});
    rows.push_back({{3, 0, {0, 0, 1, 0, 0, 0, 1, 0}}, {0, 0, {0, 0, 2}}, false});
    rows.push_back({{5, 0, {0, 0, 3, 1}}, {5, 0, {0, 0, 2, 2}}, false}); // not the smaller of the two
    rows.push_back({{1, 0, {0, 0, 0, 0, least}}, {1, 0, {0, 0, 0, 0, largest}}, true});
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(goesBefore(rows[i].a, rows[i].b), rows[i].expected) << i;
    }
}

// Whatever the kinds: the same as sorting with the comparison itself, and no entry lost or doubled. The first
// run mixes kinds, the second has one kind with points missing, the third one kind only.
TEST_F(UnifiedResultTest, EntriesAreMergedByTheComparison)
{
    std::mt19937 random(2);
    std::vector<int> const sizes{least, -70000, -1, 0, 1, 2047, 2048, 1 << 22, largest};
    for (std::size_t run = 0; run < 200; ++run) {
        Entries entries(run < 3 ? 3000 : random() % 40);
        for (std::size_t i = 0; i < entries.size(); ++i) {
            entries[i].type = run == 1 || run == 2 ? 1 : static_cast<int>(random() % 9) - 2;
            entries[i].value = static_cast<int>(i);
            entries[i].points.resize(run == 2 ? 5 : random() % 9);
            for (int & point : entries[i].points) {
                point = run == 2 ? sizes[random() % sizes.size()] : static_cast<int>(random() % 4);
            }
        }
        auto const middle = entries.begin() + static_cast<std::ptrdiff_t>(entries.size() / 3);
        Entries const first(entries.begin(), middle);
        Entries const second(middle, entries.end());
        Entries expected = entries;
        boundedMergeSort(expected, goesBefore);
        EXPECT_EQ(valuesOf(sortedByMeasure({&first, &second})), valuesOf(expected)) << run;
        std::vector<int> values = valuesOf(expected);
        std::sort(values.begin(), values.end());
        EXPECT_EQ(values, valuesOf(entries));
    }
}

// A comparison that is always true, never true, or different each time.
TEST_F(UnifiedResultTest, NoComparisonLosesAnElement)
{
    std::mt19937 random(3);
    for (std::size_t count = 0; count < 70; ++count) {
        std::vector<std::string> items(count);
        std::generate(items.begin(), items.end(), [i = 0]() mutable { return std::to_string(i++); });
        auto const sorted = [](std::vector<std::string> list, auto before) {
            boundedMergeSort(list, before);
            return list;
        };
        EXPECT_EQ(sorted(items, [](auto const &, auto const &) { return false; }), items);
        auto const turned = sorted(items, [](auto const &, auto const &) { return true; });
        EXPECT_TRUE(std::equal(turned.rbegin(), turned.rend(), items.begin(), items.end())) << count;
        auto const anyhow = sorted(items, [&](auto const &, auto const &) { return random() % 2 == 0; });
        EXPECT_TRUE(std::is_permutation(anyhow.begin(), anyhow.end(), items.begin(), items.end())) << count;
    }
}

TEST_F(UnifiedResultTest, EveryDrillCheckHasItsItem)
{
    std::map<std::string, check_reply<drill_check_item, check_info>> replies;
    for (int item = 0; item < 60; ++item) {
        for (int level = -1; level < 5; ++level) {
            replies["drl"].add(drillItem(item), level, {1, item * 10 + level, {0, 0, 0, 0, 7}});
        }
    }
    ASSERT_TRUE(result.setDrillCheckResult(replies));
    expectFiled("drl", {{9, {2, 1}}, {39, {28, 34}}, {40, {29, 35}}}, 3);
}

TEST_F(UnifiedResultTest, EverySignalCheckHasItsItem)
{
    std::map<std::string, std::map<signal_layers_checks_items, signal_check_result>> replies;
    for (int item = 0; item < 90; ++item) {
        for (int group = 0; group < 4; ++group) {
            replies["top"][signalItem(item)].lists[static_cast<std::size_t>(group)] = {
                {3, item * 10 + group, {0, 0, 0, 0, 0, 0, 7, 0}}};
        }
    }
    replies["bare"]; // a layer without checks gets empty entries
    ASSERT_TRUE(result.setSignalLayerCheckResult(replies));
    EXPECT_TRUE(replies["bare"].empty()) << "the reply is left as it is";
    std::map<int, std::vector<int>> const checks{{4, {46}},      {5, {3}},           {6, {45}},
                                                 {7, {12}},      {11, {33, 31, 36}}, {12, {14, 15}},
                                                 {13, {26, 29}}, {14, {43}},         {26, {4}}};
    expectFiled("top", checks, 4);
    expectFiled("bare", checks, 0);
}

TEST_F(UnifiedResultTest, SettersReplaceByLayerAndTheRestByItem)
{
    std::map<std::string, std::map<signal_layers_checks_items, signal_check_result>> replies;
    replies["top"][signalItem(46)].lists[0] = {{1, 8, {0, 0, 0, 0, 8}}, {1, 5, {0, 0, 0, 0, 5}}};
    replies["bot"][signalItem(46)].lists[0] = {{1, 3, {0, 0, 0, 0, 3}}};
    result.setSignalLayerCheckResult(replies);
    replies.erase("bot");
    replies["top"][signalItem(46)].lists[0].pop_back();
    result.setSignalLayerCheckResult(replies);
    EXPECT_EQ(filed(4, 0), std::vector<int>{8});
    EXPECT_EQ(filed(4, 0, "bot"), std::vector<int>{3});

    std::map<unified_check_items, Layers> rest;
    rest[UNIFIED_LINES]["new"].groups[1] = {{1, 9, {0, 0, 0, 0, 9}}, {1, 2, {0, 0, 0, 0, 2}}};
    rest[static_cast<unified_check_items>(-77)]["x"].groups[3] = {{0, 4, {}}};
    EXPECT_TRUE(result.setRestResult(rest));
    EXPECT_EQ(filed(4, 1, "new"), (std::vector<int>{9, 2})) << "stored as given";
    EXPECT_EQ(filed(4, 0), std::vector<int>{-1}) << "the item's other layers are gone";
    EXPECT_EQ(filed(-77, 3, "x"), std::vector<int>{4});

    UnifiedResultStore store;
    EXPECT_FALSE(store.hasDrill() || store.hasSignal());
    store.fileSignal({});
    EXPECT_TRUE(store.hasSignal() && !store.hasDrill());
    store.fileDrill({});
    EXPECT_TRUE(store.hasDrill());
}

TEST_F(UnifiedResultTest, AQueryIsOrderedByRow)
{
    std::map<unified_check_items, Layers> rest;
    for (char const * layer : {"bot", "l2", "top", "x", "y"}) {
        rest[UNIFIED_PADS][layer].groups[2] = {{}};
    }
    result.setRestResult(rest);
    auto const order = [&](Answer answer = {}) {
        EXPECT_TRUE(result.getUnifiedResult(UNIFIED_PADS, 2, answer));
        std::string names;
        for (auto const & entry : answer) {
            names += entry.first + ' ';
        }
        return names;
    };
    // "Less than or equal": layers with equal rows, here unlisted ones, swap.
    EXPECT_EQ(order(), "y x top l2 bot ");
    result.setLayerInfo({{"board", "signal", "y", "POS", 1}}); // will be replaced
    result.setLayerInfo({{"board", "signal", "top", "POS", 1},
                         {"board", "signal", "bot", "POS", 4},
                         {"board", "signal", "l2", "POS", 3},
                         {"board", "signal", "top", "POS", 9},
                         {"board", "signal", "X", "POS", 2}});
    EXPECT_EQ(order(), "y x top l2 bot ") << "unlisted ones first; the first of a name counts";
    EXPECT_EQ(order({{"bot", {}}, {"before", {}}, {"top", {}}}), "y x before top top l2 bot bot ")
        << "what was there is sorted too";
    Answer unfiled{{"bot", {}}, {"top", {}}};
    EXPECT_TRUE(result.getUnifiedResult(static_cast<unified_check_items>(999), 0, unfiled));
    EXPECT_EQ(unfiled[0].first, "top") << "also where the item was never filed";
    for (int const group : {-1, 4, least, largest}) {
        Answer answer{{"top", {}}, {"a", {}}};
        EXPECT_TRUE(result.getUnifiedResult(UNIFIED_PADS, group, answer));
        EXPECT_EQ(answer.size(), 2U);
        EXPECT_EQ(answer[0].first, "top") << "untouched";
    }
    Answer many; // far more than std::sort would survive with this comparison
    for (int i = 0; i < 1000; ++i) {
        many.emplace_back("unlisted", Entries{});
    }
    EXPECT_TRUE(result.getUnifiedResult(UNIFIED_PADS, 2, many));
    EXPECT_EQ(many.size(), 1005U);
}

TEST_F(UnifiedResultTest, WithoutResultsTheSummaryHoldsItsRows)
{
    Json::Value const rows = summary();
    ASSERT_EQ(rows.size(), 49U);
    EXPECT_FALSE(rows[4]["allLayerMinTrackWidth"].isMember("result"));
    EXPECT_EQ(rows[6]["minTrackWidth"]["result"][0]["value"], Json::Value(2147483647));
    EXPECT_EQ(rows[47]["goldenFingerMaxWidth"]["result"], Json::Value(""));
}

TEST_F(UnifiedResultTest, TheSummaryTakesTheFirstEntryOfTheFirstGroupThatHasOne)
{
    std::map<unified_check_items, Layers> rest;
    Layers & widths = rest[UNIFIED_LINES];
    widths["a"].groups[0] = {{1, 5, {}}, {1, 2, {}}};
    widths["b"].groups[2] = {{1, 7, {}}};
    widths["c"];
    widths["d"].groups = {Entries{}, {{1, -1, {}}}, {}, {{1, -9, {}}}};
    result.setRestResult(rest);
    Json::Value rows = summary();
    EXPECT_EQ(entriesOf(rows[4]), (std::vector<std::string>{"a=5", "b=7", "c=-1", "d=-1"}));
    EXPECT_TRUE(rows[4]["allLayerMinTrackWidth"]["result"][0]["value"].isString());
    EXPECT_EQ(rows[6]["minTrackWidth"]["result"][0]["value"], Json::Value(-1)) << "a value of -1 is one";
    widths.erase("d");
    result.setRestResult(rest);
    EXPECT_EQ(summary()[6]["minTrackWidth"]["result"][0]["value"], Json::Value(5)) << "\"-1\" is no value";
    rest[UNIFIED_LINES].clear();
    result.setRestResult(rest);
    EXPECT_FALSE(summary()[4]["allLayerMinTrackWidth"].isMember("result"));
}

// All keys, labels, units, escapes and blanks: readers compare summaries as text.
TEST_F(UnifiedResultTest, TheSummaryIsKnownToTheByte)
{
    auto const digest = [&] {
        std::string text;
        result.jsonoutput(text);
        return QCryptographicHash::hash(QByteArray::fromStdString(text), QCryptographicHash::Sha256).toHex();
    };
    QByteArray const empty = "86e77442e7cb31af829ab0d3eed25e96b4d18c5457daeede2268d1f18c02b1df";
    EXPECT_EQ(digest(), empty);
    std::map<unified_check_items, Layers> rest;
    rest[UNIFIED_LINES]["a"].groups[0] = {{1, 5, {}}, {1, 2, {}}};
    rest[UNIFIED_LINES]["b"].groups[2] = {{1, 7, {}}};
    rest[UNIFIED_LINES]["c"];
    rest[UNIFIED_SMD_TO_SMD]["层"].groups[3] = {{1, 6, {}}};
    rest[UNIFIED_SLOTS]["s"].groups = {Entries(4), {}, {}, Entries(3)};
    rest[UNIFIED_ANNULAR_RINGS]["a"];
    rest[UNIFIED_ANNULAR_RINGS][""].groups[0] = {{1, least, {}}};
    result.setRestResult(rest);
    result.setJobStep("another", "another");
    result.setJobStep("job\t\"1\"\\é😀/\x7f\x01", "p c\nb");
    EXPECT_EQ(digest(), "a8dc8b84ead4ba938af8e9ed8fee1a2fb45409791482b96bd29e54237ecd8332");

    result.setLayerInfo({{"board", "signal", "a", "POS", 9}});
    Ext::clearUnifiedResults();
    EXPECT_EQ(digest(), empty) << "as at the start";
    Answer answer{{"bot", {}}, {"a", {}}};
    result.getUnifiedResult(UNIFIED_LINES, 0, answer);
    EXPECT_EQ(answer.size(), 2U);
    EXPECT_EQ(answer[0].first, "a") << "the rows are forgotten: equal ones change places";
}

} // namespace
