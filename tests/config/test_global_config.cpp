#include "ConfigTest.h"

#include "config/GlobalConfigStore.h"
#include "config/OpenJobs.h"
#include "uiapi/flat/GlobalConfig.h"
#include "uiapi/flat/Selections.h"

#include <functional>
#include <limits>

using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {

using Calls = std::vector<std::string>;

class GlobalConfigTest : public ConfigTest
{};

// Each setting under the key it is read from, with the value that the flat getter then returns. Written from
// the file format's description rather than from the library's table.
struct KeyRow
{
    char const * readKey;
    char const * writtenKey;
    char const * json;
    std::function<bool()> isRead;
};

std::vector<KeyRow> const & keyRows()
{
    static std::vector<KeyRow> const rows = {
        {"ServerIp", "ServerIp", "\"10.0.0.1\"", [] { return getServerIP() == "10.0.0.1"; }},
        {"ClientIp", "ClientIp", "\"10.0.0.2\"", [] { return getClientIP() == "10.0.0.2"; }},
        {"Port", "Port", "8009", [] { return getServerPort() == 8009; }},
        {"DBPath", "DBPath", "\"c:/数据\"", [] { return getDBPath() == "c:/数据"; }},
        {"SharePath", "SharePath", "\"//share\"", [] { return getSharePath() == "//share"; }},
        {"OS", "OS", "2", [] { return getOS() == 2; }},
        {"TimeOut", "TimeOut", "-7", [] { return getTimeout() == -7; }},
        {"SelectionOutsideHint", "SelectionOutsideHint", "true", [] { return getSelectionOutsideHint(); }},
        {"ThreadCount", "ThreadCount", "6",
         [] { return getThreadCount() == 6 && RecordingEngine::get().threadCount == 6; }},
        {"use_specifiled_suffix", "use_specifiled_suffix", "true",
         [] { return RecordingEngine::get().backup.use_suffix; }},
        {"suffix", "suffix", "\"_bak\"", [] { return RecordingEngine::get().backup.suffix == "_bak"; }},
        {"layer_copy_suffix", "LayerCopySuffix", "\"_c\"", [] { return getLayerCopySuffix() == "_c"; }},
        {"Movement_factor", "MovementFactor", "0.4", [] { return getMovementFactor() == 0.4; }},
        {"Shift_confict", "ShiftConfict", "0.125", [] { return getShiftConfict() == 0.125; }},
        {"contour_accuracy", "ContourAccuracy", "24", [] { return getContourAccuracy() == 24; }},
        {"modify_hotkey", "modify_hotkey", "true", [] { return getModifyHotKey(); }},
        {"PythonHome", "PythonHome", "true", [] { return getPythonHome(); }},
    };
    return rows;
}

QByteArray wholeFile(char const * KeyRow::*key)
{
    QByteArray text = "{";
    for (KeyRow const & row : keyRows()) {
        text += (text.size() > 1 ? ",\"" : "\"") + QByteArray(row.*key) + "\":" + row.json;
    }
    return text + "}";
}

TEST_F(GlobalConfigTest, EverySettingIsReadUnderItsKeyAndWrittenUnderItsOther)
{
    writeFile(config + "server.json", wholeFile(&KeyRow::readKey));
    restartQuietly();
    for (KeyRow const & row : keyRows()) {
        EXPECT_TRUE(row.isRead()) << row.readKey;
    }
    setSelectionOutsideHint(true);
    EXPECT_EQ(QJsonDocument::fromJson(readFile(config + "server.json")),
              QJsonDocument::fromJson(wholeFile(&KeyRow::writtenKey)));
}

TEST_F(GlobalConfigTest, FourSettingsAreNotReadBackFromTheKeysTheyAreWrittenUnder)
{
    writeFile(config + "server.json", wholeFile(&KeyRow::writtenKey));
    restartQuietly();
    EXPECT_EQ(getLayerCopySuffix(), "");
    EXPECT_EQ(getMovementFactor(), 0.0);
    EXPECT_EQ(getShiftConfict(), 0.0);
    EXPECT_EQ(getContourAccuracy(), 0);
    int others = 0;
    for (KeyRow const & row : keyRows()) {
        others += row.isRead() ? 1 : 0;
    }
    EXPECT_EQ(others, 13);
}

TEST_F(GlobalConfigTest, ValuesOfAnotherKindReadAsTheNeutralValue)
{
    struct Row
    {
        char const * json;
        int port;
    };
    for (Row const & row :
         {Row{"8009.5", 0}, Row{"\"8009\"", 0}, Row{"true", 0}, Row{"1e10", 0}, Row{"null", 0},
          Row{"8009.0", 8009}, Row{"-2147483648", -2147483647 - 1}, Row{"2147483648", 0}}) {
        writeFile(config + "server.json", QByteArray("{\"Port\":") + row.json + "}");
        EXPECT_EQ(restartQuietly().getServerPort(), row.port) << row.json;
    }
    writeFile(config + "server.json",
              "{\"ServerIp\":5,\"SelectionOutsideHint\":1,\"Movement_factor\":\"0.4\",\"OS\":3}");
    restartQuietly();
    EXPECT_EQ(getServerIP(), "");
    EXPECT_FALSE(getSelectionOutsideHint());
    EXPECT_EQ(getMovementFactor(), 0.0);
    EXPECT_EQ(getOS(), 3);
}

TEST_F(GlobalConfigTest, EveryStepOfLoadingRunsAndReportsTheDirectory)
{
    std::string const missing = globalError("config json文件不存在！路径：" + directory);
    std::string const unopened = globalError("config json文件打开失败!路径：" + directory);
    std::string const broken = globalError("解析config json文件错误！路径：" + directory);
    struct Row
    {
        char const * name;
        char const * content; // null: no file
        Lines expected;
    };
    for (Row const & row :
         {Row{"absent", nullptr, {missing, unopened, broken}}, Row{"empty", "", {broken}},
          Row{"cut off", "{\"OS\":1", {broken}}, Row{"array", "[]", {}}, Row{"no settings", "{}", {}}}) {
        QFile::remove(config + "server.json");
        if (row.content != nullptr) {
            writeFile(config + "server.json", row.content);
        }
        GlobalConfigStore store;
        store.getGlobalConfig();
        EXPECT_EQ(log.take(), row.expected) << row.name;
        EXPECT_EQ(writeServerSettings(store.settings()), writeServerSettings({})) << row.name;
    }
    QFile::remove(config + "server.json");
    ASSERT_TRUE(QDir().mkpath(config + "server.json"));
    GlobalConfigStore store;
    store.getGlobalConfig();
    EXPECT_EQ(log.take(), (Lines{unopened, broken}));
}

TEST_F(GlobalConfigTest, FallbackDefaultsApplyOnlyWhenLoadingThrows)
{
    engine.throwFrom("getPath");
    GlobalConfigStore store;
    store.getGlobalConfig();
    EXPECT_EQ(log.take(), Lines{});
    EXPECT_EQ(store.configurationDirectory(), "");
    QJsonObject const expected{{"ServerIp", "127.0.0.1"},
                               {"ClientIp", "127.0.0.1"},
                               {"Port", 8009},
                               {"DBPath", "c:/checklist"},
                               {"SharePath", ""},
                               {"OS", 0},
                               {"TimeOut", 100000},
                               {"SelectionOutsideHint", false},
                               {"ThreadCount", 4},
                               {"use_specifiled_suffix", false},
                               {"suffix", ""},
                               {"LayerCopySuffix", ""},
                               {"MovementFactor", 0.4},
                               {"ShiftConfict", 0.1},
                               {"ContourAccuracy", 24},
                               {"modify_hotkey", false},
                               {"PythonHome", false}};
    EXPECT_EQ(QJsonDocument::fromJson(writeServerSettings(store.settings())).object(), expected);

    // Nowhere to write to: an empty directory counts as missing, and the current one is left alone.
    store.set(&ServerSettings::os, 5);
    EXPECT_EQ(log.take(), Lines{"W UIAPIGlobalVar: configpath不存在！路径：, Create!"});
    EXPECT_TRUE(QDir().isEmpty());
}

TEST_F(GlobalConfigTest, SaveWritesAllMembersIndentedInAscendingOrder)
{
    writeFile(config + "server.json", "{}");
    restartQuietly().setTimeout(5);
    EXPECT_EQ(readFile(config + "server.json").toStdString(), R"({
    "ClientIp": "",
    "ContourAccuracy": 0,
    "DBPath": "",
    "LayerCopySuffix": "",
    "MovementFactor": 0,
    "OS": 0,
    "Port": 0,
    "PythonHome": false,
    "SelectionOutsideHint": false,
    "ServerIp": "",
    "SharePath": "",
    "ShiftConfict": 0,
    "ThreadCount": 0,
    "TimeOut": 5,
    "modify_hotkey": false,
    "suffix": "",
    "use_specifiled_suffix": false
}
)");
}

