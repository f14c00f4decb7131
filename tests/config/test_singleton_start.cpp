#include "ConfigTest.h"

#include "config/AutoMatrixFile.h"
#include "ext/Configuration.h"
#include "hotkey/HotkeyTools.h"
#include "hotkey/KVHotKey.h"
#include "support/UserDirectory.h"
#include "uiapi/flat/Attributes.h"
#include "uiapi/flat/AutoMatrix.h"
#include "uiapi/flat/GlobalConfig.h"
#include "uiapi/flat/Ranges.h"
#include "uiapi/flat/SymbolNames.h"

#include <algorithm>
#include <type_traits>

using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {

using Calls = std::vector<std::string>;

static_assert(!std::is_copy_constructible_v<UIAPIGlobalVar> && !std::is_copy_assignable_v<UIAPIGlobalVar> &&
              !std::is_destructible_v<UIAPIGlobalVar>);

class SingletonStart : public ConfigTest
{
protected:
    Lines const noSettings = {globalError("config json文件不存在！路径：" + directory),
                              globalError("config json文件打开失败!路径：" + directory),
                              globalError("解析config json文件错误！路径：" + directory)};

    static Lines joined(std::initializer_list<Lines> lists)
    {
        Lines all;
        for (Lines const & list : lists) {
            all.insert(all.end(), list.begin(), list.end());
        }
        return all;
    }
};

TEST_F(SingletonStart, FirstCallLoadsInOrderAndPushesTwice)
{
    EXPECT_EQ(UIAPIGlobalVar::m_pUIAPIGlobalVarInstance, nullptr);
    EXPECT_EQ(getTimeout(), 0);
    EXPECT_EQ(log.take(), joined({noSettings, noTemplates, noAttributes}));
    EXPECT_EQ(engine.take(), (Calls{"API::set_net_cal_thread(0)", "API::set_backup_layername_info(false )"}))
        << "the record's default suffix never reaches the engine";
    EXPECT_EQ(getThreadCount(), 0);
    EXPECT_EQ(UIAPIGlobalVar::instance(), UIAPIGlobalVar::m_pUIAPIGlobalVarInstance);
    EXPECT_EQ(log.take(), Lines{}) << "loaded once";
    EXPECT_EQ(engine.take(), Calls{});
}

TEST_F(SingletonStart, AHostThatThrowsLeavesTheDefaultsAndTheUserTemplates)
{
    writeFile("autoMatrix/mine.json", R"({"template":[{"name":"mine","prefix":{},"suffix":{}}]})");
    engine.throwFrom("getPath_config", "no host");
    engine.throwNonStandardFrom("set_net_cal_thread");
    engine.throwFrom("set_backup_layername_info", "no engine");
    UIAPIGlobalVar const & global = restart();
    EXPECT_EQ(global.getServerPort(), 8009);
    EXPECT_EQ(global.getCurrentAutoMatrixTmp().name, "mine");
    EXPECT_EQ(engine.take(), (Calls{"API::set_net_cal_thread(4)", "API::set_backup_layername_info(false )"}));
    Lines causes;
    for (std::string const & line : log.take()) {
        if (line.find("异常位置：UIAPIGlobalVar : ") == std::string::npos) {
            causes.push_back(line);
        }
    }
    std::string const cause = "异常描述：";
    EXPECT_EQ(causes, (Lines{globalError(cause + "no host"), globalError(cause + "no host"),
                             globalError(cause + "no host"), globalError(cause + "unknown exception"),
                             globalError(cause + "no engine")}))
        << "templates, attributes, nodes, two pushes; the settings fall back without a word";
}

TEST_F(SingletonStart, AnEngineThatCallsBackFindsTheFinishedObject)
{
    writeFile(config + "server.json", R"({"ThreadCount": 3})");
    int seen = 0;
    engine.onNextCall("set_net_cal_thread", [&] { seen = getThreadCount(); });
    restart();
    log.take();
    EXPECT_EQ(seen, 3);
    EXPECT_EQ(engine.take().size(), 2U);
}

// The directory is below the host's root; user templates are below the current directory.
TEST_F(SingletonStart, TheHostsRootTakesThePlaceOfTheCurrentDirectory)
{
    engine.root = QDir::currentPath().toStdString() + "/installation";
    engine.configFolder = "设置";
    QString const path = "installation/设置/";
    writeFile(path + "server.json", R"({"OS": 4})");
    writeFile(path + "automatrix.json", R"({"template":[{"name":"shipped","prefix":{},"suffix":{}}]})");
    writeFile(path + "attributes.json", R"({"TotalAttributes":[{"Attribute":".a"}]})");
    writeFile(path + "cammatenodes.json", R"([{"FlowName":"Input"}])");
    writeFile("autoMatrix/mine.json", R"({"template":[{"name":"mine","prefix":{},"suffix":{}}]})");
    restart();
    EXPECT_EQ(log.take(), Lines{});
    EXPECT_EQ(getOS(), 4);
    EXPECT_EQ(getAutomatrixMatrixIndex("shipped"), 0);
    EXPECT_EQ(getAutomatrixMatrixIndex("mine"), 2);
    EXPECT_EQ(getCurrentAutoMatrixTmp().name, "shipped");
    std::vector<std::string> names;
    getParentAttribute(names);
    EXPECT_EQ(names, std::vector<std::string>{".a"});
    EXPECT_EQ(getCamMateNodes(), std::vector<std::string>{"Input"});
}

class UserDirectory : public SingletonStart
{
protected:
    void TearDown() override
    {
        Ext::setUserDirectory({});
        SingletonStart::TearDown();
    }
    static QByteArray keyboard(char const * key)
    {
        return QByteArray(R"([{"func_name":"KP_Measure","Modifier":"Ctrl","key":")") + key + "\"}]";
    }
    static std::string firstKey() { return Ext::hotkeyBindings().at(0).keys.toStdString(); }
    /// What the engine is asked to open for the library's symbols.
    std::string library()
    {
        std::vector<std::string> names;
        getKvlibSpecialSymbol(names);
        Calls const calls = engine.take();
        auto const opened = std::find_if(calls.begin(), calls.end(), [](std::string const & call) {
            return call.find("open_job") != std::string::npos;
        });
        return opened == calls.end() ? std::string() : *opened;
    }
};

TEST_F(UserDirectory, TakesThePlaceOfTheCurrentOneForEveryFile)
{
    std::string const here = QDir::currentPath().toStdString();
    struct
    {
        std::string root; // of the host
        char const * configuration;
    } const rows[] = {{"", "site/config/"}, {"root", "site/root/config/"}, {here + "/own", "own/config/"}};
    Ext::setUserDirectory("site");
    int system = 0;
    for (auto const & row : rows) {
        engine.root = row.root;
        writeFile(row.configuration + QString("server.json"),
                  QString(R"({"OS": %1})").arg(++system).toUtf8());
        restartQuietly();
        EXPECT_EQ(getOS(), system) << row.root;
    }
    writeFile("site/autoMatrix/mine.json", R"({"template":[{"name":"mine","prefix":{},"suffix":{}}]})");
    writeFile("site/config/keyboard.json", keyboard("Q"));
    writeFile("site/ERFconfig/a/one.erf", "");
    restartQuietly();
    EXPECT_EQ(getAutomatrixMatrixIndex("mine"), 2);
    EXPECT_EQ(firstKey(), "Ctrl+Q");
    std::vector<std::string> names;
    getERFList("a", names);
    EXPECT_EQ(names, std::vector<std::string>{"one"});
    EXPECT_NE(library().find(here + "/site/job"), std::string::npos) << library();
    EXPECT_FALSE(QDir("config").exists()) << "nothing is looked for in the current directory";
}

TEST_F(UserDirectory, NamedLaterHoldsForWhatIsReadAndWrittenFromThenOn)
{
    writeFile("config/server.json", "{}");
    writeFile("config/keyboard.json", keyboard("Q"));
    writeFile("autoMatrix/mine.json", R"({"template":[{"name":"mine","prefix":{},"suffix":{}}]})");
    writeFile("site/config/keyboard.json", keyboard("W"));
    restartQuietly();
    EXPECT_EQ(firstKey(), "Ctrl+Q");
    EXPECT_TRUE(Ext::autoMatrixFile(2)->isStored);

    Ext::setUserDirectory("site");
    EXPECT_EQ(firstKey(), "Ctrl+Q") << "until it is read again";
    KVCAM::KVHotKey::getInstance()->uploadHotkeyModel();
    EXPECT_EQ(firstKey(), "Ctrl+W");
    EXPECT_FALSE(Ext::autoMatrixFile(2)->isStored);
    EXPECT_TRUE(Ext::autoMatrixFile(2)->isAlone);
    writeFile("site/autoMatrix/mine.json", "another's");
    EXPECT_FALSE(Ext::autoMatrixFile(2)->isAlone);
    saveCurrentAutoMatrixTmp(2, "mine", getAutoMatrixTmpMap().at(2));
    EXPECT_TRUE(Ext::autoMatrixFile(2)->isStored);
    EXPECT_TRUE(readFile("site/autoMatrix/mine.json").contains("\"mine\""));
    UIAPIGlobalVar::instance()->setOS(3);
    EXPECT_TRUE(readFile("config/server.json").contains("\"OS\": 3")) << "where they were read";
    EXPECT_FALSE(QFile::exists("site/config/server.json"));
}

} // namespace
