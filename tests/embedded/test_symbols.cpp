#include "embedded/EmbeddedTest.h"

#include "support/SymbolFamilies.h"

#include <kvcam/PluginManager.h>

#include <limits>
#include <map>
#include <optional>

using namespace KVCAM;
using namespace KVCAM::Testing;

namespace {

class SymbolTest : public EmbeddedTest
{
protected:
    struct Answer
    {
        API::symboltype type;
        int first;
        int second;
    };
    static std::optional<Answer> identify(std::string const & name)
    {
        Answer answer{static_cast<API::symboltype>(-7), -7, -7};
        if (API::identify_symbol(name, answer.type, answer.first, answer.second, false)) {
            return answer;
        }
        EXPECT_TRUE(answer.type == -7 && answer.first == -7 && answer.second == -7) << name;
        return std::nullopt;
    }
};

TEST_F(SymbolTest, EveryStandardFamilyIsIdentifiedWithItsFirstTwoSizes)
{
    struct Row
    {
        char const * name;
        int type; // as this engine numbers the families
        int first;
        int second;
    };
    constexpr int max = std::numeric_limits<int>::max();
    Row const rows[] = {
        {"r100.0", 1, 100, 0},
        {"r0", 1, 0, 0},
        {"r99999999999999999999", 1, max, 0},
        {"s40.9", 2, 40, 0},
        {"rect532.13254x1254.38916xr266.065", 3, 532, 1254},
        {"rect78x88xr0", 3, 78, 88},
        {"rect4x5xc1x134", 3, 4, 5},
        {"oval1x2", 4, 1, 2},
        {"oval_h1x2", 5, 1, 2},
        {"di1x2", 6, 1, 2},
        {"oct1x2x3", 7, 1, 2},
        {"el1x2", 8, 1, 2},
        {"tri1x2", 9, 1, 2},
        {"bfr5", 10, 5, 0},
        {"bfs5", 11, 5, 0},
        {"hex_l1x2x3", 12, 1, 2},
        {"hex_s1x2x3", 13, 1, 2},
        {"hole50xvx4x5", 14, 50, 4},
        {"donut_r2x1", 15, 2, 1},
        {"donut_s2x1xr3", 16, 2, 1},
        {"donut_sr2x1", 17, 2, 1},
        {"donut_o3x2x1", 18, 3, 2},
        {"donut_rc3x2x1xr4x12", 19, 3, 2},
        {"thr9x8x45x4x1", 20, 9, 8},
        {"ths9x8x22.5x4x1", 21, 9, 8},
        {"sr_ths9x8x45x4x1", 22, 9, 8},
        {"s_ths9x8x45x4x1xr2x4", 23, 9, 8},
        {"s_tho9x8x45x4x1", 24, 9, 8},
        {"rc_ths9x8x45x4x1x2", 25, 9, 8},
        {"rc_tho9x8x45x4x1x2xr3", 26, 9, 8},
        {"o_ths9x8x45x4x1x2", 27, 9, 8},
        {"moire5x10x4x3x100x0", 28, 5, 10},
    };
    std::map<int, int> seen;
    for (Row const & row : rows) {
        auto const answer = identify(row.name);
        ASSERT_TRUE(answer) << row.name;
        EXPECT_EQ(answer->type, row.type) << row.name;
        EXPECT_EQ(answer->first, row.first) << row.name;
        EXPECT_EQ(answer->second, row.second) << row.name;
        ++seen[answer->type];
    }
    EXPECT_EQ(seen.size(), UIAPI::Ext::symbolFamilyCount) << "every family has a row";
}

TEST_F(SymbolTest, AMalformedNameIsNotStandard)
{
    QString const names =
        "|r|10|x|r-1|r+1|r.5|r1.|r1..2|r1e3|r1,5|R10| r10|r10 |r10 I|r1x2|rect100|rect1x2x3|"
        "rect1x2xr|rect1x2xr3x|rect1x2xr3x5|rect1x2xr3x11|rect1x2xr3x1x2|rect1x2x|rectx1x2|"
        "rect399.9992x1599.99934_135|oval1x2xr3|hole50x1x0x0|hole50xp|thr1x2x3x4.5x5|"
        "moire1x2x3.5x4x5x6|donut1x2|u76r5|drill_symbol10+1|uds_rect25.5905x70.8662_315";
    for (QString const & word : names.split('|')) {
        std::string const name = word.toStdString();
        EXPECT_FALSE(identify(name)) << name;
    }
}

TEST_F(SymbolTest, AJobsOwnSymbolIsIdentifiedWhileTheJobIsOpen)
{
    makeBoard();
    for (char const * const name : {"zig", "rect1x2_45", "Logo+1", "r10"}) {
        write(QString("jobs/board/symbols/%1/features").arg(name), "");
    }
    write("jobs/board/symbols/not-a-folder", "");
    EXPECT_FALSE(identify("zig"));
    ASSERT_TRUE(open());
    for (char const * const name : {"zig", "rect1x2_45", "logo+1"}) {
        auto const answer = identify(name);
        ASSERT_TRUE(answer) << name;
        EXPECT_TRUE(answer->type == 0 && answer->first == 0 && answer->second == 0) << name;
    }
    EXPECT_EQ(identify("r10")->type, 1) << "a standard name stays standard";

    Texts names{"old"};
    API::get_special_symbol_names("BOARD", names);
    EXPECT_EQ(names, (Texts{"Logo+1", "r10", "rect1x2_45", "zig"}));
    API::get_special_symbol_names("other", names);
    EXPECT_TRUE(names.empty());
    ASSERT_TRUE(Embedded::closeJob("board"));
    EXPECT_FALSE(identify("zig"));
}

// Names out of other parsers' tests, when the folder with them is at hand: name, source, verdict.
TEST_F(SymbolTest, AgreesWithTheCollectedNames)
{
    QFile file(sharedPath("symbol_names.txt"));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        GTEST_SKIP() << "the collected names are not here";
    }
    std::map<std::string, char const *> const otherwise{
        {"o_tho5x3x0.5x90x4x1", "an open oval thermal is no family of the format's list"},
    };
    int rows = 0;
    while (!file.atEnd()) {
        QList<QByteArray> const columns = file.readLine().trimmed().split('\t');
        ASSERT_EQ(columns.size(), 3);
        std::string const name = columns[0].toStdString();
        bool const agreed = identify(name).has_value() == (columns[2] == "standard");
        EXPECT_EQ(agreed, otherwise.count(name) == 0) << name;
        ++rows;
    }
    EXPECT_GT(rows, 100);
}

