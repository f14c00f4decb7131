#include "harness/UiapiTest.h"

#include "hotkey/HotkeyTools.h"
#include "hotkey/KVHotKey.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QKeyEvent>
#include <QKeySequence>
#include <QRegularExpression>

#include <algorithm>
#include <tuple>

using namespace KVCAM;
using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {

static_assert(!std::is_copy_constructible_v<KVHotKey> && !std::is_copy_assignable_v<KVHotKey>);
static_assert(std::has_virtual_destructor_v<KVHotKey>);

// Code, name in the file, keys.
QStringList defaults()
{
    return QString(R"(1 KP_AllSelect Ctrl+A | 2 KP_ReverseSelect Shift+R | 3 KP_ShowCAMGuide Shift+G |
4 KP_Nequtive Ctrl+N | 5 KP_Profile Ctrl+T | 6 KP_WidthMode Ctrl+W | 7 KP_EditUndo Ctrl+Z |
8 KP_EditMoveSamelayer Ctrl+X | 9 KP_EditBuferCopy Ctrl+C | 10 KP_EditBuferPaste Ctrl+V |
11  Ctrl+B | 12 KP_ToolMoveSnap Ctrl+S | 13 KP_ToolMoveHome Ctrl+H | 14 KP_ToolMoveUp Ctrl+U |
15 KP_ToolMoveDown Ctrl+D | 16 KP_ToolMoveRight Ctrl+R | 17 KP_ToolMoveLeft Ctrl+L |
18 KP_ToolRefersh Ctrl+F | 19 KP_EditContourize Shift+Z | 20 KP_ToolMovePanUp Shift+Up |
21 KP_ToolMovePanDown Shift+Down | 22 KP_ToolMovePanRight Shift+Right |
23 KP_ToolMovePanLeft Shift+Left | 24 KP_Compare Shift+C | 25 KP_MoveByMouseCenter Ctrl+E |
26 KP_CopyOrignal Ctrl+O | 27 KP_Tranform Shift+T | 28 KP_SelectSameFeature E |
29 KP_ChangeUnit Shift+U | 30 KP_Measure Shift+V | 31 KK_SnapSkeleton S, S | 32 KK_SnapOff S, O |
33 KK_SnapGrid S, G | 34 KK_SnapCenter S, C | 35 KK_SnapArc S, R | 36 KK_SnapEdge S, E |
37 KK_SnapIntersect S, I | 38 KK_SnapMidpoint S, M | 39 KK_SnapProfile S, P | 40 KK_SnapAdv S, A |
41 KK_Hightlight S, N)")
        .split(QRegularExpression(" \\|\\s"));
}

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

// "[2].key1 UnknownKey": place, kind, and the first word quoted or named; without the functions that
// have no key.
QStringList shown(std::vector<Ext::HotkeyFinding> const & findings)
{
    char const * const kinds[] = {"Unreadable",      "NotAnArray",    "UnknownFunction", "UnknownKey",
                                  "UnknownModifier", "KeyBesidePair", "SameKeys",        "NeverFires"};
    QStringList result;
    for (auto const & finding : findings) {
        if (finding.kind != Ext::HotkeyFindingKind::WithoutKey) {
            QString const word = QRegularExpression("\\w+").match(finding.text).captured();
            EXPECT_EQ(finding.element, finding.where.isEmpty() ? -1 : finding.where.mid(1, 1).toInt());
            result.append(finding.where + ' ' + kinds[static_cast<int>(finding.kind)] +
                          (finding.where.endsWith('.' + word) ? "" : ' ' + word));
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
    /// The object as in the next process.
    static KVHotKey & restart()
    {
        delete KVHotKey::m_pKVHotKeyInstance;
        KVHotKey::m_pKVHotKeyInstance = nullptr;
        KVHotKey * const keys = KVHotKey::getInstance();
        EXPECT_EQ(keys, KVHotKey::getInstance());
        EXPECT_EQ(keys, KVHotKey::m_pKVHotKeyInstance);
        return *keys;
    }
    /// Presses keys separated by blanks, "S G Ctrl+C"; returns the codes in the same form.
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
    EXPECT_EQ(shown(Ext::hotkeyBindings()), defaults());
    for (Ext::HotkeyBinding const & binding : Ext::hotkeyBindings()) {
        QString const codes = press(QString(binding.keys).replace(", ", " "));
        QString const code = QString::number(binding.code);
        bool const isPlain = binding.code == KP_SelectSameFeature;
        EXPECT_EQ(binding.answers, !isPlain);
        EXPECT_EQ(codes.section(' ', -1), isPlain ? "0" : code) << binding.keys.toStdString();
    }
    EXPECT_EQ(shown(Ext::hotkeyReport()), QStringList{" NeverFires KP_SelectSameFeature"});
    EXPECT_EQ(withoutKey(Ext::hotkeyReport()), QStringList{"KP_SelectSameFeature has no key."});
}

TEST_F(HotkeyTest, TheBufferHoldsTheLastTwoPlainKeys)
{
    // A match does not clear the buffer; any key with a modifier does, bound or not, the keypad's too,
    // and its whole mask counts. An arrow takes a place but belongs to no sequence.
    struct Row
    {
        char const *keys, *codes;
    };
    for (auto const & [keys, codes] :
         {Row{"S G Ctrl+C", "0 33 9"}, Row{"S S O", "0 31 32"}, Row{"S S S", "0 31 31"},
          Row{"A S G", "0 0 33"}, Row{"S A G", "0 40 0"}, Row{"S Ctrl+Z G", "0 7 0"},
          Row{"S Alt+Q G", "0 0 0"}, Row{"S Num+G G", "0 0 0"}, Row{"Up S G", "0 0 33"},
          Row{"S Up G", "0 0 0"}, Row{"Up Down Left", "0 0 0"}, Row{"S F1 G", "0 0 0"}, Row{"E E", "0 0"},
          Row{"Ctrl+Shift+A Ctrl+Num+A Shift+A A Ctrl+A", "0 0 0 0 1"},
          Row{"Shift+Up Shift+Num+Up", "20 0"}}) {
        restart();
        EXPECT_EQ(press(keys), codes) << keys;
    }
    restart();
    press("S");
    EXPECT_EQ(KVHotKey::getInstance()->getFunctionCode(nullptr), KP_NoFunction);
    EXPECT_EQ(press("G"), "33") << "a null event is no key";
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_S, Qt::NoModifier, "s", true, 3);
    EXPECT_EQ(KVHotKey::getInstance()->getFunctionCode(&repeated), KP_NoFunction) << "G, S, and not S, S, S";
    EXPECT_EQ(KVHotKey::getInstance()->getFunctionCode(&repeated), KK_SnapSkeleton)
        << "repeats are key presses";
}

TEST_F(HotkeyTest, TwoKeysFormAGroupWithinEitherRange)
{
    KVHotKey & keys = restart();
    // 12 to 15 are plain numbers, not the codes of the arrow keys.
    struct Row
    {
        int first, second;
        bool isGroup;
    };
    for (auto const & [first, second, isGroup] :
         {Row{48, 122, true}, Row{122, 48, true}, Row{47, 48, false}, Row{48, 123, false}, Row{-1, 48, false},
          Row{12, 15, true}, Row{11, 12, false}, Row{15, 16, false}, Row{13, 50, false}, Row{50, 13, false},
          Row{Qt::Key_Up, Qt::Key_Down, false}, Row{Qt::Key_Left, Qt::Key_Left, false}}) {
        keys.buffClear();
        keys.buffAddKey(static_cast<Qt::Key>(first));
        EXPECT_FALSE(keys.buffHasGroup()) << first;
        keys.buffAddKey(static_cast<Qt::Key>(second));
        EXPECT_EQ(keys.buffHasGroup(), isGroup) << first << ' ' << second;
    }
}

// Each word alone in a file, with its code.
TEST_F(HotkeyTest, EverySpellingOfTheFileIsKnown)
{
    struct Spelling
    {
        QString function, modifier, key;
        int code, number; ///< the code of the pressed key
        Qt::KeyboardModifiers pressed;
    };
    std::vector<Spelling> spellings;
    auto const addKey = [&](QString const & name, int number, int code = KP_Measure) {
        spellings.push_back({"KP_Measure", "Ctrl", name, code, number, Qt::ControlModifier});
    };
    for (QChar const c : QString("0123456789:;<=>?@ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^_`")) {
        addKey(c, c.unicode());
    }
    for (QChar const c : QString("abcdefghijklmnopqrstuvwxyz")) {
        addKey(c, c.unicode() - 32);
    }
    int number = 16777234;
    for (QString const names : {"Left LEFT left", "Up UP up", "Right RIGHT right", "Down DOWN down"}) {
        for (QString const & name : names.split(' ')) {
            addKey(name, number);
        }
        ++number;
    }
    for (QString const & name : QString("/ { lEFT F1 Space ").split(' ')) {
        addKey(name, '/', KP_NoFunction); // none of these
    }
    for (QString const name : {"Shift", "SHIFT", "shift", "Ctrl", "CTRL", "ctrl"}) {
        Qt::KeyboardModifiers const pressed(name.toLower() == "shift" ? 0x02000000 : 0x04000000);
        spellings.push_back({"KP_Measure", name, "Q", KP_Measure, 'Q', pressed});
    }
    for (QString const & row : defaults()) {
        if (QString const name = row.section(' ', 1, 1); !name.isEmpty()) {
            spellings.push_back(
                {name, "Ctrl", "Q", row.section(' ', 0, 0).toInt(), 'Q', Qt::ControlModifier});
        }
    }
    EXPECT_EQ(spellings.size(), 49U + 26 + 12 + 6 + 6 + 40);
    for (Spelling const & each : spellings) {
        QJsonObject const element{
            {"func_name", each.function}, {"Modifier", each.modifier}, {"key", each.key}};
        writeFile(QJsonDocument(QJsonArray({element})).toJson());
        KVHotKey & keys = restart();
        EXPECT_TRUE(Ext::lastHotkeyLoad().ok);
        QKeyEvent event(QEvent::KeyPress, each.number, each.pressed);
        EXPECT_EQ(keys.getFunctionCode(&event), each.code)
            << qPrintable(each.function + ' ' + each.modifier + ' ' + each.key);
    }
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
             Row{"{}", {}, {" NotAnArray The"}},
             Row{R"([1,null,"KP_Measure",[],{}])",
                 {},
                 {"[0].func_name UnknownFunction", "[1].func_name UnknownFunction",
                  "[2].func_name UnknownFunction", "[3].func_name UnknownFunction",
                  "[4].func_name UnknownFunction"}},
             Row{R"([{"func_name":"kp_measure","key":"A"},{"func_name":"KP_Negative","key1":"S"}])",
                 {},
                 {"[0].func_name UnknownFunction", "[1].func_name UnknownFunction"}},
             // Sequences; lower case is upper case, and a modifier does not matter.
             Row{bound(R"("key1":"s","key2":"g","Modifier":"?")"), {"30 KP_Measure S, G"}, {}},
             Row{bound(R"("key1":"s","key2":"up")"), {"30 KP_Measure S, Up"}, {"[0] NeverFires KP_Measure"}},
             Row{bound(R"("key1":"s","key2":"g","key":"A")"), {}, {"[0].key KeyBesidePair"}},
             // Half a pair counts as none.
             Row{bound(R"("key1":"s","key":"a","Modifier":"Shift")"), {"30 KP_Measure Shift+A"}, {}},
             Row{bound(R"("key1":"s")"), {}, {"[0].key2 UnknownKey"}},
             // Single keys.
             Row{bound(R"("key":"A","Modifier":"")"), {"30 KP_Measure A"}, {"[0] NeverFires KP_Measure"}},
             Row{bound(R"("key":"A","Modifier":"Alt")"), {}, {"[0].Modifier UnknownModifier"}},
             Row{bound(R"("key":"A","Modifier":"Ctrl+Shift")"), {}, {"[0].Modifier UnknownModifier"}},
             Row{bound(R"("Modifier":"Ctrl")"), {}, {"[0].key UnknownKey"}},
             // In file order; of equal ones the first answers.
             Row{R"([{"func_name":"KK_SnapOff","key1":"q","key2":"q"},
                     {"func_name":"KP_Measure","Modifier":"Ctrl","key":"B"},
                     {"func_name":"no"},
                     {"func_name":"KP_Compare","Modifier":"Ctrl","key":"b"},
                     {"func_name":"KK_SnapGrid","key1":"Q","key2":"Q"}])",
                 {"30 KP_Measure Ctrl+B", "24 KP_Compare Ctrl+B", "32 KK_SnapOff Q, Q",
                  "33 KK_SnapGrid Q, Q"},
                 {"[2].func_name UnknownFunction", "[3] SameKeys KP_Compare", "[4] SameKeys KK_SnapGrid"}},
             Row{"\xEF\xBB\xBF[\r\n]\r\n", {}, {}},
         }) {
        restart().uploadHotkeyModel(); // without the file
        writeFile(row.file);
        Ext::HotkeyFileCheck const trial = Ext::checkHotkeyFile(Ext::hotkeyFile);
        EXPECT_EQ(Ext::hotkeyBindings().size(), 41U) << "a dry run changes nothing";
        EXPECT_TRUE(trial.loads);
        EXPECT_EQ(shown(trial.findings), row.findings) << row.file.toStdString();
        auto const answering = std::count_if(trial.bindings.begin(), trial.bindings.end(),
                                             [](auto const & binding) { return binding.answers; });
        EXPECT_EQ(withoutKey(trial.findings).size(), 41 - answering) << row.file.toStdString();

        restart();
        EXPECT_EQ(shown(Ext::hotkeyBindings()), row.bindings) << row.file.toStdString();
        QStringList tried = shown(trial.bindings);
        std::stable_partition(tried.begin(), tried.end(),
                              [](auto const & keys) { return !keys.contains(','); });
        EXPECT_EQ(tried, row.bindings);
        for (Ext::HotkeyBinding const & binding : Ext::hotkeyBindings()) {
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
        EXPECT_EQ(Ext::hotkeyBindings().size(), 41U) << text;
        EXPECT_TRUE(Ext::lastHotkeyLoad().reason.startsWith("The file is not JSON: ")) << text;
        Ext::HotkeyFileCheck const trial = Ext::checkHotkeyFile(Ext::hotkeyFile);
        EXPECT_FALSE(trial.loads);
        ASSERT_EQ(trial.findings.size(), 1U);
        EXPECT_TRUE(trial.findings[0].text.startsWith("The file is not JSON: ")) << text;
    }
    QFile::remove(Ext::hotkeyFile);
    restart();
    EXPECT_EQ(Ext::checkHotkeyFile(Ext::hotkeyFile).findings[0].text, "There is no such file.");
    EXPECT_EQ(Ext::lastHotkeyLoad().reason, "There is no such file.");
    QDir().mkpath(Ext::hotkeyFile);
    restart();
    EXPECT_EQ(press("Ctrl+B"), "11");
    EXPECT_EQ(Ext::checkHotkeyFile(Ext::hotkeyFile).findings[0].text, "It is not a regular file.");
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
    EXPECT_EQ(Ext::hotkeyBindings().size(), 30U + 1 + 11 + 11);
    EXPECT_EQ(shown(Ext::hotkeyReport()).filter("SameKeys").size(), 1 + 11);
    keys.uploadHotkeyModel();
    EXPECT_EQ(Ext::hotkeyBindings().size(), 3U);
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
        QStringList before = shown(Ext::hotkeyBindings());
        Ext::HotkeyExport const result = Ext::exportHotkeys("./config/out.json");
        EXPECT_TRUE(result.result.ok && result.result.reason.isEmpty());
        EXPECT_EQ(shown(result.leftOut), isDefault ? QStringList{"11  Ctrl+B"} : QStringList());
        EXPECT_EQ(shown(Ext::hotkeyBindings()), before);
        QFile::remove(Ext::hotkeyFile);
        ASSERT_TRUE(QFile::rename("config/out.json", Ext::hotkeyFile));
        restart();
        before.removeAll("11  Ctrl+B");
        EXPECT_EQ(shown(Ext::hotkeyBindings()), before);
    }
    QDir().mkdir("taken");
    for (char const * path : {"nowhere/out.json", "taken", ""}) {
        EXPECT_FALSE(Ext::exportHotkeys(path).result || Ext::exportHotkeys(path).result.reason.isEmpty());
    }
}

