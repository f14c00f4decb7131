#include "ConfigTest.h"

#include "analysis/RangeStore.h"
#include "config/AttributeCatalogue.h"
#include "config/AutoMatrixStore.h"
#include "config/CamMateNodes.h"
#include "config/Diagnostics.h"
#include "config/GlobalConfigStore.h"
#include "config/SettingsFile.h"
#include "hotkey/HotkeyTools.h"
#include "hotkey/KVHotKey.h"
#include "uiapi/flat/Attributes.h"
#include "uiapi/flat/AutoMatrix.h"
#include "uiapi/flat/GlobalConfig.h"

#include <QProcess>

#include <map>

using namespace KVCAM;
using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;
using Ext::DiagnosticKind;

namespace {

char const * kindName(DiagnosticKind kind)
{
    static char const * const names[] = {"missing file", "open",     "parse", "missing", "type", "unknown",
                                         "twice",        "not read", "taken", "backup",  "save"};
    return names[static_cast<int>(kind)];
}

class DiagnosticsTest : public ConfigTest
{
protected:
    /// The findings since the last call, as "file kind key" without the directory.
    Lines found()
    {
        auto const all = Ext::diagnostics();
        Lines lines;
        for (; m_seen < all.size(); ++m_seen) {
            EXPECT_FALSE(all[m_seen].text.isEmpty());
            lines.push_back((QFileInfo(all[m_seen].file).fileName() + ' ' + kindName(all[m_seen].kind) + ' ' +
                             all[m_seen].where)
                                .trimmed()
                                .toStdString());
        }
        return lines;
    }

    /// Loads a file of the configuration directory.
    static void load(std::string const & file)
    {
        if (file == "server.json") {
            GlobalConfigStore().getGlobalConfig();
        } else if (file == "automatrix.json") {
            AutoMatrixStore().getAutoMatrixTmpMapFromJson();
        } else if (file == "attributes.json") {
            AttributeCatalogue().getTotalAttributesFromJson();
        } else if (file == "cammatenodes.json") {
            CamMateNodes().getCamMateNodesFromJson();
        } else if (file == "range.json") {
            RangeStore().scanMetaData("range", QDir::currentPath() + "/config/range.json");
        } else {
            KVHotKey::getInstance()->uploadHotkeyModel();
        }
    }

private:
    std::size_t m_seen = 0;
};

QByteArray const wholeSettings =
    R"({"ServerIp":"","ClientIp":"","Port":1,"DBPath":"","SharePath":"","OS":1,"TimeOut":1,
        "SelectionOutsideHint":true,"ThreadCount":1,"use_specifiled_suffix":true,"suffix":"",
        "modify_hotkey":true,"PythonHome":true)";
QByteArray const readKeys =
    R"(,"layer_copy_suffix":"","Movement_factor":1,"Shift_confict":1,"contour_accuracy":1)";
QByteArray const emptyTemplate = R"({"prefix":{},"suffix":{}})";

