#include "config/ConfigTest.h"

#include "analysis/AnalysisReport.h"
#include "analysis/CategoryDictionary.h"
#include "analysis/RangeStore.h"
#include "support/HostPaths.h"
#include "uiapi/UIAPICommonPara.h"
#include "uiapi/flat/Attributes.h"
#include "uiapi/flat/Ranges.h"

#include <QCryptographicHash>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {

using Names = std::vector<std::string>;

std::string const loaded = "I UIAPICommonPara: 加载所有ranges成功";

/// "name red yellow green" of each record.
Names shown(RangeStore const & store, std::string const & rangeName)
{
    std::vector<Analysis_Ranges_Record> records{{"before", 1, 2, 3}};
    store.getRanges(rangeName, records);
    Names out;
    for (Analysis_Ranges_Record const & record : records) {
        out.push_back(record.name + QStringLiteral(" %1 %2 %3")
                                        .arg(record.redLv)
                                        .arg(record.yellowLv)
                                        .arg(record.greenLv)
                                        .toStdString());
    }
    return out;
}

class RangesTest : public UiapiTest
{
protected:
    QString const folder = QStringLiteral("config/ranges/");
    std::string const directory = QDir::currentPath().toStdString() + "/config/ranges/";
    RangeStore store;
};

TEST_F(RangesTest, EveryTableHasItsNumbers)
{
    struct Row
    {
        char const * table;
        int count, first, last, gap;
        char const *firstName, *lastName;
    };
    Row const rows[] = {
        {"DrillRanges", 38, 0, 37, -1, "PTH Summary", "Different Net Close VIA2PTH"},
        {"BoardDrillRanges", 14, 0, 13, -1, "Via to Via", "Laser to Rout"},
        {"SolderMaskRanges", 86, 0, 85, -1, "PTH annular Ring", "SM local spacing"},
        {"SignalLayerRanges", 82, 0, 82, 63, "Pad to pad", "VIA to Copper(Same net)"},
        {"SurfaceAnalyzerRanges", 11, 0, 10, -1, "Self-intersection in surface", "Small edge in symbol"},
        {"SilkScreenRanges", 27, 0, 26, -1, "SM Clearance", "SS Over Channel"},
        {"PrePareRanges", 31, 0, 30, -1, "Org step check", "Prepare step drill pad poisition check"},
        {"SolderMaskOptRanges", 19, 0, 18, -1, "No Violations", "Shaves"},
        {"SignalLayerOptRanges", 19, 1, 19, -1, "ARG repaired", "Unfillable polygon shave"},
        {"TeardropsRanges", 10, 1, 10, -1, "Full Teardrops", "Suspected Teardrop"},
        {"NFPRemoval", 4, 1, 4, -1, "Isolated", "Covered"},
        {"PadSnappingRanges", 3, 0, 2, -1, "Snapped pads", "Spacing problems"},
        {"PowerGroundRanges", 38, 0, 38, 12, "NPTH to Copper", "Photo Via Annular Ring"},
        {"PowerGroundOptRanges", 27, 1, 27, -1, "Via AirGap Not Modified", "Build Donut"},
    };
    Names tables;
    QCryptographicHash vocabulary(QCryptographicHash::Sha256);
    for (Row const & row : rows) {
        tables.emplace_back(row.table);
        int count = 0;
        for (int number = -2; number < 120; ++number) {
            std::string const name = getRangesName(row.table, number);
            bool const isAssigned = number >= row.first && number <= row.last && number != row.gap;
            EXPECT_EQ(name.empty(), !isAssigned) << row.table << number;
            // The duplicate below is the one name that leads to another number.
            if (isAssigned && number != 85) {
                EXPECT_EQ(getRangesEnum(row.table, name), number);
            }
            if (isAssigned) {
                ++count;
                vocabulary.addData((QString(row.table) + ' ' + QString::number(number) + ' ').toUtf8());
                vocabulary.addData((QString::fromStdString(name) + '\n').toUtf8());
            }
        }
        EXPECT_EQ(count, row.count) << row.table;
        EXPECT_EQ(getRangesName(row.table, row.first), row.firstName);
        EXPECT_EQ(getRangesName(row.table, row.last), row.lastName);
    }
    EXPECT_EQ(Ext::categoryTables(), tables);
    // Of the whole vocabulary, taken down once: none of the names is ever to change.
    EXPECT_EQ(vocabulary.result().toHex(),
              "2db1ebcbe1250dc66c8d1fb0f184bebbdff4f5c088e885f2a9047e8c0f921a79");
}

