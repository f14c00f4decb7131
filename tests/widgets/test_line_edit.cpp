#include "harness/UiapiTest.h"

#include "uiapi/flat/ShowParameters.h"
#include "uiapi/flat/ViewAccess.h"
#include "widgets/KVLineEdit.h"

#include <QRegExpValidator>
#include <QTest>

using namespace KVCAM::Testing;
using namespace KVCAM::UIAPI;

namespace {

constexpr KVERegExp allKinds[] = {RegNumber,     RegExpression, RegPositive, RegNameList, RegName,  RegNoCjk,
                                  RegSymbolName, RegRound,      RegSquare,   RegFreeText, RegDigits};

// One key per character, also of those for which QTest knows no key.
void type(KVLineEdit & edit, char const * text)
{
    for (QChar const c : QString::fromUtf8(text)) {
        QTest::sendKeyEvent(QTest::Click, &edit, Qt::Key_unknown, QString(c), Qt::NoModifier);
    }
}

class LineEdit : public UiapiTest
{
protected:
    void SetUp() override
    {
        UiapiTest::SetUp();
        Step_Config config;
        config.view = &view;
        ASSERT_TRUE(insertStepConfig(config));
    }
    // A field on a registered view. The widget is the view handle.
    KVLineEdit & field(KVERegExp kind) { return *new KVLineEdit(kind, &view); }
    // Switches the view, then the field, as a dialog does.
    void show(KVLineEdit & edit, int unit)
    {
        setUnit(&view, unit);
        edit.changeunit(unit);
    }
    void retype(KVLineEdit & edit, char const * text)
    {
        edit.selectAll();
        QTest::keyClick(&edit, Qt::Key_Delete);
        type(edit, text);
    }