TEST_F(HotkeyTest, OtherBindingsAreJudgedAndSavedAsTheyWouldBeRead)
{
    writeFile("[]");
    restart();
    EXPECT_EQ(Ext::defaultHotkeyBindings().size(), 41U); // whatever is held
    EXPECT_EQ(shown(Ext::hotkeyBindings()).size(), 0);
    std::vector<Ext::HotkeyBinding> all; // of every key and modifier, and every pair that begins with S
    for (int key = Qt::Key_Space; key < Qt::Key_ydiaeresis; ++key) {
        for (char const * before : {"", "Shift+", "Ctrl+", "Alt+", "Ctrl+Shift+", "S, "}) {
            QString const name = QKeySequence(key).toString(QKeySequence::PortableText);
            all.push_back({KP_Measure, {}, before + name, false});
        }
    }
    for (char const * keys : {"Up", "Ctrl+Up", "Shift+Left", "S, Up", "F1", "Ctrl+F1", "", "S, G, S",
                              "Ctrl+S, G", "no key", "Ctrl+Del"}) {
        all.push_back({KP_Measure, {}, keys, false});
    }
    int reached = 0;
    for (Ext::HotkeyBinding const & each : all) {
        auto const findings = Ext::checkHotkeyBindings({each});
        bool const isFound =
            std::any_of(findings.begin(), findings.end(),
                        [](Ext::HotkeyFinding const & finding) { return finding.element == 0; });
        ASSERT_TRUE(Ext::saveHotkeys("./config/out.json", {each}).result);
        auto const read = Ext::checkHotkeyFile("./config/out.json").bindings;
        bool const answers = read.size() == 1 && read[0].answers && read[0].keys == each.keys;
        EXPECT_EQ(!isFound, answers) << each.keys.toStdString();
        reached += answers ? 1 : 0;
    }
    EXPECT_GT(reached, 3 * 49);
    std::vector<Ext::HotkeyBinding> const odd = {{KP_Measure, {}, "Ctrl+A", false},
                                                 {KP_Compare, {}, "Ctrl+A", false},
                                                 {KP_Compare, {}, "Q", false},
                                                 {KP_Unnamed11, {}, "Ctrl+B", false},
                                                 {KP_Compare, {}, "Ctrl+F1", false}};
    EXPECT_EQ(shown(Ext::checkHotkeyBindings(odd)),
              (QStringList{"[1] SameKeys KP_Compare", "[2] NeverFires KP_Compare",
                           "[3] UnknownFunction Function", "[4] UnknownKey Ctrl"}));
    EXPECT_EQ(shown(Ext::saveHotkeys("./config/out.json", odd).leftOut),
              (QStringList{"11  Ctrl+B", "24  Ctrl+F1"}));
}