TEST_F(GlobalConfigTest, EachPersistedSetterIsReadBackByTheNextStart)
{
    writeFile(config + "server.json", "{}");
    UIAPIGlobalVar & first = restartQuietly();
    first.setServerIP("10.1.2.3");
    first.setClientIP("10.1.2.4");
    first.setServerPort(std::numeric_limits<int>::max());
    first.setDBPath("d:/db");
    first.setSharePath("//s/\"共享\"");
    first.setOS(-1);
    first.setTimeout(std::numeric_limits<int>::min());
    first.setSelectionOutsideHint(true);
    first.setThreadCount(12);
    UIAPIGlobalVar const & next = restartQuietly();
    EXPECT_NE(&next, &first);
    EXPECT_EQ(next.getServerIP(), "10.1.2.3");
    EXPECT_EQ(next.getClientIP(), "10.1.2.4");
    EXPECT_EQ(next.getServerPort(), std::numeric_limits<int>::max());
    EXPECT_EQ(next.getDBPath(), "d:/db");
    EXPECT_EQ(next.getSharePath(), "//s/\"共享\"");
    EXPECT_EQ(next.getOS(), -1);
    EXPECT_EQ(next.getTimeout(), std::numeric_limits<int>::min());
    EXPECT_TRUE(next.getSelectionOutsideHint());
    EXPECT_EQ(next.getThreadCount(), 12);
}