    QWidget view;
};

TEST_F(LineEdit, EachKindTakesWhatItsPatternTakes)
{
    struct Row
    {
        KVERegExp kind;
        char const * typed;
        std::string kept;
    };
    std::string const many(70, 'a');
    for (Row const & row : {
             Row{RegNumber, "-12.345678", "-12.34567"}, // five decimals
             Row{RegNumber, "0012", "0"},
             Row{RegNumber, "0.123456", "0.12345"},
             Row{RegNumber, "1234567890123456", "1234567890123456"}, // a point may still follow
             Row{RegNumber, "1e5+2", "152"},
             Row{RegNumber, "1,5", "15"},
             Row{RegPositive, "-1.5", "1.5"},
             Row{RegPositive, "+1.5", "+1.5"},
             Row{RegExpression, "10+2.5*(3-1)/ 4", "10+2.5*3-1/4"},
             Row{RegNameList, "Top;bot-1.g", "op;bot-1.g"},
             Row{RegNameList, many.c_str(), many.substr(0, 64)},
             Row{RegName, "a.b;c_1-+", "abc_1-+"},
             Row{RegNoCjk, "a\u4e00b\u9fa5c\u00e9\u3400", "abc\u00e9\u3400"},
             Row{RegSymbolName, "Rect10x5.5 _+-", "ect10x5.5_+-"},
             Row{RegFreeText, "A b\"<c>'", "Abc'"},
             Row{RegDigits, "1.5 -2a", "1.5 -2"},
         }) {
        KVLineEdit & edit = field(row.kind);
        type(edit, row.typed);
        EXPECT_EQ(edit.text().toStdString(), row.kept) << row.kind << " " << row.typed;
    }
}

TEST_F(LineEdit, LengthEndsInsideThePatterns)
{
    struct Row
    {
        KVERegExp kind;
        char const * text;
        bool acceptable;
    };
    for (Row const & row :
         {Row{RegNumber, "123456789012345", true}, Row{RegNumber, "1234567890123456", false},
          Row{RegNumber, "1234567890123456.5", true}, Row{RegNumber, "0", false}, Row{RegNumber, "0.", true},
          Row{RegNumber, "-", false}, Row{RegNumber, "1.", false}, Row{RegNumber, "", false},
          Row{RegPositive, "+0.5", true}, Row{RegNameList, "", true}, Row{RegFreeText, "", false},
          Row{RegNoCjk, "", true}, Row{RegSymbolName, "", true}}) {
        KVLineEdit & edit = field(row.kind);
        edit.setText(QString::fromLatin1(row.text));
        EXPECT_EQ(edit.hasAcceptableInput(), row.acceptable) << row.kind << " " << row.text;
    }
}

TEST_F(LineEdit, RoundKindTakesOnlyNamesWithABlankAndSquareKindTakesNothing)
{
    struct Row
    {
        KVERegExp kind;
        char const * text;
        bool acceptable;
    };
    for (Row const & row :
         {Row{RegRound, "r1", false}, Row{RegRound, "r1 ", true}, Row{RegRound, " r12.5 ", true},
          Row{RegRound, " r5", true}, Row{RegSquare, "s1", false}, Row{RegSquare, "s1 ", false},
          Row{RegSquare, " s1.5", false}}) {
        KVLineEdit & edit = field(row.kind);
        edit.setText(QString::fromLatin1(row.text));
        EXPECT_EQ(edit.hasAcceptableInput(), row.acceptable) << row.text;
    }
    KVLineEdit & square = field(RegSquare);
    type(square, " s1.5 0");
    EXPECT_EQ(square.text(), "");
}

TEST_F(LineEdit, KindOutsideTheTableHasAnEmptyPatternAndNoKindHasNone)
{
    for (int kind : {0, 12, -1, 1000}) {
        KVLineEdit & edit = field(KVERegExp(kind));
        auto const * validator = qobject_cast<QRegExpValidator const *>(edit.validator());
        ASSERT_NE(validator, nullptr);
        EXPECT_EQ(validator->parent(), &edit);
        EXPECT_EQ(validator->regExp().pattern(), "");
        type(edit, "a1");
        EXPECT_EQ(edit.text(), "");
        edit.setText("set"); // never validated
        show(edit, 1);
        EXPECT_EQ(edit.text(), "set");
    }
    for (KVLineEdit * edit : {new KVLineEdit(&view), new KVLineEdit(QStringLiteral("1"), &view)}) {
        EXPECT_EQ(edit->validator(), nullptr);
        type(*edit, "5 any\u4e00");
        QString const typed = edit->text();
        show(*edit, 0);
        show(*edit, 1);
        EXPECT_EQ(edit->text(), typed);
    }
}

TEST_F(LineEdit, TextGivenAtConstructionIsRecordedAndNotValidated)
{
    setUnit(&view, 1);
    KVLineEdit edit(QStringLiteral("0254"), RegNumber, &view);
    EXPECT_EQ(edit.text(), "0254");
    show(edit, 0);
    EXPECT_EQ(edit.text(), "10");
    show(edit, 1);
    EXPECT_EQ(edit.text(), "0254");
}

// What each typed text becomes in the other unit, and that a hundred switches lose nothing.
TEST_F(LineEdit, HundredSwitchesKeepBothTexts)
{
    struct Row
    {
        KVERegExp kind;
        int unit;
        char const * typed;
        char const * other;
    };
    for (Row const & row : {
             Row{RegNumber, 0, "1", "25.4"},
             Row{RegNumber, 0, "-0.5", "-12.7"},
             Row{RegNumber, 1, "254.1234", "10.0049"},
             Row{RegNumber, 0, "0.00001", "0.000254"},
             Row{RegNumber, 0, "123456", "3.13578e+06"}, // six significant digits
             Row{RegPositive, 1, "3.937", "0.155"},
             Row{RegPositive, 0, "+10", "254"},
             Row{RegSymbolName, 1, "r254", "r10"},
             Row{RegSymbolName, 1, "rect254x508xr127", "rect10x20xr5"},
             Row{RegSymbolName, 0, "r254", "r10"}, // divided in both directions
             Row{RegSymbolName, 1, "my_pad", "my_pad"},
             Row{RegExpression, 0, "10+2.5", "10+2.5"},
             Row{RegName, 1, "254", "254"},
             Row{RegDigits, 0, "10", "10"},
         }) {
        SCOPED_TRACE(row.typed);
        setUnit(&view, row.unit);
        KVLineEdit & edit = field(row.kind);
        type(edit, row.typed);
        for (int i = 0; i < 100; ++i) {
            show(edit, 1 - row.unit);
            ASSERT_EQ(edit.text().toStdString(), row.other);
            show(edit, row.unit);
            ASSERT_EQ(edit.text().toStdString(), row.typed);
        }
    }
}

TEST_F(LineEdit, ClearedNumberIsZeroInTheOtherUnitAndClearedSymbolIsEmpty)
{
    KVLineEdit & number = field(RegNumber);
    KVLineEdit & symbol = field(RegSymbolName);
    retype(number, "12");
    retype(symbol, "r12");
    number.clear();
    symbol.clear();
    number.changeunit(1);
    symbol.changeunit(1);
    EXPECT_EQ(number.text(), "0");
    EXPECT_EQ(symbol.text(), "");
    number.changeunit(0);
    EXPECT_EQ(number.text(), "");
}

TEST_F(LineEdit, UntouchedFieldStaysEmptyThroughSwitches)
{
    for (KVERegExp kind : allKinds) {
        KVLineEdit & edit = field(kind);
        show(edit, 1);
        EXPECT_EQ(edit.text(), "") << kind;
        show(edit, 0);
        EXPECT_EQ(edit.text(), "") << kind;
    }
}

TEST_F(LineEdit, EditAfterASwitchDiscardsTheOtherUnitsText)
{
    KVLineEdit & number = field(RegNumber);
    KVLineEdit & symbol = field(RegSymbolName);
    retype(number, "1");
    retype(symbol, "r254");
    show(number, 1);
    show(symbol, 1);
    type(number, "1"); // 25.4 becomes 25.41
    type(symbol, "0"); // r10 becomes r100
    show(number, 0);
    show(symbol, 0);
    EXPECT_EQ(number.text(), "1.00039");
    EXPECT_EQ(symbol.text(), "r3.93701");
}

// The view's unit counts when typing, the argument when showing; a unit other than 0 is metric in both.
TEST_F(LineEdit, EveryUnitButZeroIsMetric)
{
    for (int unit : {1, 2, -1}) {
        setUnit(&view, unit);
        KVLineEdit & edit = field(RegNumber);
        type(edit, "25.4");
        edit.changeunit(0);
        EXPECT_EQ(edit.text(), "1");
        edit.changeunit(unit);
        EXPECT_EQ(edit.text(), "25.4");
    }
}

TEST_F(LineEdit, UnregisteredParentIsAnInchViewLoggedAtEachTrackedEdit)
{
    QWidget stranger;
    KVLineEdit number(RegNumber, &stranger);
    KVLineEdit name(RegName, &stranger);
    type(number, "10");
    type(name, "10");
    EXPECT_EQ(log.take(), Lines(2, operationError("getShowPara")));
    number.changeunit(1);
    EXPECT_EQ(number.text(), "254");
    EXPECT_EQ(log.take(), Lines{});
}

// The field belongs to the view it was made for, wherever a layout puts it.
TEST_F(LineEdit, OwnerStaysWhenTheFieldIsPutUnderAnotherParent)
{
    setUnit(&view, 1);
    KVLineEdit & edit = field(RegNumber);
    QWidget page;
    edit.setParent(&page);
    type(edit, "254");
    EXPECT_EQ(log.take(), Lines{});
    edit.changeunit(0);
    EXPECT_EQ(edit.text(), "10");
}

TEST_F(LineEdit, EditsMadeWhileTheUnitChangesAreNotRecorded)
{
    KVLineEdit & edit = field(RegNumber);
    retype(edit, "1");
    auto const connection = QObject::connect(&edit, &QLineEdit::textChanged, [&](QString const & text) {
        if (text == QLatin1String("25.4")) {
            edit.changeunit(1); // a switch inside a switch
            edit.setText("99");
        }
    });
    show(edit, 1);
    EXPECT_EQ(edit.text(), "99");
    QObject::disconnect(connection);
    show(edit, 0);
    EXPECT_EQ(edit.text(), "1");
    retype(edit, "2"); // recording goes on afterwards
    show(edit, 1);
    EXPECT_EQ(edit.text(), "50.8");
}

TEST_F(LineEdit, ClassNameIsTheOneFormsLookFor)
{
    EXPECT_STREQ(field(RegName).metaObject()->className(), "KVCAM::UIAPI::KVLineEdit");
}

} // namespace
