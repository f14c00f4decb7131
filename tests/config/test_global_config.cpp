#include "ConfigTest.h"

#include "config/Diagnostics.h"
#include "config/GlobalConfigStore.h"
#include "config/OpenJobs.h"
#include "config/SettingsFile.h"
#include "uiapi/flat/GlobalConfig.h"
#include "uiapi/flat/Selections.h"

#include <QElapsedTimer>

#include <functional>
#include <limits>
#include <random>

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

TEST_F(GlobalConfigTest, FourSettingsAreReadBackFromTheKeysTheyAreWrittenUnderOnlyWhenAskedFor)
{
    writeFile(config + "server.json", wholeFile(&KeyRow::writtenKey));
    for (bool const isAsked : {false, true}) {
        Ext::setReadSavedSettingKeys(isAsked);
        restartQuietly();
        for (KeyRow const & row : keyRows()) {
            EXPECT_EQ(row.isRead(), isAsked || std::string(row.readKey) == row.writtenKey) << row.readKey;
        }
    }
    writeFile(config + "server.json", R"({"MovementFactor":1,"Movement_factor":"x","ShiftConfict":2})");
    restartQuietly();
    EXPECT_EQ(getMovementFactor(), 0.0) << "the key that is read goes before the other, whatever it holds";
    EXPECT_EQ(getShiftConfict(), 2.0);
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
}

TEST_F(GlobalConfigTest, FallbackDefaultsApplyOnlyWhenLoadingThrows)
{
    engine.throwFrom("getPath");
    GlobalConfigStore store;
    store.getGlobalConfig();
    EXPECT_EQ(log.take(), Lines{});
    EXPECT_EQ(store.configurationDirectory(), "");
    QByteArray const expected =
        R"({"ServerIp":"127.0.0.1","ClientIp":"127.0.0.1","Port":8009,"DBPath":"c:/checklist","SharePath":"",
            "OS":0,"TimeOut":100000,"SelectionOutsideHint":false,"ThreadCount":4,"use_specifiled_suffix":false,
            "suffix":"","LayerCopySuffix":"","MovementFactor":0.4,"ShiftConfict":0.1,"ContourAccuracy":24,
            "modify_hotkey":false,"PythonHome":false})";
    EXPECT_EQ(QJsonDocument::fromJson(writeServerSettings(store.settings())),
              QJsonDocument::fromJson(expected));

    // Nowhere to write: an empty directory name counts as missing, and the current directory is left alone.
    store.set(&ServerSettings::os, 5);
    EXPECT_EQ(log.take(), Lines{"W UIAPIGlobalVar: configpath不存在！路径：, Create!"});
    EXPECT_TRUE(QDir().isEmpty());
}

TEST_F(GlobalConfigTest, EachPersistedSetterSavesAllMembersIndentedInAscendingOrder)
{
    writeFile(config + "server.json", "{}");
    UIAPIGlobalVar & global = restartQuietly();
    global.setServerIP("10.1.2.3");
    global.setClientIP("10.1.2.4");
    global.setServerPort(std::numeric_limits<int>::max());
    global.setDBPath("d:/db");
    global.setSharePath("//s/\"共享\"");
    global.setOS(-1);
    global.setTimeout(std::numeric_limits<int>::min());
    global.setSelectionOutsideHint(true);
    global.setThreadCount(12);
    EXPECT_EQ(readFile(config + "server.json").replace("\r\n", "\n"), R"({
    "ClientIp": "10.1.2.4",
    "ContourAccuracy": 0,
    "DBPath": "d:/db",
    "LayerCopySuffix": "",
    "MovementFactor": 0,
    "OS": -1,
    "Port": 2147483647,
    "PythonHome": false,
    "SelectionOutsideHint": true,
    "ServerIp": "10.1.2.3",
    "SharePath": "//s/\"共享\"",
    "ShiftConfict": 0,
    "ThreadCount": 12,
    "TimeOut": -2147483648,
    "modify_hotkey": false,
    "suffix": "",
    "use_specifiled_suffix": false
}
)");
    EXPECT_TRUE(Ext::lastSettingsSave().ok);
}

TEST_F(GlobalConfigTest, AMissingDirectoryIsCreatedWithItsParentsAndNothingWritten)
{
    engine.configFolder = "not/yet/there";
    restartQuietly();
    EXPECT_TRUE(Ext::lastSettingsSave().ok) << "nothing was saved yet";
    setThreadCount(8);
    std::string const wanted = QDir::currentPath().toStdString() + "/not/yet/there/";
    EXPECT_EQ(log.take(), Lines{"W UIAPIGlobalVar: configpath不存在！路径：" + wanted + ", Create!"});
    EXPECT_EQ(engine.take(), Calls{"API::set_net_cal_thread(8)"}) << "pushed all the same";
    EXPECT_TRUE(QDir("not/yet/there").exists() && QDir("not/yet/there").isEmpty());
    EXPECT_EQ(Ext::lastSettingsSave().reason, "The directory was created and nothing written.");
    EXPECT_EQ(Ext::diagnostics().back().kind, Ext::DiagnosticKind::SaveFailed);
    setSelectionOutsideHint(true);
    EXPECT_EQ(log.take(), Lines{});
    EXPECT_EQ(readObject("not/yet/there/server.json")["ThreadCount"], 8) << "with the next save";
    EXPECT_TRUE(Ext::lastSettingsSave().ok);

    ASSERT_TRUE(QDir("not").removeRecursively());
    writeFile("not", "a file");
    setThreadCount(9);
    EXPECT_EQ(Ext::lastSettingsSave().reason, "There is no directory, and it cannot be created.");
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

// Random lists, checked against the rule as written: the index advances after a removal too.
TEST_F(GlobalConfigTest, DelJobPassesOverTheEntryAfterARemovedOne)
{
    using Names = std::vector<std::string>;
    std::mt19937 random(5);
    for (int run = 0; run < 3000; ++run) {
        OpenJobs jobs;
        Names expected;
        for (std::size_t i = random() % 9; i > 0; --i) {
            expected.push_back(Names{"a", "a", "b", "A", "a ", std::string("a\0b", 3)}[random() % 6]);
            jobs.setJob(expected.back());
        }
        std::string const before = ::testing::PrintToString(expected);
        for (std::size_t i = 0; i < expected.size(); ++i) {
            if (expected[i] == "a") {
                expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(i));
            }
        }
        jobs.delJob("a");
        ASSERT_EQ(jobs.getAll(), expected) << before;
    }
    OpenJobs jobs;
    for (int i = 0; i < 400000; ++i) {
        jobs.setJob("a");
    }
    QElapsedTimer clock;
    clock.start();
    jobs.delJob(jobs.getAll().front()); // the name may be an entry of the list
    EXPECT_EQ(jobs.getAll().size(), 200000U);
    EXPECT_LT(clock.elapsed(), 5000) << "minutes, where each removal moves the rest";
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
    setRealBox({{5, 6}, {7, 8}, {9, 10}});
    setRealBox({{1.5, -2}, {3, 4}});
    ASSERT_EQ(getRealBox().size(), 2U) << "replaced";
    EXPECT_EQ(getRealBox()[0].y, -2);
    EXPECT_EQ(readFile(config + "server.json"), "{}");
    delAllToVar();
    EXPECT_TRUE(getAllToVar().empty());
    restartQuietly();
    EXPECT_TRUE(getRealBox().empty());
}

} // namespace