TEST_F(GlobalConfigTest, MissingDirectoryIsCreatedAndNothingWritten)
{
    restartQuietly();
    setThreadCount(8);
    EXPECT_EQ(log.take(), Lines{"W UIAPIGlobalVar: configpath不存在！路径：" + directory + ", Create!"});
    EXPECT_EQ(engine.take(), Calls{"API::set_net_cal_thread(8)"}) << "pushed all the same";
    EXPECT_TRUE(QDir(config).exists());
    EXPECT_TRUE(QDir(config).isEmpty());
    setSelectionOutsideHint(true);
    EXPECT_EQ(log.take(), Lines{});
    EXPECT_EQ(readObject(config + "server.json")["ThreadCount"], 8) << "with the next save";
}

TEST_F(GlobalConfigTest, SetThreadCountPushesAfterTheFileIsWritten)
{
    writeFile(config + "server.json", "{}");
    restartQuietly();
    QJsonValue atPush;
    engine.onNextCall("set_net_cal_thread",
                      [&] { atPush = readObject(config + "server.json")["ThreadCount"]; });
    setThreadCount(8);
    EXPECT_EQ(atPush, 8);
    engine.throwFrom("set_net_cal_thread", "no threads");
    setThreadCount(9);
    EXPECT_EQ(getThreadCount(), 9);
    Lines const lines = log.take();
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[1], globalError("异常描述：no threads"));
}

TEST_F(GlobalConfigTest, DelJobPassesOverTheEntryAfterARemovedOne)
{
    using Names = std::vector<std::string>;
    struct Row
    {
        Names before;
        Names after; // without "a"
    };
    for (Row const & row :
         {Row{{"a", "a", "b"}, {"a", "b"}}, Row{{"a", "b", "a"}, {"b"}}, Row{{"a", "a", "a"}, {"a"}},
          Row{{"a", "a", "a", "a"}, {"a", "a"}}, Row{{"A", "a ", "b"}, {"A", "a ", "b"}}, Row{{}, {}}}) {
        OpenJobs jobs;
        for (std::string const & name : row.before) {
            jobs.setJob(name);
        }
        jobs.delJob("a");
        EXPECT_EQ(jobs.getAll(), row.after) << ::testing::PrintToString(row.before);
    }
    OpenJobs jobs;
    jobs.setJob(std::string("a\0b", 3));
    jobs.delJob("a");
    EXPECT_EQ(jobs.getAll().size(), 1U) << "names are compared to their full length";
    jobs.delJob(jobs.getAll().front());
    EXPECT_EQ(jobs.getAll(), Names{}) << "the name may be an entry of the list";
}

TEST_F(GlobalConfigTest, JobsAndTheRealBoxLiveInMemoryOnly)
{
    writeFile(config + "server.json", "{}");
    restartQuietly();
    setJobToVar("one");
    setJobToVar("two");
    setJobToVar("one");
    delJobToVar("two");
    EXPECT_EQ(getAllToVar(), (std::vector<std::string>{"one", "one"}));
    setRealBox({{1.5, -2}, {3, 4}});
    ASSERT_EQ(getRealBox().size(), 2U);
    EXPECT_EQ(getRealBox()[0].y, -2);
    EXPECT_EQ(readFile(config + "server.json"), "{}");
    delAllToVar();
    EXPECT_TRUE(getAllToVar().empty());
    restartQuietly();
    EXPECT_TRUE(getRealBox().empty());
}

} // namespace
