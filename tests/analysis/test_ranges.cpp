#include "config/ConfigTest.h"

#include "analysis/AnalysisReport.h"
#include "analysis/CategoryDictionary.h"
#include "analysis/RangeFile.h"
#include "analysis/RangeStore.h"
#include "support/HostPaths.h"
#include "uiapi/UIAPICommonPara.h"
#include "uiapi/flat/Attributes.h"
#include "uiapi/flat/Ranges.h"

#include <QCryptographicHash>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <new>

using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {
std::size_t largestAllocation = std::numeric_limits<std::size_t>::max();
}

// Replaces the library's own, so that a case can run out of memory. Optimising, GCC inlines one of each pair
// and takes the two for a mismatch.
#if defined(__GNUC__)
#pragma GCC diagnostic ignored "-Wmismatched-new-delete"
#endif
void * operator new(std::size_t size)
{
    void * const memory = size <= largestAllocation ? std::malloc(size) : nullptr;
    return memory != nullptr ? memory : throw std::bad_alloc();
}
void * operator new(std::size_t size, std::nothrow_t const & /*tag*/) noexcept
{
    return size <= largestAllocation ? std::malloc(size) : nullptr;
}
void operator delete(void * memory) noexcept
{
    std::free(memory);
}
void operator delete(void * memory, std::size_t) noexcept
{
    std::free(memory);
}

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

// The whole vocabulary and its numbers, recorded once: no name may ever change.
TEST_F(RangesTest, EveryTableHasItsNumbers)
{
    Names const tables{
        "DrillRanges",           "BoardDrillRanges",    "SolderMaskRanges", "SignalLayerRanges",
        "SurfaceAnalyzerRanges", "SilkScreenRanges",    "PrePareRanges",    "SolderMaskOptRanges",
        "SignalLayerOptRanges",  "TeardropsRanges",     "NFPRemoval",       "PadSnappingRanges",
        "PowerGroundRanges",     "PowerGroundOptRanges"};
    EXPECT_EQ(Ext::categoryTables(), tables);
    QCryptographicHash vocabulary(QCryptographicHash::Sha256);
    for (std::string const & table : tables) {
        for (int number = -2; number < 120; ++number) {
            std::string const name = getRangesName(table, number);
            // Only the duplicate below gives another number.
            if (!name.empty() && number != 85) {
                EXPECT_EQ(getRangesEnum(table, name), number);
            }
            if (!name.empty()) {
                vocabulary.addData((table + ' ' + std::to_string(number) + ' ' + name + '\n').c_str());
            }
        }
    }
    EXPECT_EQ(vocabulary.result().toHex(),
              "2db1ebcbe1250dc66c8d1fb0f184bebbdff4f5c088e885f2a9047e8c0f921a79");
}

TEST_F(RangesTest, SpellingsAreTheProgramsOwn)
{
    EXPECT_EQ(getRangesEnum("SolderMaskRanges", "SM local spacing"), 39) << "stands twice";
    for (auto const & [table, name] : {std::pair("DrillRanges", "pth summary"),
                                       {"DrillRanges", "PTH"},
                                       {"drillRanges", "PTH Summary"},
                                       {"PrepareRanges", "Org step check"},
                                       {"", ""},
                                       {"DrillRanges", ""}}) {
        EXPECT_EQ(getRangesEnum(table, name), -1) << table << name;
    }
    EXPECT_EQ(getRangesName("TeardropsRanges", 0), "") << "starts at 1";
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

// Damaged in every place and way, a plain file is either left to the document or means the same.
TEST_F(RangesTest, ThePlainWayReadsNothingThatTheDocumentReadsOtherwise)
{
    QByteArray const whole = R"( {"rangesList":[{"name":"a","RedLv":"-1.5","x":""}, {},{"GreenLv":"2"}]}
)";
    int plain = 0;
    for (int at = 0; at < 2 * whole.size(); ++at) {
        for (char const with : QByteArray("\0 \"\\,:[]{}e.0\t\x80\x7f\r", 17)) {
            QByteArray const bytes = QByteArray(whole).replace(at / 2, at % 2, QByteArray(1, with));
            if (auto const records = RangeFile::readPlainRecords(bytes)) {
                ++plain;
                auto const expected = RangeFile::readRecords(QJsonDocument::fromJson(bytes));
                auto const isSame = [](auto const & a, auto const & b) {
                    return a.name == b.name && a.redLv == b.redLv && a.greenLv == b.greenLv;
                };
                EXPECT_TRUE(expected && std::equal(records->begin(), records->end(), expected->begin(),
                                                   expected->end(), isSame))
                    << bytes.toStdString();
            }
        }
    }
    EXPECT_GT(plain, 100);
}

TEST_F(RangesTest, FilesThatCannotBeReadAreLogged)
{
    store.scanMetaData("a", "missing.json");
    writeFile("broken.json", R"({"rangesList":[)");
    store.scanMetaData("a", "broken.json");
    writeFile("empty.json", "");
    store.scanMetaData("a", "empty.json");
    EXPECT_EQ(log.take(), (Lines{paraError("Ranger json文件不存在！路径：missing.json"),
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
    writeFile(folder + "sub/c.json", R"({"rangesList":[]})"); // blocks the name for the next file
    writeFile(folder + "sub/c.json.json", two);
    writeFile(folder + "sub/d.json", "{}"); // does not
    writeFile(folder + "sub/d.json.json", two);
    for (char const * broken : {"sub/y.json", "sub/x.json", "sub/Z.json", "sub/.y.json", ".hidden/H.json"}) {
        writeFile(folder + broken, "{");
    }
    writeFile(folder + "sub/a.txt", one);
    EXPECT_TRUE(store.loadAllRanges());
    std::string found;
    for (auto const & [name, path] : store.loadedFiles()) {
        EXPECT_TRUE(path.startsWith(QString::fromStdString(directory))) << path.toStdString();
        found += name + ' ' + path.section('/', -1).toStdString();
        for (std::string const & record : shown(store, name)) {
            found += " (" + record + ')';
        }
        found += "; ";
    }
    EXPECT_EQ(found, "B.JSON B.JSON (one 0 0 0); a.b a.json.b.json (one 0 0 0); c c.json; "
                     "d d.json.json (two 0 0 0); ");
    std::string const broken = paraError("解析ranges json文件错误！路径：" + directory + "sub/");
    EXPECT_EQ(log.take(), (Lines{broken + "Z.json", broken + "x.json", broken + "y.json", loaded}))
        << "upper case first, and nothing hidden";

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

TEST_F(RangesTest, AFileThatIsTooMuchForTheMemoryCostsItsOwnLevelsAlone)
{
#if defined(Q_OS_WIN)
    GTEST_SKIP() << "the standard library's DLL keeps its own operator new";
#endif
    writeFile(folder + "sub/a.json", R"({"rangesList":[{"name":")" + QByteArray(2000000, 'a') + "\"}]}");
    writeFile(folder + "sub/b.json", R"({"rangesList":[{"name":"one"}]})");
    largestAllocation = 1000000;
    EXPECT_TRUE(store.loadAllRanges());
    EXPECT_EQ(log.take(), (Lines{"I UIAPICommonPara: Ranges scanMetaData失败", loaded}));
    EXPECT_EQ(shown(store, "b"), Names{"one 0 0 0"});
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
