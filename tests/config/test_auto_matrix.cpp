#include "ConfigTest.h"

#include "config/AutoMatrixStore.h"
#include "ext/Configuration.h"
#include "uiapi/flat/AutoMatrix.h"

#include <QJsonArray>
#include <QSaveFile>

using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {

class AutoMatrixTest : public ConfigTest
{
protected:
    std::string const userFolder = QDir::currentPath().toStdString() + "/autoMatrix/";

    /// A template file with one element for each name.
    static QByteArray fileOf(std::initializer_list<char const *> names)
    {
        QJsonArray elements;
        for (char const * name : names) {
            elements.append(
                QJsonObject{{"name", name}, {"prefix", QJsonObject()}, {"suffix", QJsonObject()}});
        }
        return QJsonDocument(QJsonObject{{"template", elements}}).toJson();
    }
    static AutoMatrixTmp named(char const * name)
    {
        AutoMatrixTmp tmpl;
        tmpl.name = name;
        return tmpl;
    }
    void ship(QByteArray const & bytes) { writeFile(config + "automatrix.json", bytes); }
    /// The templates after a start: "0=a 2=b".
    std::string indices()
    {
        restartQuietly();
        std::string shown;
        for (auto const & [index, tmpl] : getAutoMatrixTmpMap()) {
            shown += (shown.empty() ? "" : " ") + std::to_string(index) + "=" + tmpl.name;
        }
        return shown;
    }
};

TEST_F(AutoMatrixTest, ShippedTemplatesCountFromZeroAndUserTemplatesFromTwo)
{
    struct Row
    {
        QByteArray shipped;
        std::vector<std::pair<char const *, QByteArray>> user;
        char const * expected;
    };
    QByteArray const element = R"({"name":"s","prefix":{},"suffix":{}})";
    for (Row const & row : {
             Row{fileOf({"a"}), {}, "0=a"},
             Row{fileOf({"a"}), {{"u.json", fileOf({"u"})}}, "0=a 2=u"},
             Row{fileOf({}), {{"u.json", fileOf({"u"})}}, "2=u"},
             Row{fileOf({"a", "b", "c"}), {{"u.json", fileOf({"u"})}}, "0=a 1=b 2=c"},
             // A taken index is used up: the second user template gets the next.
             Row{fileOf({"a", "b", "c"}), {{"u.json", fileOf({"u", "v"})}}, "0=a 1=b 2=c 3=v"},
             // One count over all files, in the order of their names and only with the exact suffix.
             Row{fileOf({}),
                 {{"b.json", fileOf({"x", "y"})},
                  {"a.json", fileOf({"z"})},
                  {"Z.json", fileOf({"first"})},
                  {".a.json", fileOf({"hidden"})},
                  {"c.JSON", fileOf({"no"})},
                  {"d.json.txt", fileOf({"no"})},
                  {"e.f.json", fileOf({"last"})},
                  {"sub.json/in.json", fileOf({"no"})}},
                 "2=first 3=z 4=x 5=y 6=last"},
             // Anything but a template is skipped and uses no index.
             Row{R"({"template":[1,{"prefix":{}},{"prefix":{},"suffix":[]},)" + element + "]}", {}, "0=s"},
             Row{R"({"template":{"a":1}})", {}, ""},
             Row{R"([1])", {}, ""},
             Row{R"({"other":[]})", {}, ""},
         }) {
        QDir("config").removeRecursively();
        QDir("autoMatrix").removeRecursively();
        ship(row.shipped);
        for (auto const & [name, bytes] : row.user) {
            writeFile(QString("autoMatrix/") + name, bytes);
        }
        EXPECT_EQ(indices(), row.expected) << row.shipped.toStdString();
    }
}

TEST_F(AutoMatrixTest, ATemplateOfTheUsersKnowsItsFile)
{
    ship(fileOf({"one", "two", "three"}));
    writeFile("autoMatrix/a.json", fileOf({"left out", "second"}));
    writeFile("autoMatrix/b.json", fileOf({"alone"}));
    EXPECT_EQ(indices(), "0=one 1=two 2=three 3=second 4=alone");
    auto const files = [] {
        std::string shown;
        for (int index = -1; index < 7; ++index) {
            if (auto const file = Ext::autoMatrixFile(index)) {
                shown += std::to_string(index) + "=" + file->name.toStdString() +
                         (file->isAlone ? "" : " shared") + (file->isStored ? "; " : " not stored; ");
            }
        }
        return shown;
    };
    EXPECT_EQ(files(), "3=a shared; 4=b; ");
    saveCurrentAutoMatrixTmp(5, "c", named("c"));
    saveCurrentAutoMatrixTmp(0, "a", named("a")); // overwrites another one's file
    EXPECT_EQ(files(), "0=a; 3=a shared not stored; 4=b; 5=c; ");
    deleteAutoMatrix(-1, "b");
    deleteAutoMatrix(5, "no such file");
    EXPECT_EQ(files(), "0=a; 3=a shared not stored; 4=b not stored; ");
    QDir().mkpath("autoMatrix/dir.json");
    saveCurrentAutoMatrixTmp(0, "dir", named("a")); // a save that fails
    EXPECT_EQ(boxes.take(), Lines{informationBox("File open failed")});
    EXPECT_EQ(files(), "0=a not stored; 3=a shared not stored; 4=b not stored; ");
}

TEST_F(AutoMatrixTest, EachRoleHasItsPrefixAndItsSuffix)
{
    // Name, prefixes, suffixes: the order of the aggregate.
    AutoMatrixTmp const tmpl{"0",  "1",  "2",  "3",  "4",  "5",  "6",  "7",  "8",  "9",  "10", "11", "12",
                             "13", "14", "15", "16", "17", "18", "19", "20", "21", "22", "23", "24"};
    restartQuietly();
    saveCurrentAutoMatrixTmp(7, "mine", tmpl);
    EXPECT_TRUE(readFile("autoMatrix/mine.json")
                    .startsWith("{\n    \"template\": [\n        {\n            \"name\": \"0\",\n"
                                "            \"prefix\": {\n                \"drill\": \"10\",\n"));
    QByteArray const expected = R"({"template":[{"name":"0",
        "prefix":{"solder_paste_top":"1","silk_screen_top":"2","solder_mask_top":"3","signal_top":"4",
            "signal":"5","signal_bottom":"6","solder_mask_bottom":"7","silk_screen_bottom":"8",
            "solder_paste_bottom":"9","drill":"10","rout":"11","outline":"12"},
        "suffix":{"solder_paste_top":"13","silk_screen_top":"14","solder_mask_top":"15","signal_top":"16",
            "signal":"17","signal_bottom":"18","solder_mask_bottom":"19","silk_screen_bottom":"20",
            "solder_paste_bottom":"21","drill":"22","rout":"23","outline":"24"}}]})";
    EXPECT_EQ(readObject("autoMatrix/mine.json"), QJsonDocument::fromJson(expected).object());

    restartQuietly();
    EXPECT_EQ(getCurrentAutoMatrixTmp().suffix_solder_paste_top, "13");
    EXPECT_EQ(writeAutoMatrix(getCurrentAutoMatrixTmp()), writeAutoMatrix(tmpl));
}

