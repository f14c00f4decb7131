#include "SampleWindow.h"
#include "board/BoardView.h"
#include "layers/LayerTable.h"
#include "window/HotkeyCommands.h"
#include "window/KeysDialog.h"

#include <UIAPICommon.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QLineF>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <QWindow>

#include <algorithm>

using namespace KVCAM;
using namespace KVCAM::UIAPI;
using namespace Workbench;

namespace {

// A window on the sample job; key presses reach it as from a keyboard.
class Keyboard : public SampleWindow
{
protected:
    /// Presses keys separated by blanks, "S G Shift+U"; returns the final status.
    QString press(QString const & keys)
    {
        for (QString const & key : keys.split(' ')) {
            int const number = QKeySequence(key)[0];
            int const mask = static_cast<int>(Qt::KeyboardModifierMask);
            QTest::keyClick(window->windowHandle(), static_cast<Qt::Key>(number & ~mask),
                            Qt::KeyboardModifiers(number & mask));
        }
        return status();
    }
    /// Everything that the view's keys can change.
    std::string state() const
    {
        return "unit " + std::to_string(getUnit(view())) + " width " + std::to_string(getWidth(view())) +
               (getNegative(view()) ? " negative" : "") + (getProfile(view()) ? " profile" : "") + " snap " +
               std::to_string(getSnapType(view()));
    }
};

char const * const snaps = "S ... S skeleton, O off, G grid, C centre, R arc, E edge, I crossing, "
                           "M middle, P profile, A advanced, N Highlight";

TEST_F(Keyboard, KeysRunTheCommandsOfTheViewInFront)
{
    open();
    QString const pending = snaps;
    QString const next = "   |   " + pending;
    struct
    {
        char const * keys;
        QString told;
        char const * state;
    } const rows[] = {
        {"Shift+U", "Unit: MM", "unit 1 width 0 profile snap 7"},
        {"Ctrl+N", "Negative: on", "unit 1 width 0 negative profile snap 7"},
        {"Ctrl+T", "Profile: off", "unit 1 width 0 negative snap 7"},
        {"Ctrl+W", "Width mode: on", "unit 1 width 1 negative snap 7"},
        {"S", pending, "unit 1 width 1 negative snap 7"},
        {"G", "Snap: grid", "unit 1 width 1 negative snap 1"},
        {"Q", "", "unit 1 width 1 negative snap 1"},
        {"S S", "Snap: skeleton" + next, "unit 1 width 1 negative snap 3"},
        {"O", "Snap: off", "unit 1 width 1 negative snap 0"},
        {"S C", "Snap: centre", "unit 1 width 1 negative snap 2"},
        {"S R", "Snap: arc", "unit 1 width 1 negative snap 8"},
        {"S E", "Snap: edge", "unit 1 width 1 negative snap 4"},
        {"S I", "Snap: crossing", "unit 1 width 1 negative snap 5"},
        {"S M", "Snap: middle", "unit 1 width 1 negative snap 6"},
        {"S P", "Snap: profile", "unit 1 width 1 negative snap 9"},
        {"S A", "Snap: advanced", "unit 1 width 1 negative snap 7"},
        {"S Shift+U G", "", "unit 0 width 1 negative snap 7"}, // a modifier ends the sequence
        {"Ctrl+W Ctrl+T Ctrl+N", "Negative: off", "unit 0 width 0 profile snap 7"},
        {"Ctrl+F", "Refresh", "unit 0 width 0 profile snap 7"},
        {"Ctrl+X", "Move within the layer: not available in this host", "unit 0 width 0 profile snap 7"},
        {"Ctrl+B", "The function without a name: not available in this host",
         "unit 0 width 0 profile snap 7"},
    };
    for (auto const & row : rows) {
        EXPECT_EQ(press(row.keys), row.told) << row.keys;
        EXPECT_EQ(state(), row.state) << row.keys;
    }
    window->setLanguage(LANGUAGE_CHINESE);
    EXPECT_EQ(press("S G"), QString::fromUtf8("捕捉: 网格"));
    EXPECT_TRUE(press("S").startsWith(QString::fromUtf8("S ... S 骨架, O 关闭, ")));
    window->setLanguage(LANGUAGE_ENGLISH);
    for (int code = KP_AllSelect; code <= KK_Hightlight; ++code) {
        EXPECT_FALSE(HotkeyCommands::text(static_cast<FuncCode>(code)).isEmpty()) << code;
    }
}

TEST_F(Keyboard, KeysMoveThePictureAndUndoAsks)
{
    open();
    BoardView & shown = *board().currentView();
    int moves = 0;
    QObject::connect(&shown, &BoardView::portChanged, window.get(), [&moves] { ++moves; });
    coordinate & pointer = *getCoordinate(view());
    pointer = {20000, 10000};
    EXPECT_EQ(press("Ctrl+E"), "Centre at the pointer");
    EXPECT_GT(shown.zoom(), 1);
    for (char const * keys :
         {"Ctrl+U", "Ctrl+D", "Ctrl+R", "Ctrl+L", "Shift+Up", "Shift+Down", "Shift+Right", "Shift+Left"}) {
        moves = 0;
        press(keys);
        EXPECT_EQ(moves, 1) << keys;
        QKeyEvent again(QEvent::KeyPress, QKeySequence(keys)[0] & 0x01ffffff,
                        Qt::KeyboardModifiers(QKeySequence(keys)[0] & 0x0e000000), QString(), true);
        QApplication::sendEvent(&shown, &again);
        EXPECT_EQ(moves, 2) << keys << " held down";
    }
    press("Ctrl+H");
    EXPECT_EQ(shown.zoom(), 1);

    QKeyEvent held(QEvent::KeyPress, Qt::Key_U, Qt::ShiftModifier, "U", true);
    QApplication::sendEvent(&shown, &held);
    EXPECT_EQ(getUnit(view()), 0) << "a key held down switches nothing";
    std::string const layer =
        session.layers()[static_cast<std::size_t>(session.firstCopperLayer("pcb"))].info.name;
    std::size_t const count = shown.features().size();
    press("Ctrl+Z");
    ASSERT_TRUE(KVCAM::Embedded::deleteFeatures(session.job(), "pcb", layer, {0, 1}));
    press("Ctrl+F");
    EXPECT_EQ(shown.features().size(), count - 2);
    press("Ctrl+Z");
    EXPECT_EQ(shown.features().size(), count);
    EXPECT_EQ(takeBoxes(), (QStringList{"There are no revocable actions!", "Are you sure to cancel?"}));
}

TEST_F(Keyboard, MeasuringTakesTwoPressesAndTheUnitOfTheView)
{
    open();
    coordinate & pointer = *getCoordinate(view());
    pointer = {25400, 0};
    BoardView & shown = *board().currentView();
    setSnapType(view(), SNAP_OFF);
    EXPECT_EQ(press("Shift+V"),
              "Measure: from x 1.000 y 0.000 inch; press again at the other end, Escape ends");
    pointer = {25400 + 3 * 25400, -4 * 25400};
    emit board().pointerMoved();
    EXPECT_EQ(shown.measure(), QLineF(25400, 0, 4 * 25400, -4 * 25400)) << "follows the pointer";
    QString const length = QString::fromUtf8("Measure: 5.000000 inch (5000.000 mil) = 127.0000 mm "
                                             "(127000.0 µm), x 3.000000 y 4.000000 inch");
    EXPECT_EQ(status(), length);
    EXPECT_EQ(press("Shift+V"), length);
    pointer = {0, 0};
    emit board().pointerMoved();
    EXPECT_EQ(shown.measure(), QLineF(25400, 0, 4 * 25400, -4 * 25400)) << "has ended there";
    EXPECT_TRUE(press("Shift+V").startsWith("Measure: from"));
    EXPECT_EQ(press("Esc"), "");
    EXPECT_FALSE(shown.measure());
    emit board().pointerMoved();
    EXPECT_FALSE(shown.measure());

    setUnit(view(), 1);
    setSnapType(view(), SNAP_GRID); // of 5 micrometres
    pointer = {1002.4, 998};
    press("Shift+V");
    pointer = {1012.6, 1000};
    EXPECT_EQ(press("Shift+V"), QString::fromUtf8("Measure: 0.0150 mm (15.0 µm) = 0.000591 inch (0.591 mil), "
                                                  "x 0.0150 y 0.0000 mm"));
}

TEST_F(Keyboard, WhatIsTypedIntoATextOrAListIsNoHotKey)
{
    open();
    std::string const before = state();
    QLineEdit field(&board());
    field.show();
    field.setFocus();
    for (char const letter : {'s', 'g'}) {
        QTest::keyClick(window->windowHandle(), letter);
    }
    press("Shift+U Ctrl+A");
    EXPECT_EQ(field.text().toLower(), "sgu");
    EXPECT_EQ(field.selectedText(), field.text());
    EXPECT_EQ(state(), before);
    EXPECT_EQ(press("Ctrl+N"), "Negative: on") << "a field has no use for it";
    press("Ctrl+N");

    auto * layers = window->findChild<LayerTable *>();
    layers->setFocus();
    for (char const letter : {'s', 'i', 'l', 'k', '_', 'b'}) {
        QTest::keyClick(window->windowHandle(), letter);
    }
    EXPECT_EQ(layers->layerName(layers->currentRow()), "silk_bottom");
    press("Down");
    EXPECT_EQ(layers->currentRow(), 18);
    EXPECT_EQ(state(), before);
    EXPECT_EQ(press("Shift+U"), "Unit: MM")
        << "a capital searches nothing that a small letter would not find";
    press("Shift+U Escape");
    EXPECT_EQ(window->focusWidget(), board().currentView());
    press("S");
    layers->setFocus();
    press("Up");
    board().currentView()->setFocus();
    press("G");
    EXPECT_EQ(state(), before) << "keys typed elsewhere end a sequence";
    EXPECT_EQ(press("S G"), "Snap: grid");

    std::string const after = state();
    window->showPage("attributes");
    press("Shift+U S O");
    EXPECT_EQ(state(), after) << "the board is not in front";
}

TEST_F(Keyboard, EveryCommandOfTheHostHasAKeyUnderTheDefaultsAndTheSample)
{
    for (bool const isSample : {false, true}) {
        if (isSample) {
            QDir().mkdir("config");
            ASSERT_TRUE(QFile::copy(UIAPI_SOURCE_DIR "/samples/config/keyboard.json", Ext::hotkeyFile));
            KVHotKey::getInstance()->uploadHotkeyModel();
            Ext::HotkeyFileCheck const trial = Ext::checkHotkeyFile(Ext::hotkeyFile);
            ASSERT_EQ(trial.findings.size(), 1U);
            EXPECT_EQ(trial.findings[0].text, "Function 11 has no key; a file cannot name it.");
        }
        QSet<int> reached;
        for (Ext::HotkeyBinding const & binding : Ext::hotkeyBindings()) {
            if (binding.answers) {
                reached.insert(binding.code);
            }
        }
        for (int code = KP_AllSelect; code <= KK_Hightlight; ++code) {
            bool const isInMenuAlone = !isSample && code == KP_SelectSameFeature; // its key, E, never answers
            EXPECT_EQ(reached.contains(code) || !HotkeyCommands::isAvailable(static_cast<FuncCode>(code)),
                      !isInMenuAlone)
                << code;
        }
    }
    open();
    EXPECT_EQ(press("V"), "V ... N Negative, P Profile, W Width mode, U Unit, R Refresh, H home, M Measure");
    EXPECT_EQ(press("U"), "Unit: MM");
}

QStringList rowOf(QTableWidget const & table, int row)
{
    QStringList texts;
    for (int column = 0; column < table.columnCount(); ++column) {
        texts.append(table.item(row, column)->text());
    }
    return texts;
}

TEST_F(Keyboard, TheKeysDialogListsTheKeysAndJudgesTheOwnFile)
{
    open();
    press("F1");
    auto * sheet = window->findChild<KeysDialog *>();
    ASSERT_NE(sheet, nullptr);
    EXPECT_TRUE(sheet->isVisible());
    std::string const before = state();
    QTest::keyClick(sheet, Qt::Key_U, Qt::ShiftModifier);
    EXPECT_EQ(state(), before) << "another window's key";
    auto const & bindings = *sheet->findChild<QTableWidget *>("bindings");
    auto const & findings = *sheet->findChild<QTableWidget *>("findings");
    auto const & file = *sheet->findChild<QLabel *>("file");
    EXPECT_EQ(bindings.rowCount(), 41);
    EXPECT_EQ(rowOf(bindings, 0), (QStringList{"Ctrl+A", "Select all", "KP_AllSelect", ""}));
    EXPECT_EQ(rowOf(bindings, 27),
              (QStringList{"E", "Select the same features", "KP_SelectSameFeature", "never answers"}));
    EXPECT_EQ(rowOf(bindings, 32), (QStringList{"S, G", "Snap: grid", "KK_SnapGrid", ""}));
    EXPECT_TRUE(file.text().endsWith("the default keys are in use."));
    sheet->exportTo("nowhere/keys.json");
    EXPECT_EQ(sheet->findChild<QLabel *>("hint")->text().section(':', 0, 0),
              "The file cannot be opened for writing");

    writeFile(Ext::hotkeyFile, R"([{"func_name":"KP_Measure","Modifier":"Ctrl","key":"A"},
                                   {"func_name":"KP_Profile","Modifier":"Ctrl","key":"A"},
                                   {"func_name":"KP_Profil","Modifier":"Ctrl","key":"B"}])");
    buttonOf(*sheet, "Load the file again").click();
    EXPECT_EQ(bindings.rowCount(), 41);
    EXPECT_EQ(rowOf(bindings, 4), (QStringList{"Ctrl+A", "Profile", "KP_Profile", "never answers"}));
    EXPECT_EQ(rowOf(bindings, 0), (QStringList{"", "Select all", "KP_AllSelect", "no keys"}));
    EXPECT_TRUE(file.text().endsWith("holds 2 bindings. Findings: 42."));
    EXPECT_EQ(rowOf(findings, 0)[0], "2");
    EXPECT_EQ(rowOf(findings, 1),
              (QStringList{"3", "\"func_name\" is \"KP_Profil\", which is no function."}));
    writeFile(Ext::hotkeyFile, "[");
    sheet->refresh();
    EXPECT_TRUE(file.text().endsWith("cannot be loaded; the keys stay as they are."));
    EXPECT_EQ(findings.rowCount(), 1);
}

