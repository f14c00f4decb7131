#include "CheckEntries.h"
#include "harness/UiapiTest.h"

#include "analysis/ViolationId.h"

#include <limits>
#include <string>
#include <vector>

using namespace KVCAM::UIAPI;
using namespace KVCAM::UIAPI::Ext;
using namespace KVCAM::Testing;

namespace {

using Places = std::vector<KVCAM::API::point>;
constexpr double infinite = std::numeric_limits<double>::infinity();

ReportCategory category(int number)
{
    ReportCategory out;
    out.table = "SignalLayerRanges";
    out.number = number;
    return out;
}

ReportEntry entry(std::string const & layer, Places const & places, EntryNets const & nets)
{
    ReportEntry out;
    out.layer = layer;
    out.places = places;
    out.nets = nets;
    return out;
}

TEST(ViolationId, NamesBothItemsInOneOrder)
{
    struct Row
    {
        ReportEntry entry;
        std::string id; ///< without the check
    };
    std::vector<Row> const rows{
        {entry("top", {{1, 2}, {-3, 4}}, {"A", "B"}), "top/1,2~-3,4/A~B"},
        {entry("top", {{-3, 4}, {1, 2}}, {"B", "A"}), "top/1,2~-3,4/A~B"},
        {entry("top", {{1, 2}, {-3, 4}}, {"A", "C"}), "top/1,2~-3,4/A~C"},
        {entry("top", {{1, 2}, {-3, 4}}, {"A", "A"}), "top/-3,4~1,2/A~A"},
        {entry("top", {{1, 9}, {1, 8}}, {"A", "A"}), "top/1,8~1,9/A~A"},
        {entry("top", {{1, 2}, {-3, 4}}, {"", "A"}), "top/-3,4~1,2/A"},
        {entry("top", {{1, 2}, {-3, 4}}, {"A", ""}), "top/-3,4~1,2/A"},
        {entry("top", {{5, 6}}, {"", "A"}), "top/5,6/A"},
        {entry("top", {{5, 6}}, {"B", "A"}), "top/5,6/A~B"},
        {entry("", {}, {}), "-/-/-"},
        {entry("-", {{0.4, -0.4}}, {"-", ""}), "%2D/0,0/%2D"},
        {entry("a b/c", {{1e300, -infinite}}, {"#1;~%", "é"}),
         "a%20b%2Fc/2147483647,-2147483648/%231%3B%7E%25~%C3%A9"},
        {entry("\xff\n", {{1.5, 2}}, {"=1+1", std::string("\0", 1)}), "%EF%BF%BD%0A/2,2/%00~%3D1%2B1"},
    };
    for (Row const & row : rows) {
        std::string const id = violationId(category(3), row.entry);
        EXPECT_EQ(id, "SignalLayerRanges/3/" + row.id);
        auto const name = parseViolationId(id);
        ASSERT_TRUE(name) << id;
        EXPECT_EQ(violationId(*name), id);
        EXPECT_EQ(name->nets, violationName(category(3), row.entry).nets) << id;
    }
}

TEST(ViolationId, OnlyWhatIsWrittenIsRead)
{
    for (char const * id : {"t/3/top/1,2/A", "t/-3/top/1,2/A#2", "t/3/top/1,2~3,4~5,6/-"}) {
        EXPECT_TRUE(parseViolationId(id)) << id;
    }
    for (char const * id : {"",
                            "t/3/top/1,2",
                            "t/3/top/1,2/A/B",
                            "t/3/top/1,2/A#1",
                            "t/3/top/1,2/A#0",
                            "t/3/top/1,2/A#2#3",
                            "t/3/top/1,2/A#-2",
                            "t/3/top/1,2/A#99999999999",
                            "t/+3/top/1,2/A",
                            "t/03/top/1,2/A",
                            "t/3 /top/1,2/A",
                            "t//top/1,2/A",
                            "t/3//1,2/A",
                            "t/3/top//A",
                            "t/3/top/1/A",
                            "t/3/top/1,2,3/A",
                            "t/3/top/1,2~/A",
                            "t/3/top/-0,2/A",
                            "t/3/top/1.5,2/A",
                            "t/3/top/2147483648,2/A",
                            "t/3/top/1,2/",
                            "t/3/top/1,2/A~",
                            "t/3/top/1,2/A~-",
                            "t/3/top/1,2/-~A",
                            "t/3/top/1,2/B~A",
                            "t/3/top/1,2/A~B~C",
                            "t/3/top/5,6~1,2/A~A",
                            "t/3/top/1,2/%41",
                            "t/3/top/1,2/%2d",
                            "t/3/top/1,2/%4",
                            "t/3/top/1,2/%",
                            "t/3/top/1,2/%FF",
                            "t/3/t op/1,2/A",
                            "t/3/top/1,2/\xC3\xA9"}) {
        EXPECT_FALSE(parseViolationId(id)) << id;
    }
}

TEST(ViolationId, CopiesAreCountedByMeasureNotByOrder)
{
    ReportCategory lines = category(46);
    for (int const measured : {30, 10, 20}) {
        lines.entries.push_back(entry("top", {{1, 2}}, {"A", ""}));
        lines.entries.back().measured = Length::fromMicrometres(measured);
    }
    lines.entries.push_back(entry("bot", {{1, 2}}, {"A", ""}));
    EXPECT_EQ(
        violationIds(lines),
        (std::vector<std::string>{"SignalLayerRanges/46/top/1,2/A#3", "SignalLayerRanges/46/top/1,2/A",
                                  "SignalLayerRanges/46/top/1,2/A#2", "SignalLayerRanges/46/bot/1,2/A"}));
}

TEST(ViolationId, AMarkerMayMoveALittle)
{
    ReportEntry const before = entry("top", {{0, 0}, {100, 0}}, {"A", "B"});
    struct Row
    {
        ReportEntry after;
        bool same;
    };
    for (Row const & row : {Row{before, true}, Row{entry("top", {{30, 40}, {100, -50}}, {"A", "B"}), true},
                            Row{entry("top", {{130, 40}, {0, 0}}, {"B", "A"}), true},
                            Row{entry("top", {{0, 0}, {130, 41}}, {"A", "B"}), false},
                            Row{entry("top", {{36, 36}, {100, 0}}, {"A", "B"}), false},
                            Row{entry("top", {{0, 0}, {100, 0}}, {"A", "C"}), false},
                            Row{entry("top", {{0, 0}, {100, 0}}, {"B", "A"}), false},
                            Row{entry("bot", {{0, 0}, {100, 0}}, {"A", "B"}), false},
                            Row{entry("top", {{0, 0}}, {"A", "B"}), false}}) {
        ViolationName const a = violationName(category(3), before);
        ViolationName const b = violationName(category(3), row.after);
        EXPECT_EQ(isSameViolation(a, b), row.same) << violationId(b);
        EXPECT_EQ(isSameViolation(b, a), row.same) << violationId(b);
        EXPECT_FALSE(isSameViolation(a, violationName(category(4), row.after)));
    }
    EXPECT_TRUE(isSameViolation(violationName(category(46), entry("top", {{0, 0}, {1, 500}}, {"A", ""})),
                                violationName(category(46), entry("top", {{2, 0}, {1, 500}}, {"", "A"}))));
    // Of one net, the move may change which place comes first.
    EXPECT_TRUE(isSameViolation(violationName(category(3), entry("top", {{0, 0}, {1, 500}}, {"A", "A"})),
                                violationName(category(3), entry("top", {{2, 0}, {1, 500}}, {"A", "A"}))));
}

} // namespace