TEST_F(RangesTest, SpellingsAreTheProgramsOwn)
{
    EXPECT_EQ(getRangesName("SolderMaskOptRanges", 15), "Partial   Clearances");
    EXPECT_EQ(getRangesName("SolderMaskOptRanges", 16), "Small     Clearances");
    EXPECT_EQ(getRangesName("SolderMaskRanges", 68), "** Not in Use **");
    EXPECT_EQ(getRangesName("SignalLayerOptRanges", 4), "Pad enlarge > limit");
    EXPECT_EQ(getRangesEnum("SolderMaskRanges", "SM local spacing"), 39) << "stands twice";
    for (auto const & [table, name] : {std::pair("DrillRanges", "pth summary"),
                                       {"DrillRanges", "PTH"},
                                       {"drillRanges", "PTH Summary"},
                                       {"PrepareRanges", "Org step check"},
                                       {"", ""},
                                       {"DrillRanges", ""}}) {
        EXPECT_EQ(getRangesEnum(table, name), -1) << table << name;
    }
    EXPECT_EQ(builtInCategoryName("SignalLayerRanges", 63), "");
    EXPECT_EQ(builtInCategoryName("SignalLayerRanges", 64), "Shaved SMD");
    EXPECT_EQ(builtInCategoryName("?", 1), "");
}

TEST_F(RangesTest, LevelsAreReadFromTextsAlone)
{
    struct Row
    {
        char const * content;
        Names expected;
    };
    for (Row const & row : {
             Row{R"({"rangesList":[{"name":"Via to Via","RedLv":"3","YellowLv":"4","GreenLv":"5"}]})",
                 {"Via to Via 3 4 5"}},
             Row{R"({"rangesList":[{"name":"a","RedLv":3,"YellowLv":"0.1"},{"name":"a","GreenLv":"-1e1"}]})",
                 {"a 0 0.1 0", "a 0 0 -10"}},
             Row{R"({"rangesList":[{"name":"线","RedLv":"1,5","YellowLv":"1 000","GreenLv":"x"}]})",
                 {"线 0 0 0"}},
             Row{R"({"rangesList":[{"name":"a","RedLv":"inf","YellowLv":"1e999","GreenLv":"nan"}]})",
                 {"a inf inf nan"}},
             Row{R"({"rangesList":[7,{"name":5,"redlv":"1","unit":"mil"},"x"],"version":2})",
                 {" 0 0 0", " 0 0 0", " 0 0 0"}},
             Row{R"({"rangesList":{"name":"a"}})", {}},
             Row{R"({"rangeslist":[{"name":"a"}]})", {}},
             Row{R"([{"name":"a"}])", {}},
         }) {
        writeFile("one.json", row.content);
        RangeStore fresh;
        fresh.scanMetaData("one", "one.json");
        EXPECT_EQ(shown(fresh, "one"), row.expected) << row.content;
    }
    EXPECT_EQ(log.take(), Lines{});
}

TEST_F(RangesTest, FilesThatCannotBeReadAreLogged)
{
    store.scanMetaData("a", "missing.json");
    ASSERT_TRUE(QDir().mkdir("folder.json"));
    store.scanMetaData("a", "folder.json");
    writeFile("broken.json", R"({"rangesList":[)");
    store.scanMetaData("a", "broken.json");
    writeFile("empty.json", "");
    store.scanMetaData("a", "empty.json");
    EXPECT_EQ(log.take(), (Lines{paraError("Ranger json文件不存在！路径：missing.json"),
                                 paraError("Ranger json文件打开失败!路径：folder.json"),
                                 paraError("解析ranges json文件错误！路径：broken.json"),
                                 paraError("解析ranges json文件错误！路径：empty.json")}));
    EXPECT_EQ(shown(store, "a"), Names{});
}