TEST_F(AutoMatrixTest, ValuesThatAreNoTextsAndMissingRolesReadAsEmpty)
{
    ship(R"({"template":[{"name":5,"prefix":{"drill":1,"rout":null,"signal":"l"},"suffix":{}}]})");
    restartQuietly();
    AutoMatrixTmp const tmpl = getAutoMatrixTmpMap().at(0);
    EXPECT_EQ(tmpl.name, "");
    EXPECT_EQ(tmpl.prefix_drill + tmpl.prefix_rout + tmpl.suffix_signal, "");
    EXPECT_EQ(tmpl.prefix_signal, "l");
}

TEST_F(AutoMatrixTest, FailuresToLoadAreLoggedWithTheFilesPathAndOneFileCannotSpoilTheNext)
{
    ship("{");
    writeFile("autoMatrix/a.json", "");
    writeFile("autoMatrix/b.json", fileOf({"b"}));
    AutoMatrixStore store;
    store.getAutoMatrixTmpMapFromJson();
    store.getAutoMatrixUserTmpFromJson();
    EXPECT_EQ(log.take(),
              (Lines{globalError("解析config json文件错误！路径：" + directory + "automatrix.json"),
                     globalError("解析config json文件错误！路径：" + userFolder + "a.json")}));
    EXPECT_EQ(store.getAutomatrixMatrixIndex("b"), 2);

    ASSERT_TRUE(QFile::remove(config + "automatrix.json"));
    store.getAutoMatrixTmpMapFromJson();
    EXPECT_EQ(log.take(), noTemplates);
}