TEST_F(DiagnosticsTest, EachLoaderTellsWhatItFinds)
{
    struct Row
    {
        char const * file;
        QByteArray content;
        Lines expected;
    };
    for (
        Row const & row : {
            Row{"server.json", wholeSettings + readKeys + "}", {}},
            Row{"server.json",
                wholeSettings + ",\"LayerCopySuffix\":\"\",\"Movement_factor\":\"x\",\"Shift_confict\":null,"
                                "\"contour_accuracy\":1.5,\"Extra\":1}",
                {"missing layer_copy_suffix", "type Movement_factor", "type Shift_confict",
                 "type contour_accuracy", "unknown Extra", "not read LayerCopySuffix"}},
            Row{"server.json", "[]", {"type"}},
            Row{"automatrix.json", "{\"template\":[" + emptyTemplate + "]}", {}},
            Row{"automatrix.json",
                R"({"template":[5,{"prefix":{}},{"prefix":{},"suffix":"x"},)"
                R"({"prefix":{"drill":1,"drll":"x"},"suffix":{},"Name":"n"}],"version":1})",
                {"unknown version", "type template[0]", "missing template[1].suffix",
                 "type template[2].suffix", "unknown template[3].Name", "type template[3].prefix.drill",
                 "unknown template[3].prefix.drll"}},
            Row{"automatrix.json", "{}", {"missing template"}},
            Row{"automatrix.json",
                R"({"template":[{"name":"x","prefix":{},"suffix":{}},{"name":"x","prefix":{},"suffix":{}}]})",
                {"twice template[1]"}},
            Row{"attributes.json", R"({"TotalAttributes":[{"Attribute":".a"},{"Attribute":".b"}]})", {}},
            Row{"attributes.json",
                R"({"TotalAttributes":[{"Attribute":".a"},".b",{"Attribute":".a","unit":"1","Unit":1},)"
                R"({"hasParam":1e10,"ProAttribute":["x",5]}]})",
                {"type TotalAttributes[1]", "unknown TotalAttributes[2].Unit", "type TotalAttributes[2].unit",
                 "twice TotalAttributes[2]", "type TotalAttributes[3].ProAttribute",
                 "type TotalAttributes[3].hasParam", "missing TotalAttributes[3].Attribute"}},
            Row{"attributes.json", R"({"TotalAttributes":{}})", {"type TotalAttributes"}},
            Row{"cammatenodes.json",
                R"([{"FlowName":"a"},{"FlowName":"a","x":1},{},5,{"FlowName":5}])",
                {"unknown [1].x", "twice [1].FlowName", "missing [2].FlowName", "type [3]",
                 "type [4].FlowName"}},
            Row{"cammatenodes.json", R"({"FlowName":["a","a"]})", {"twice FlowName[1]"}},
        }) {
        writeFile(config + row.file, row.content);
        load(row.file);
        Lines expected;
        for (std::string const & line : row.expected) {
            expected.push_back(std::string(row.file) + " " + line);
        }
        EXPECT_EQ(found(), expected) << row.content.toStdString();
    }
    log.take();
    // With the switch on, the keys of a save are read, checked and not reported.
    writeFile(config + "server.json", wholeSettings + ",\"LayerCopySuffix\":\"\",\"MovementFactor\":\"x\"," +
                                          "\"ShiftConfict\":1,\"Shift_confict\":1}");
    Ext::setReadSavedSettingKeys(true);
    GlobalConfigStore().getGlobalConfig();
    EXPECT_EQ(found(), (Lines{"server.json type MovementFactor", "server.json missing contour_accuracy",
                              "server.json not read ShiftConfict"}));
}

TEST_F(DiagnosticsTest, MissingFilesAndParseErrorsAreNamedOnce)
{
    EXPECT_TRUE(Ext::diagnostics().empty()) << "asking loads nothing";
    writeFile(config + "attributes.json", "{\"TotalAttributes\": }");
    ASSERT_TRUE(QDir().mkdir(config + "automatrix.json"));
    restartQuietly();
    EXPECT_EQ(found(), (Lines{"server.json missing file", "automatrix.json open", "attributes.json parse",
                              "cammatenodes.json missing file"}));
    Ext::Diagnostic const parse = Ext::diagnostics()[2];
    EXPECT_EQ(parse.file.toStdString(), directory + "attributes.json");
    EXPECT_TRUE(parse.text.contains("offset 21")) << parse.text.toStdString();
}

// Whatever is in a file's place, reading neither blocks nor goes on forever.
TEST_F(DiagnosticsTest, WhatIsNoFileOrTooLargeIsToldAsAFileThatCannotBeOpened)
{
    std::string const broken = globalError("解析config json文件错误！路径：");
    for (auto const & [name, expected] : std::map<std::string, Lines>{
             {"server.json", {globalError("config json文件打开失败!路径："), broken}},
             {"automatrix.json", {globalError("auto matrix json文件打开失败!路径：")}},
             {"attributes.json", {globalError("total attributes json文件打开失败!路径：")}},
             {"cammatenodes.json", {broken}},
             {"range.json", {paraError("Ranger json文件打开失败!路径：")}},
             {"keyboard.json", {}}}) {
        for (std::string const kind : {
#if defined(Q_OS_UNIX) // elsewhere these have no names in folders
                 "pipe", "endless",
#endif
                     "directory", "too large"
             }) {
            QDir(config).removeRecursively();
            QDir().mkdir(config);
            QFile file(config + QString::fromStdString(name));
            ASSERT_TRUE(kind == "pipe"        ? QProcess::execute("mkfifo", {file.fileName()}) == 0
                        : kind == "endless"   ? QFile::link("/dev/zero", file.fileName())
                        : kind == "directory" ? QDir().mkdir(file.fileName())
                                              : file.open(QIODevice::WriteOnly) && file.resize(1500LL << 20));
            load(name);
            Lines lines;
            for (std::string const & line : expected) {
                lines.push_back(line + directory + (name == "server.json" ? "" : name));
            }
            EXPECT_EQ(log.take(), lines) << name;
            EXPECT_EQ(found(), name == "keyboard.json" ? Lines{} : Lines{name + " open"});
            EXPECT_EQ(name == "keyboard.json" ? Ext::lastHotkeyLoad().reason : Ext::diagnostics().back().text,
                      kind == "too large" ? "The file is too large: more than 67108864 bytes."
                                          : "It is not a regular file.");
        }
    }
}