TEST_F(RangesTest, FilesStandInSubDirectoriesAndTheFirstOfANameWins)
{
    QByteArray const one = R"({"rangesList":[{"name":"one"}]})";
    QByteArray const two = R"({"rangesList":[{"name":"two"}]})";
    writeFile(folder + "Direct.json", one);
    writeFile(folder + "sub/deeper/Deep.json", one);
    writeFile(folder + "sub/B.JSON", one);
    writeFile(folder + "sub/a.json.b.json", one);
    writeFile(folder + "sub/c.json", R"({"rangesList":[]})"); // keeps the name from the next file
    writeFile(folder + "sub/c.json.json", two);
    writeFile(folder + "sub/d.json", "{}"); // does not
    writeFile(folder + "sub/d.json.json", two);
    writeFile(folder + "sub/z.json", "{");
    writeFile(folder + "sub/y.json", "{");
    writeFile(folder + "sub/a.txt", one);
    EXPECT_TRUE(store.loadAllRanges());
    for (auto const & [name, expected] : std::map<std::string, Names>{{"Direct", {}},
                                                                      {"Deep", {}},
                                                                      {"B", {}},
                                                                      {"B.JSON", {"one 0 0 0"}},
                                                                      {"a.b", {"one 0 0 0"}},
                                                                      {"c", {}},
                                                                      {"d", {"two 0 0 0"}}}) {
        EXPECT_EQ(shown(store, name), expected) << name;
    }
    EXPECT_EQ(log.take(),
              (Lines{paraError("解析ranges json文件错误！路径：" + directory + "sub/y.json"),
                     paraError("解析ranges json文件错误！路径：" + directory + "sub/z.json"), loaded}));

    writeFile(folder + "other/a.b.json", two);
    ASSERT_TRUE(QDir().mkpath(folder + "none"));
    RangeStore again;
    EXPECT_TRUE(again.loadAllRanges());
    QStringList const listed = QDir(folder).entryList({"sub", "other"}, QDir::Dirs, QDir::Unsorted);
    EXPECT_EQ(shown(again, "a.b"), Names{listed.front() == "sub" ? "one 0 0 0" : "two 0 0 0"});
    Lines lines = log.take();
    EXPECT_EQ(std::count(lines.begin(), lines.end(), loaded), 3)
        << "once per sub-directory, the empty one too";
}

TEST_F(RangesTest, TheFirstCallLoadsBeforeItsOwnWork)
{
    EXPECT_EQ(UIAPICommonPara::m_pUIAPICommonParaInstance, nullptr);
    engine.root = QDir::currentPath().toStdString() + "/root";
    engine.rangesFolder = "级别";
    writeFile("root/级别/a/DrillRanges.json", R"({"rangesList":[{"name":"PTH Summary","RedLv":"3"}]})");
    std::vector<std::string> names;
    getChildAttribute(".bga", names);
    EXPECT_EQ(log.take(), Lines{loaded});
    std::vector<Analysis_Ranges_Record> records;
    getRanges("DrillRanges", records);
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].redLv, 3);
    EXPECT_EQ(engine.consulted["getPath_rangesconfig"], 1) << "loaded once";

    // A copy is a snapshot.
    static auto * const copy = new UIAPICommonPara(*UIAPICommonPara::instance());
    copy->changeRangesValue("DrillRanges", "PTH Summary", "RedLv", 9);
    getRanges("DrillRanges", records);
    EXPECT_EQ(records[0].redLv, 3);
    EXPECT_EQ(copy->getRangesName("DrillRanges", 0), "PTH Summary");
}

TEST_F(RangesTest, AHostThatThrowsCostsTheLevelsAlone)
{
    engine.throwNonStandardFrom("getPath_rangesconfig");
    EXPECT_EQ(getRangesName("DrillRanges", 0), "PTH Summary");
    EXPECT_EQ(log.take(), Lines{"I UIAPICommonPara: 加载Ranges失败"});
    EXPECT_FALSE(store.loadAllRanges());
    log.take();
}

