#include "widgets/LineEditTest.h"

using namespace KVCAM::Testing;
using namespace KVCAM::UIAPI;

namespace {

class LineEdit : public LineEditTest
{};

TEST_F(LineEdit, EachKindTakesWhatItsPatternTakes)
{
    struct Row
    {
        int kind;
        char const * typed;
        std::string kept;
        bool acceptable = true;
    };
    std::string const many(70, 'a');
    for (Row const & row : {
             Row{RegNumber, "-12.345678", "-12.34567"}, // five decimals
             Row{RegNumber, "0012", "0", false},
             Row{RegNumber, "0.1234567", "0.12345"},
             Row{RegNumber, "123456789012345", "123456789012345"},
             Row{RegNumber, "1234567890123456", "1234567890123456", false}, // a point may still follow
             Row{RegNumber, "1e5+2,", "152"},
             Row{RegPositive, "-1.5", "1.5"},
             Row{RegPositive, "+1.", "+1.", false},
             Row{RegPositive, "+0.5", "+0.5"},
             Row{RegPositive, "+123456789012345", "+123456789012345"},
             Row{RegPositive, "1234567890123456", "1234567890123456", false},
             Row{RegPositive, "0.123456", "0.12345"},
             Row{RegPositive, "12.123456", "12.12345"},
             Row{RegExpression, "10+2.5*(3-1)/ 4", "10+2.5*3-1/4"},
             Row{RegNameList, "Top;bot-1.g_0+9", "op;bot-1.g_0+9"},
             Row{RegNameList, many.c_str(), many.substr(0, 64)},
             Row{RegName, "a.b;c_1-+", "abc_1-+"},
             Row{RegName, many.c_str(), many.substr(0, 64)},
             Row{RegNoCjk, "a\u4e00b\u9fa5c\u4dff\u9fa6", "abc\u4dff\u9fa6"},
             Row{RegSymbolName, "Rect10x5.5 _+-", "ect10x5.5_+-"},
             Row{RegRound, "r12", "r12", false}, // accepts only names with a blank
             Row{RegRound, "r12 ", "r12 "},
             Row{RegSquare, " s1.5 0", "", false}, // accepts nothing
             Row{RegFreeText, "~`!@#$%&^()_+={}*,.;'azAZ09", "~`!@#$%&^()_+={}*,.;'azAZ09"},
             Row{RegFreeText, "-/:<>?[]\\|\" ", "", false},
             Row{RegFreeText, many.c_str(), many.substr(0, 36)},
             Row{RegDigits, "1.5 -2a", "1.5 -2"},
             Row{0, "a1", ""},
             Row{12, "a1", ""}, // an unknown kind
         }) {
        KVLineEdit & edit = field(row.kind);
        type(edit, row.typed);
        EXPECT_EQ(edit.text().toStdString(), row.kept) << row.kind << " " << row.typed;
        EXPECT_EQ(edit.hasAcceptableInput(), row.acceptable) << row.kind << " " << row.typed;
    }
    KVLineEdit plain(QStringLiteral("1"), &view);
    type(plain, "any \u4e00");
    show(plain, 1);
    EXPECT_EQ(plain.text(), QStringLiteral("1any \u4e00"));
}

// Each text in the other unit; a hundred switches lose nothing.
TEST_F(LineEdit, HundredSwitchesKeepBothTexts)
{
    struct Row
    {
        int kind, unit;
        char const *text, *other;
    };
    for (Row const & row : {
             Row{RegNumber, 0, "1", "25.4"},
             Row{RegNumber, 1, "254.1234", "10.0049"},
             Row{RegNumber, 2, "-12.7", "-0.5"},         // any unit but 0 is metric
             Row{RegNumber, 0, "123456", "3.13578e+06"}, // six significant digits
             Row{RegNumber, 1, "0254", "10"},            // a text given is not validated
             Row{RegSymbolName, 0, "r254", "r10"},       // divided in both directions
             Row{RegSymbolName, 1, "my_pad", "my_pad"},
         }) {
        SCOPED_TRACE(row.text);
        setUnit(&view, row.unit);
        KVLineEdit edit(QString::fromLatin1(row.text), KVERegExp(row.kind), &view);
        for (int i = 0; i < 100; ++i) {
            show(edit, row.unit == 0 ? 1 : 0);
            ASSERT_EQ(edit.text().toStdString(), row.other);
            show(edit, row.unit);
            ASSERT_EQ(edit.text().toStdString(), row.text);
        }
    }
}

TEST_F(LineEdit, TheUnitIsThatOfTheFirstParentWhereverTheFieldGoes)
{
    QWidget later;
    registerView(&later, 1);
    KVLineEdit edit(RegNumber, &view);
    edit.setParent(&later);
    type(edit, "1");
    edit.changeunit(1);
    EXPECT_EQ(edit.text(), "25.4");
}

TEST_F(LineEdit, ASwitchEmitsWhatSetTextWould)
{
    Lines told[2];
    QLineEdit plain;
    plain.setText("10");
    KVLineEdit switched("10", RegNumber, &view);
    QLineEdit * const edits[] = {&plain, &switched};
    for (int i : {0, 1}) {
        auto const note = [&lines = told[i]](QString const & what) { lines.push_back(what.toStdString()); };
        QObject::connect(edits[i], &QLineEdit::textChanged, note);
        QObject::connect(edits[i], &QLineEdit::selectionChanged, [note] { note("selection"); });
        QObject::connect(edits[i], &QLineEdit::cursorPositionChanged,
                         [note](int from, int to) { note(QString("%1 to %2").arg(from).arg(to)); });
    }
    for (auto const & [unit, text] : {std::pair(1, "254"), std::pair(1, "254"), std::pair(0, "10")}) {
        plain.setSelection(0, unit);
        plain.setText(text);
        switched.setSelection(0, unit);
        switched.changeunit(unit);
    }
    EXPECT_EQ(told[1], told[0]);
    EXPECT_GE(told[0].size(), 8U);
}

TEST_F(LineEdit, EditsMadeWhileTheUnitChangesAreNotRecorded)
{
    KVLineEdit & edit = field(RegNumber);
    type(edit, "1");
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
    retype(edit, "2"); // recording continues
    show(edit, 1);
    EXPECT_EQ(edit.text(), "50.8");
}

} // namespace