TEST_F(AutoMatrixTest, NamesAreComparedByteForByteAndTheSmallestIndexWins)
{
    ship(fileOf({"x", "twice", "twice", "Größe"}));
    restartQuietly();
    EXPECT_EQ(getAutomatrixMatrixIndex("twice"), 1);
    EXPECT_EQ(getAutomatrixMatrixIndex(QString::fromUtf8("Größe")), 3);
    EXPECT_EQ(getAutomatrixMatrixIndex("X"), -1);
    EXPECT_EQ(getAutomatrixMatrixIndex(""), -1);
}

TEST_F(AutoMatrixTest, SavingAndDeletingChangeTheMapAndTheFileButNotTheSelection)
{
    ship(fileOf({"shipped"}));
    restartQuietly();
    AutoMatrixTmp mine;
    mine.name = "inner name";
    mine.prefix_drill = "d";
    saveCurrentAutoMatrixTmp(0, "file name", mine);
    EXPECT_EQ(getCurrentAutoMatrixTmp().name, "shipped");
    EXPECT_EQ(getAutomatrixMatrixIndex("inner name"), 0) << "overwritten";
    EXPECT_EQ(indices(), "0=shipped 2=inner name") << "the shipped file is never written";
    EXPECT_EQ(getAutoMatrixTmpMap().at(2).prefix_drill, "d");

    setCurrentAutoMatrixTmp(mine);
    deleteAutoMatrix(2, "file name");
    EXPECT_EQ(getAutomatrixMatrixIndex("inner name"), -1);
    EXPECT_FALSE(QFile::exists("autoMatrix/file name.json"));
    EXPECT_EQ(getCurrentAutoMatrixTmp().name, "inner name");
    deleteAutoMatrix(2, "file name");
    deleteAutoMatrix(-5, "");
    EXPECT_EQ(log.take(), Lines{});
}

TEST_F(AutoMatrixTest, AFileThatCannotBeWrittenGivesTheBoxAndTheTemplateStaysInTheMap)
{
    ASSERT_TRUE(QDir().mkpath("autoMatrix/taken.json"));
    restartQuietly();
    saveCurrentAutoMatrixTmp(4, "taken", named("t"));
    EXPECT_EQ(boxes.take(), Lines{informationBox("File open failed")});
    EXPECT_EQ(boxes.lastParent(), nullptr);
    EXPECT_EQ(getAutomatrixMatrixIndex("t"), 4);
    deleteAutoMatrix(4, "taken");
    EXPECT_TRUE(QDir("autoMatrix/taken.json").exists());

    ASSERT_TRUE(QDir("autoMatrix").removeRecursively());
    writeFile("autoMatrix", "no folder");
    saveCurrentAutoMatrixTmp(4, "t", named("t"));
    EXPECT_EQ(boxes.take(), Lines{informationBox("File open failed")});
    QSaveFile probe("autoMatrix/t.json"); // each system has its own words
    EXPECT_FALSE(probe.open(QIODevice::WriteOnly));
    EXPECT_TRUE(Ext::diagnostics().back().text.endsWith(": " + probe.errorString() + '.'));
}

TEST_F(AutoMatrixTest, ANameThatWouldLeaveTheFolderTouchesNoFile)
{
    writeFile("victim.json", "{}");
    restartQuietly();
    for (char const * name : {"../victim", "..", "a/b", "..\\victim", "c:victim", "a\nb", "a\tb", "\x7f"}) {
        saveCurrentAutoMatrixTmp(1, name, named("m"));
        EXPECT_EQ(boxes.take(), Lines{informationBox("File open failed")}) << name;
        EXPECT_EQ(getAutomatrixMatrixIndex("m"), 1) << name;
        deleteAutoMatrix(1, name);
        EXPECT_EQ(getAutomatrixMatrixIndex("m"), -1) << name;
    }
    EXPECT_EQ(QDir().entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{"victim.json"});
    EXPECT_EQ(readFile("victim.json"), "{}");
    for (char const * name : {"a..b", "v1.2", "模板", "with blank"}) {
        saveCurrentAutoMatrixTmp(1, QString::fromUtf8(name), named("m"));
        EXPECT_EQ(indices(), "2=m") << name;
        deleteAutoMatrix(1, QString::fromUtf8(name));
    }
}

} // namespace