TEST_F(RangesTest, WithoutADirectoryNothingIsLogged)
{
    EXPECT_TRUE(store.loadAllRanges());
    EXPECT_EQ(log.take(), Lines{});
    EXPECT_EQ(HostPaths::rangesDirectory().toStdString() + "/", directory);
}

TEST_F(RangesTest, OneLevelOfTheFirstRecordChanges)
{
    writeFile("one.json", R"({"rangesList":[{"name":"a"},{"name":"b"},{"name":"b"}]})");
    store.scanMetaData("one", "one.json");
    for (auto const & [range, category, level] :
         {std::tuple("one", "b", "redlv"), {"one", "B", "RedLv"}, {"One", "b", "RedLv"}, {"one", "b", ""}}) {
        store.changeRangesValue(range, category, level, 7);
    }
    EXPECT_EQ(shown(store, "one"), (Names{"a 0 0 0", "b 0 0 0", "b 0 0 0"}));
    store.changeRangesValue("one", "b", "RedLv", 1);
    store.changeRangesValue("one", "b", "YellowLv", std::numeric_limits<double>::infinity());
    store.changeRangesValue("one", "b", "GreenLv", -0.5);
    EXPECT_EQ(shown(store, "one"), (Names{"a 0 0 0", "b 1 inf -0.5", "b 0 0 0"}));
    EXPECT_EQ(log.take(), Lines{});
}

TEST_F(RangesTest, ErfFilesAreListedByTheirBaseNames)
{
    for (char const * file : {"ERFconfig/abc/one.erf", "ERFconfig/abc/a.b.erf", "ERFconfig/abc/.hidden.erf",
                              "ERFconfig/abc/plain", "ERFconfig/abc/sub/two.erf", "ERFconfig/top.erf",
                              "outside.erf", "ERFconfigabc/no.erf", "ERFconfig/x..y/dots.erf"}) {
        writeFile(file, "");
    }
    auto const listed = [](std::string const & folderName) {
        Names names;
        getERFList(folderName, names);
        std::sort(names.begin(), names.end());
        return names;
    };
    EXPECT_EQ(listed("abc"), (Names{"", "a", "one", "plain"}));
    EXPECT_EQ(listed("abc/"), (Names{"", "a", "one", "plain"}));
    EXPECT_EQ(listed(""), Names{"top"});
    EXPECT_EQ(listed("x..y"), Names{"dots"}) << "no component \"..\"";
    for (char const * bad : {"..", "../", "abc/../..", "abc\\..\\..", "none", "/../"}) {
        EXPECT_EQ(listed(bad), Names{}) << bad;
    }
    Names names{"before"};
    getERFList("x..y", names);
    getERFList("x..y", names);
    EXPECT_EQ(names, (Names{"before", "dots", "dots"}));
}

TEST_F(RangesTest, TheSampleLevelsGradeKnownCategories)
{
    QDir const samples(QStringLiteral(UIAPI_SOURCE_DIR "/samples/config/ranges/fabrication"));
    std::size_t graded = 0;
    for (std::string const & table : Ext::categoryTables()) {
        store.scanMetaData(QString::fromStdString(table),
                           samples.filePath(QString::fromStdString(table) + ".json"));
        std::vector<Analysis_Ranges_Record> records;
        store.getRanges(table, records);
        graded += records.size();
        for (Analysis_Ranges_Record const & record : records) {
            EXPECT_NE(getRangesEnum(table, record.name), -1) << table << ": " << record.name;
            EXPECT_GT(std::min(record.redLv, record.greenLv), 0) << table << ": " << record.name;
            EXPECT_EQ(Ext::grade(record, record.redLv, Ext::senseOf(record)), Ext::Severity::Red)
                << record.name;
        }
    }
    EXPECT_EQ(samples.entryList(QDir::Files).size(), 14);
    EXPECT_GT(graded, 200U);
}

} // namespace