TEST_F(DiagnosticsTest, ATemplateWithoutAnIndexIsNamed)
{
    writeFile(config + "automatrix.json",
              "{\"template\":[" + emptyTemplate + "," + emptyTemplate + "," + emptyTemplate + "]}");
    writeFile("autoMatrix/mine.json", "{\"template\":[" + emptyTemplate + "," + emptyTemplate + "]}");
    AutoMatrixStore store;
    store.getAutoMatrixTmpMapFromJson();
    store.getAutoMatrixUserTmpFromJson();
    EXPECT_EQ(found(), Lines{"mine.json taken template[0]"});
}

TEST_F(DiagnosticsTest, TheSampleConfigurationLoadsWithoutAFinding)
{
    engine.root = UIAPI_SOURCE_DIR;
    engine.configFolder = "samples/config";
    restart();
    EXPECT_EQ(log.take(), Lines{});
    EXPECT_EQ(found(), Lines{});
    EXPECT_EQ(engine.threadCount, 4);
    EXPECT_EQ(getLayerCopySuffix(), "_copy");
    EXPECT_EQ(getAutoMatrixTmpMap().size(), 2U) << "as many as leave the user's indices free";
    EXPECT_EQ(getAutoMatrixTmpMap().at(1).suffix_signal_top, "copper");
    EXPECT_FALSE(getCamMateNodes().empty());
}

struct BackupRow
{
    char const * name;
    QByteArray content;
    bool keep;
    bool expected;
};

TEST_F(DiagnosticsTest, TheFirstSaveKeepsABackupOfWhatItWouldLose)
{
    QByteArray const own = writeServerSettings({});
    for (BackupRow const & row : {
             BackupRow{"own file", own, true, false},
             BackupRow{"broken", "{\"OS\":1", true, true},
             BackupRow{"broken, not asked for", "{\"OS\":1", false, false},
             BackupRow{"unknown key", "{\"Extra\":1}", true, true},
             BackupRow{"key that is read only", "{\"layer_copy_suffix\":\"_c\"}", true, true},
         }) {
        writeFile(config + "server.json", row.content);
        QFile::remove(config + "server.json.bak");
        GlobalConfigStore store;
        store.getGlobalConfig();
        Ext::setKeepSettingsBackup(row.keep);
        store.set(&ServerSettings::os, 2);
        EXPECT_EQ(readFile(config + "server.json.bak"), row.expected ? row.content : QByteArray())
            << row.name;
        EXPECT_EQ(readObject(config + "server.json")["OS"], 2) << row.name;
        store.set(&ServerSettings::os, 3);
        EXPECT_EQ(readFile(config + "server.json.bak"), row.expected ? row.content : QByteArray())
            << row.name << ": the second save keeps nothing";
    }
    log.take();
    found();
    writeFile(config + "server.json", "[1]");
    ASSERT_TRUE(QFile::remove(config + "server.json.bak") && QDir().mkdir(config + "server.json.bak"));
    GlobalConfigStore unkept;
    unkept.getGlobalConfig();
    unkept.set(&ServerSettings::os, 4);
    EXPECT_EQ(found(), (Lines{"server.json type", "server.json backup"}));

    GlobalConfigStore store;
    store.getGlobalConfig();
    QDir(config).removeRecursively();
    store.set(&ServerSettings::os, 4); // creates the directory
    store.set(&ServerSettings::os, 5); // the first save that writes; nothing to keep
    EXPECT_EQ(QDir(config).entryList(QDir::Files), QStringList{"server.json"});
}

} // namespace