TEST_F(HotkeyTest, ThePendingKeyAndWhatMayFollowAreToldWithoutTouchingThem)
{
    writeFile(R"([{"func_name":"KK_SnapOff","key1":"S","key2":"O"},
                  {"func_name":"KK_SnapGrid","key1":"S","key2":"G"},
                  {"func_name":"KK_SnapArc","key1":"S","key2":"O"},
                  {"func_name":"KK_SnapEdge","key1":"S","key2":"Up"},
                  {"func_name":"KP_Measure","key1":"G","key2":"M"}])");
    restart();
    for (auto const & [keys, codes, hint] : {std::tuple("Ctrl+Q", "0", ":"),
                                             {"S", "0", "S: O KK_SnapOff, G KK_SnapGrid"},
                                             {"G", "33", "G: M KP_Measure"},
                                             {"M", "30", "M:"},
                                             {"F1", "0", "F1:"},
                                             {"S", "0", "S: O KK_SnapOff, G KK_SnapGrid"},
                                             {"Shift+Q", "0", ":"},
                                             {"G", "0", "G: M KP_Measure"}}) {
        EXPECT_EQ(press(keys), codes) << keys;
        QStringList following;
        for (Ext::HotkeyContinuation const & next : Ext::hotkeyContinuations()) {
            following.append(' ' + next.key + ' ' + next.name);
        }
        EXPECT_EQ(Ext::pendingHotkey() + ':' + following.join(','), hint) << keys;
    }
}

} // namespace