TEST(HostServicesTest, PathsAndPluginCommands)
{
    EXPECT_EQ(Common::getPath(), "");
    EXPECT_EQ(Common::getPath_config(), "config");
    EXPECT_EQ(Common::getPath_rangesconfig(), "config/ranges");
    for (int i = 0; i < 101; ++i) {
        QTpluginsManger4CAM::instance()->recMegToPlugin(nullptr, {"editor", i, "k"});
    }
    std::vector<Embedded::PluginCommand> const commands = Embedded::pluginCommands();
    ASSERT_EQ(commands.size(), 100U);
    EXPECT_TRUE(commands.front().command == 1 && commands.back().command == 100);
    EXPECT_TRUE(commands.back().module == "editor" && commands.back().key == "k");
}

TEST(CheckReplyTest, KeepsListsByItemAndLevel)
{
    API::check_reply<API::drill_check_item, API::check_info> reply;
    auto const item = static_cast<API::drill_check_item>(4);
    for (int const level : {-1, 0, 2, 2, 3}) {
        reply.add(item, level, {1, level, {}});
    }
    EXPECT_EQ(reply.list(item, 0).size(), 1U);
    EXPECT_EQ(reply.list(item, 2).size(), 2U);
    for (int const level : {-1, 1, 3}) {
        EXPECT_TRUE(reply.list(item, level).empty()) << level;
    }
    EXPECT_TRUE(reply.list(static_cast<API::drill_check_item>(5), 0).empty());
}

} // namespace