TEST_F(Keyboard, KeysAreSearchedChangedAndSetBackAndTheFileIsReadAtOnce)
{
    open();
    KeysDialog & dialog = *window->showKeys();
    auto & search = *dialog.findChild<QLineEdit *>("search");
    auto & table = *dialog.findChild<QTableWidget *>("bindings");
    auto & field = *dialog.findChild<QLineEdit *>("new keys");
    auto const verdict = [&] { return dialog.findChild<QLabel *>("verdict")->text(); };
    auto const shown = [&table] {
        QStringList rows;
        for (int row = 0; row < table.rowCount(); ++row) {
            if (!table.isRowHidden(row)) {
                rows.append(QString::number(row));
            }
        }
        return rows.join(' ');
    };
    auto const type = [&field](QString const & keys) {
        for (QString const & each : keys.split(' ')) {
            int const pressed = QKeySequence(each)[0];
            int const mask = static_cast<int>(Qt::KeyboardModifierMask);
            QTest::keyClick(&field, static_cast<Qt::Key>(pressed & ~mask),
                            Qt::KeyboardModifiers(pressed & mask));
        }
    };
    for (auto const & [words, rows] :
         {std::pair("measure", "29"), {"ctrl+z", "6"}, {"s, g", "32"}, {"zzz", ""}}) {
        search.setText(words);
        EXPECT_EQ(shown(), rows) << words;
    }
    search.clear();
    table.setCurrentCell(29, 0);
    struct
    {
        char const * keys;
        char const * verdict;
        bool isPossible;
    } const rows[] = {
        {"Ctrl+A", "Ctrl+A belongs to \"Select all\", which loses it.", true},
        {"Shift+V", "The command has Shift+V.", false},
        {"Ctrl+Q", "Ctrl+Q is free.", true},
        {"S", "S begins a sequence: press the second key.", false},
        {"G", "S, G belongs to \"Snap: grid\", which loses it.", true},
        {"Alt+Q",
         "Alt+Q cannot be a hot key: only letters, digits, arrows and some signs can, with Ctrl or Shift "
         "or in a pair of plain keys.",
         false},
        {"F2 Q",
         "F2, Q cannot be a hot key: only letters, digits, arrows and some signs can, with Ctrl or Shift "
         "or in a pair of plain keys.",
         false},
        {"Escape", "Press a key with Ctrl or Shift, or two plain keys one after the other.", false},
        {"M S", "M, S is free.", true},
    };
    for (auto const & row : rows) {
        type(row.keys);
        EXPECT_EQ(verdict(), row.verdict) << row.keys;
        EXPECT_EQ(dialog.findChild<QPushButton *>("assign")->isEnabled(), row.isPossible) << row.keys;
    }
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(rowOf(table, 29)[0], "M, S");
    type("Ctrl+A");
    dialog.findChild<QPushButton *>("add keys")->click();
    EXPECT_EQ(rowOf(table, 29)[0] + rowOf(table, 29)[1], "Ctrl+AMeasure");
    EXPECT_EQ(rowOf(table, 0)[3], "no keys");
    EXPECT_TRUE(dialog.findChild<QLabel *>("hint")->text().endsWith(
        QDir::toNativeSeparators("config/keyboard.json") + "\"."));
    search.setText("zzz");
    EXPECT_LT(table.currentRow(), 0) << "what is not seen is not changed";
    search.clear();
    dialog.close();
    board().currentView()->setFocus();
    EXPECT_TRUE(press("Ctrl+A").startsWith("Measure: from")) << "without a restart";

    auto const holds = [](Ext::HotkeyFileCheck const & check, char const * keys, FuncCode code) {
        return std::any_of(check.bindings.begin(), check.bindings.end(),
                           [&](Ext::HotkeyBinding const & each) {
                               return each.keys == keys && each.code == code && each.answers;
                           });
    };
    EXPECT_TRUE(holds(Ext::checkHotkeyFile(Ext::hotkeyFile), "M, S", KP_Measure));
    table.setCurrentCell(29, 0);
    dialog.findChild<QPushButton *>("remove keys")->click();
    EXPECT_FALSE(holds(Ext::checkHotkeyFile(Ext::hotkeyFile), "Ctrl+A", KP_Measure));
    EXPECT_EQ(table.rowCount(), 41);
    buttonOf(dialog, "Default keys").click();
    EXPECT_TRUE(holds(Ext::checkHotkeyFile(Ext::hotkeyFile), "Ctrl+A", KP_AllSelect));
    EXPECT_FALSE(holds(Ext::checkHotkeyFile(Ext::hotkeyFile), "M, S", KP_Measure));
    EXPECT_TRUE(holds(Ext::checkHotkeyFile(QString(Ext::hotkeyFile) + ".bak"), "M, S", KP_Measure));
}

} // namespace
