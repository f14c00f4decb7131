#include "harness/UiapiTest.h"

#include "hotkey/HotkeyTools.h"
#include "hotkey/KVHotKey.h"

#include <QDir>
#include <QFile>
#include <QKeyEvent>
#include <QKeySequence>
#include <QRegularExpression>

#include <algorithm>

using namespace KVCAM;
using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {

static_assert(!std::is_copy_constructible_v<KVHotKey> && !std::is_copy_assignable_v<KVHotKey>);
static_assert(std::has_virtual_destructor_v<KVHotKey>);

// Code, name in the file, keys.
char const * const defaults[] = {
    "1 KP_AllSelect Ctrl+A",
    "2 KP_ReverseSelect Shift+R",
    "3 KP_ShowCAMGuide Shift+G",
    "4 KP_Nequtive Ctrl+N",
    "5 KP_Profile Ctrl+T",
    "6 KP_WidthMode Ctrl+W",
    "7 KP_EditUndo Ctrl+Z",
    "8 KP_EditMoveSamelayer Ctrl+X",
    "9 KP_EditBuferCopy Ctrl+C",
    "10 KP_EditBuferPaste Ctrl+V",
    "11  Ctrl+B",
    "12 KP_ToolMoveSnap Ctrl+S",
    "13 KP_ToolMoveHome Ctrl+H",
    "14 KP_ToolMoveUp Ctrl+U",
    "15 KP_ToolMoveDown Ctrl+D",
    "16 KP_ToolMoveRight Ctrl+R",
    "17 KP_ToolMoveLeft Ctrl+L",
    "18 KP_ToolRefersh Ctrl+F",
    "19 KP_EditContourize Shift+Z",
    "20 KP_ToolMovePanUp Shift+Up",
    "21 KP_ToolMovePanDown Shift+Down",
    "22 KP_ToolMovePanRight Shift+Right",
    "23 KP_ToolMovePanLeft Shift+Left",
    "24 KP_Compare Shift+C",
    "25 KP_MoveByMouseCenter Ctrl+E",
    "26 KP_CopyOrignal Ctrl+O",
    "27 KP_Tranform Shift+T",
    "28 KP_SelectSameFeature E",
    "29 KP_ChangeUnit Shift+U",
    "30 KP_Measure Shift+V",
    "31 KK_SnapSkeleton S, S",
    "32 KK_SnapOff S, O",
    "33 KK_SnapGrid S, G",
    "34 KK_SnapCenter S, C",
    "35 KK_SnapArc S, R",
    "36 KK_SnapEdge S, E",
    "37 KK_SnapIntersect S, I",
    "38 KK_SnapMidpoint S, M",
    "39 KK_SnapProfile S, P",
    "40 KK_SnapAdv S, A",
    "41 KK_Hightlight S, N",
};

QString shown(Ext::HotkeyBinding const & binding)
{
    return QString("%1 %2 %3").arg(binding.code).arg(binding.name, binding.keys);
}

QStringList shown(std::vector<Ext::HotkeyBinding> const & bindings)
{
    QStringList result;
    for (auto const & binding : bindings) {
        result.append(shown(binding));
    }
    return result;
}

// "2 UnknownKey key1": element, kind and what the text quotes or names first; without the functions that have
// no key.
QStringList shown(std::vector<Ext::HotkeyFinding> const & findings)
{
    char const * const kinds[] = {"Unreadable",      "NotAnArray",    "UnknownFunction", "UnknownKey",
                                  "UnknownModifier", "KeyBesidePair", "SameKeys",        "NeverFires"};
    QStringList result;
    for (auto const & finding : findings) {
        if (finding.kind != Ext::HotkeyFindingKind::WithoutKey) {
            QString const word = QRegularExpression("\\w+").match(finding.text).captured();
            result.append(
                QString("%1 %2 %3").arg(finding.element).arg(kinds[static_cast<int>(finding.kind)], word));
        }
    }
    return result;
}

QStringList withoutKey(std::vector<Ext::HotkeyFinding> const & findings)
{
    QStringList result;
    for (auto const & finding : findings) {
        if (finding.kind == Ext::HotkeyFindingKind::WithoutKey) {
            result.append(finding.text);
        }
    }
    return result;
}

class HotkeyTest : public UiapiTest
{
protected:
    void TearDown() override
    {
        EXPECT_EQ(log.take(), Lines{}) << "nothing is ever logged";
        EXPECT_EQ(engine.take(), std::vector<std::string>{});
        UiapiTest::TearDown();
    }

    static void writeFile(QByteArray const & bytes)
    {
        QDir().mkpath("config");
        QFile file(Ext::hotkeyFile);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
    /// The object as the next process finds it.
    static KVHotKey & restart()
    {
        delete KVHotKey::m_pKVHotKeyInstance;
        KVHotKey::m_pKVHotKeyInstance = nullptr;
        KVHotKey * const keys = KVHotKey::getInstance();
        EXPECT_EQ(keys, KVHotKey::getInstance());
        EXPECT_EQ(keys, KVHotKey::m_pKVHotKeyInstance);
        return *keys;
    }
    /// Presses keys that blanks part, "S G Ctrl+C"; the codes in the same form.
    static QString press(QString const & keys)
    {
        QStringList codes;
        for (QString const & key : keys.split(' ')) {
            int const number = QKeySequence(key)[0];
            QKeyEvent event(QEvent::KeyPress, number & ~static_cast<int>(Qt::KeyboardModifierMask),
                            Qt::KeyboardModifiers(number & static_cast<int>(Qt::KeyboardModifierMask)));
            codes.append(QString::number(KVHotKey::getInstance()->getFunctionCode(&event)));
        }
        return codes.join(' ');
    }
};

TEST_F(HotkeyTest, EachDefaultAnswersToItsKeysAndAPlainKeyToNone)
{
    restart();
    QStringList const expected(std::begin(defaults), std::end(defaults));
    EXPECT_EQ(shown(Ext::bindings()), expected);
    for (Ext::HotkeyBinding const & binding : Ext::bindings()) {
        QString const codes = press(QString(binding.keys).replace(", ", " "));
        QString const code = QString::number(binding.code);
        bool const isPlain = binding.code == KP_SelectSameFeature;
        EXPECT_EQ(binding.answers, !isPlain);
        EXPECT_EQ(codes.section(' ', -1), isPlain ? "0" : code) << binding.keys.toStdString();
    }
    EXPECT_EQ(shown(Ext::hotkeyReport()), QStringList{"-1 NeverFires KP_SelectSameFeature"});
    EXPECT_EQ(withoutKey(Ext::hotkeyReport()), QStringList{"KP_SelectSameFeature has no key."});
    EXPECT_STREQ(KVHotKey::getInstance()->metaObject()->className(), "KVCAM::KVHotKey");
}

TEST_F(HotkeyTest, TheBufferHoldsTheLastTwoPlainKeys)
{
    struct
    {
        char const * keys;
        char const * codes;
    } const rows[] = {
        {"S G Ctrl+C", "0 33 9"},
        {"S S O", "0 31 32"}, // a match does not clear the buffer
        {"S S S", "0 31 31"},
        {"A S G", "0 0 33"},
        {"S A G", "0 40 0"},
        {"S Ctrl+Z G", "0 7 0"}, // any key with a modifier clears it, bound or not
        {"S Alt+Q G", "0 0 0"},
        {"S Num+G G", "0 0 0"}, // that of the keypad is one, too
        {"Up S G", "0 0 33"},   // an arrow takes a place, but is part of no sequence
        {"S Up G", "0 0 0"},
        {"Up Down Left", "0 0 0"},
        {"S F1 G", "0 0 0"},
        {"E E", "0 0"},
        {"Ctrl+Shift+A Ctrl+Num+A Shift+A A Ctrl+A", "0 0 0 0 1"}, // the whole mask counts
        {"Shift+Up Shift+Num+Up", "20 0"},
    };
    for (auto const & row : rows) {
        restart();
        EXPECT_EQ(press(row.keys), row.codes) << row.keys;
    }
    restart();
    press("S");
    EXPECT_EQ(KVHotKey::getInstance()->getFunctionCode(nullptr), KP_NoFunction);
    EXPECT_EQ(press("G"), "33") << "a null event is no key";
}

TEST_F(HotkeyTest, TwoKeysFormAGroupWithinEitherRange)
{
    struct
    {
        int first;
        int second;
        bool isGroup;
    } const rows[] = {
        {48, 122, true},
        {122, 48, true},
        {47, 48, false},
        {48, 123, false},
        {-1, 48, false},
        {12, 15, true}, // the numbers as such, not the arrow keys
        {11, 12, false},
        {15, 16, false},
        {13, 50, false},
        {50, 13, false},
        {Qt::Key_Up, Qt::Key_Down, false},
        {Qt::Key_Left, Qt::Key_Left, false},
    };
    KVHotKey & keys = restart();
    for (auto const & row : rows) {
        keys.buffClear();
        keys.buffAddKey(static_cast<Qt::Key>(row.first));
        EXPECT_FALSE(keys.buffHasGroup()) << row.first;
        keys.buffAddKey(static_cast<Qt::Key>(row.second));
        EXPECT_EQ(keys.buffHasGroup(), row.isGroup) << row.first << ' ' << row.second;
    }
    keys.buffClear();
    EXPECT_FALSE(keys.buffHasGroup());
}

TEST_F(HotkeyTest, AFileReplacesBothTablesAndItsDryRunTellsWhatIsLeftOut)
{
    struct Row
    {
        QByteArray file;
        QStringList bindings; ///< the single keys first
        QStringList findings;
    };
    auto const bound = [](char const * members) {
        return QByteArray(R"([{"func_name":"KP_Measure",)") + members + "}]";
    };
    for (Row const & row : {
             Row{"[]", {}, {}},
             Row{"{}", {}, {"-1 NotAnArray The"}},
             Row{R"({"keys":[{"func_name":"KP_Measure","Modifier":"Ctrl","key":"A"}]})",
                 {},
                 {"-1 NotAnArray The"}},
             Row{R"([1,null,"KP_Measure",[],{}])",
                 {},
                 {"0 UnknownFunction func_name", "1 UnknownFunction func_name", "2 UnknownFunction func_name",
                  "3 UnknownFunction func_name", "4 UnknownFunction func_name"}},
             Row{R"([{"func_name":"kp_measure","key":"A"},{"func_name":"KP_Negative","key1":"S"}])",
                 {},
                 {"0 UnknownFunction func_name", "1 UnknownFunction func_name"}},
             // Sequences; lower case is upper case, and a modifier does not matter.
             Row{bound(R"("key1":"s","key2":"g","Modifier":"?")"), {"30 KP_Measure S, G"}, {}},
             Row{bound(R"("key1":"0","key2":"`","key":7)"), {"30 KP_Measure 0, `"}, {}},
             Row{bound(R"("key1":"s","key2":"up")"), {"30 KP_Measure S, Up"}, {"0 NeverFires KP_Measure"}},
             Row{bound(R"("key1":"s","key2":"g","key":"A","Modifier":"Ctrl")"), {}, {"0 KeyBesidePair key"}},
             Row{bound(R"("key1":"s","key2":"{")"), {}, {"0 UnknownKey key2"}},
             Row{bound(R"("key1":"F1","key2":"/")"), {}, {"0 UnknownKey key1"}},
             // Half a pair counts as none.
             Row{bound(R"("key1":"s","key":"a","Modifier":"Shift")"), {"30 KP_Measure Shift+A"}, {}},
             Row{bound(R"("key1":"s","key2":"","key":"a")"),
                 {"30 KP_Measure A"},
                 {"0 NeverFires KP_Measure"}},
             Row{bound(R"("key1":"s")"), {}, {"0 UnknownKey key2"}},
             Row{bound(R"("key2":"s","key1":3)"), {}, {"0 UnknownKey key1"}},
             // Single keys.
             Row{bound(R"("key":"A","Modifier":"")"), {"30 KP_Measure A"}, {"0 NeverFires KP_Measure"}},
             Row{bound(R"("key":"A","Modifier":5)"), {"30 KP_Measure A"}, {"0 NeverFires KP_Measure"}},
             Row{bound(R"("key":"[","Modifier":"CTRL")"), {"30 KP_Measure Ctrl+["}, {}},
             Row{bound(R"("key":"LEFT","Modifier":"shift")"), {"30 KP_Measure Shift+Left"}, {}},
             Row{bound(R"("key":"Down","Modifier":"ctrl")"), {"30 KP_Measure Ctrl+Down"}, {}},
             Row{bound(R"("key":"A","Modifier":"Alt")"), {}, {"0 UnknownModifier Modifier"}},
             Row{bound(R"("key":"A","Modifier":"Ctrl+Shift")"), {}, {"0 UnknownModifier Modifier"}},
             Row{bound(R"("key":"aa","Modifier":"sHIFT")"), {}, {"0 UnknownKey key"}},
             Row{bound(R"("Modifier":"Ctrl")"), {}, {"0 UnknownKey key"}},
             // In the order of the file; of equal ones the first answers.
             Row{R"([{"func_name":"KK_SnapOff","key1":"q","key2":"q"},
                     {"func_name":"KP_Measure","Modifier":"Ctrl","key":"B"},
                     {"func_name":"no"},
                     {"func_name":"KP_Compare","Modifier":"Ctrl","key":"b"},
                     {"func_name":"KK_SnapGrid","key1":"Q","key2":"Q"}])",
                 {"30 KP_Measure Ctrl+B", "24 KP_Compare Ctrl+B", "32 KK_SnapOff Q, Q",
                  "33 KK_SnapGrid Q, Q"},
                 {"2 UnknownFunction func_name", "3 SameKeys KP_Compare", "4 SameKeys KK_SnapGrid"}},
             Row{"\xEF\xBB\xBF[\r\n]\r\n", {}, {}},
         }) {
        restart().uploadHotkeyModel(); // without the file
        EXPECT_EQ(Ext::bindings().size(), std::size(defaults));
        writeFile(row.file);
        Ext::HotkeyTrial const trial = Ext::tryLoadHotkeys(Ext::hotkeyFile);
        EXPECT_EQ(Ext::bindings().size(), std::size(defaults)) << "a dry run changes nothing";
        EXPECT_TRUE(trial.loads);
        EXPECT_EQ(shown(trial.findings), row.findings) << row.file.toStdString();
        auto const answering = std::count_if(trial.bindings.begin(), trial.bindings.end(),
                                             [](auto const & binding) { return binding.answers; });
        EXPECT_EQ(withoutKey(trial.findings).size(), 41 - answering) << row.file.toStdString();

        restart();
        EXPECT_EQ(shown(Ext::bindings()), row.bindings) << row.file.toStdString();
        QStringList tried = shown(trial.bindings);
        std::stable_partition(tried.begin(), tried.end(),
                              [](auto const & keys) { return !keys.contains(','); });
        EXPECT_EQ(tried, row.bindings);
        for (Ext::HotkeyBinding const & binding : Ext::bindings()) {
            QString const code = press(QString(binding.keys).replace(", ", " ")).section(' ', -1);
            EXPECT_EQ(code == QString::number(binding.code), binding.answers) << binding.keys.toStdString();
        }
        EXPECT_NE(press("Ctrl+B"), "11") << "no file can name it";
        QFile::remove(Ext::hotkeyFile);
    }
}

TEST_F(HotkeyTest, AFileThatCannotBeReadOrParsedChangesNothing)
{
    for (char const * text : {"", "[", "[1,]", "7", "\xFF", "no JSON"}) {
        writeFile(text);
        restart();
        EXPECT_EQ(Ext::bindings().size(), std::size(defaults)) << text;
        Ext::HotkeyTrial const trial = Ext::tryLoadHotkeys(Ext::hotkeyFile);
        EXPECT_FALSE(trial.loads);
        ASSERT_EQ(trial.findings.size(), 1U);
        EXPECT_TRUE(trial.findings[0].text.startsWith("The file is not JSON: ")) << text;
    }
    QFile::remove(Ext::hotkeyFile);
    EXPECT_EQ(Ext::tryLoadHotkeys(Ext::hotkeyFile).findings[0].text, "The file is not there.");
    QDir().mkpath(Ext::hotkeyFile);
    restart();
    EXPECT_EQ(press("Ctrl+B"), "11");
    EXPECT_EQ(Ext::tryLoadHotkeys(Ext::hotkeyFile).findings[0].text, "The file cannot be opened.");
}

TEST_F(HotkeyTest, TheDefaultsAgainReplaceTheSingleKeysAndAreAddedToTheSequences)
{
    writeFile(R"([{"func_name":"KP_Measure","key1":"S","key2":"G"},
                  {"func_name":"KP_Measure","Modifier":"Ctrl","key":"A"},
                  {"func_name":"KP_Measure","Modifier":"Ctrl","key":"Q"}])");
    KVHotKey & keys = restart();
    EXPECT_EQ(press("S G Ctrl+A Ctrl+Q"), "0 30 30 30");
    keys.initHotkeyTable();
    EXPECT_EQ(press("S G O S O Ctrl+A Ctrl+Q"), "0 30 0 0 32 1 0");
    keys.initHotkeyTable();
    EXPECT_EQ(Ext::bindings().size(), 30U + 1 + 11 + 11);
    EXPECT_EQ(shown(Ext::hotkeyReport()).filter("SameKeys").size(), 1 + 11);
    keys.uploadHotkeyModel();
    EXPECT_EQ(Ext::bindings().size(), 3U);
    EXPECT_EQ(press("S G S O Ctrl+A"), "0 30 0 0 30");
}

TEST_F(HotkeyTest, AnExportedTableLoadsAsTheSameTable)
{
    writeFile(R"([{"func_name":"KP_Measure","key1":"\\","key2":"'"},
                  {"func_name":"KP_Measure","Modifier":"ctrl","key":"up"},
                  {"func_name":"KP_Compare","Modifier":"ctrl","key":"up"},
                  {"func_name":"KP_Compare","key":"z"},
                  {"func_name":"KK_SnapOff","key1":"a","key2":"left"}])");
    for (bool const isDefault : {false, true}) {
        if (isDefault) {
            QFile::remove(Ext::hotkeyFile);
        }
        restart();
        QStringList before = shown(Ext::bindings());
        Ext::HotkeyExport const result = Ext::exportHotkeys("./config/out.json");
        EXPECT_EQ(result.error, "");
        EXPECT_EQ(shown(result.leftOut), isDefault ? QStringList{"11  Ctrl+B"} : QStringList());
        EXPECT_EQ(shown(Ext::bindings()), before);
        QFile::remove(Ext::hotkeyFile);
        ASSERT_TRUE(QFile::rename("config/out.json", Ext::hotkeyFile));
        restart();
        before.removeAll("11  Ctrl+B");
        EXPECT_EQ(shown(Ext::bindings()), before);
    }
    EXPECT_NE(Ext::exportHotkeys("nowhere/out.json").error, "");
    QDir().mkdir("taken");
    EXPECT_NE(Ext::exportHotkeys("taken").error, "");
    EXPECT_NE(Ext::exportHotkeys("").error, "");
}

TEST_F(HotkeyTest, ThePendingKeyAndWhatMayFollowAreToldWithoutTouchingThem)
{
    writeFile(R"([{"func_name":"KK_SnapOff","key1":"S","key2":"O"},
                  {"func_name":"KK_SnapGrid","key1":"S","key2":"G"},
                  {"func_name":"KK_SnapArc","key1":"S","key2":"O"},
                  {"func_name":"KK_SnapEdge","key1":"S","key2":"Up"},
                  {"func_name":"KP_Measure","key1":"G","key2":"M"}])");
    restart();
    struct
    {
        char const * keys;
        char const * codes;
        char const * hint;
    } const rows[] = {
        {"Ctrl+Q", "0", ":"},
        {"S", "0", "S: O KK_SnapOff, G KK_SnapGrid"},
        {"G", "33", "G: M KP_Measure"},
        {"M", "30", "M:"},
        {"F1", "0", "F1:"},
        {"S", "0", "S: O KK_SnapOff, G KK_SnapGrid"},
        {"Shift+Q", "0", ":"},
        {"G", "0", "G: M KP_Measure"},
    };
    for (auto const & row : rows) {
        EXPECT_EQ(press(row.keys), row.codes) << row.keys;
        QStringList following;
        for (Ext::HotkeyContinuation const & next : Ext::continuations()) {
            following.append(' ' + next.key + ' ' + next.name);
        }
        EXPECT_EQ(Ext::pendingKey() + ':' + following.join(','), row.hint) << row.keys;
    }
}

} // namespace
