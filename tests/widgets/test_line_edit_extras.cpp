#include "harness/UiapiTest.h"

#include "uiapi/flat/Arithmetic.h"
#include "uiapi/flat/ShowParameters.h"
#include "uiapi/flat/ViewAccess.h"
#include "widgets/KVLineEdit.h"
#include "widgets/Translation.h"

#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <cmath>
#include <functional>
#include <limits>

using namespace KVCAM::Testing;
using namespace KVCAM::UIAPI;

namespace {

class LineEditExtras : public UiapiTest
{
protected:
    void SetUp() override
    {
        UiapiTest::SetUp();
        registerView(&view, 0);
    }
    void registerView(QWidget * handle, int unit)
    {
        Step_Config config;
        config.view = handle;
        config.show_param.unit = unit;
        ASSERT_TRUE(insertStepConfig(config));
    }
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
        QTest::keyClicks(&edit, QString::fromLatin1(text));
    }

    QWidget view;
};

// With and without the additions the same keys and switches give the same texts.
TEST_F(LineEditExtras, AdditionsAreOffByDefaultAndChangeNoText)
{
    for (int kind = 0; kind <= 12; ++kind) {
        SCOPED_TRACE(kind);
        setUnit(&view, 0);
        KVLineEdit & plain = field(KVERegExp(kind));
        EXPECT_FALSE(plain.followView());
        EXPECT_FALSE(plain.refusalHints());
        EXPECT_EQ(plain.lengthScale(), KVLineEdit::Small);
        KVLineEdit & extended = field(KVERegExp(kind));
        extended.setRange(1, 2);
        extended.setFollowView(true);
        extended.setRefusalHints(true);
        extended.setLengthScale(KVLineEdit::Large);
        QSignalSpy const validity(&plain, &KVLineEdit::validityChanged);
        QSignalSpy const refused(&plain, &KVLineEdit::inputRefused);
        for (char const * keys : {"12.5", "r10x", "-+*/.5", "1..2 A", ""}) {
            for (int unit : {0, 1, 0, 1, 1}) {
                for (KVLineEdit * edit : {&plain, &extended}) {
                    retype(*edit, keys);
                }
                show(plain, unit);
                EXPECT_EQ(extended.text(), plain.text()) << keys;
            }
        }
        EXPECT_EQ(validity.count(), 0);
        EXPECT_EQ(refused.count(), 0);
        EXPECT_TRUE(plain.dynamicPropertyNames().isEmpty());
    }
}

TEST_F(LineEditExtras, HundredFieldsFollowTheirViewAndNoOther)
{
    QWidget other;
    registerView(&other, 0);
    QWidget form;
    auto * const layout = new QVBoxLayout(&form);
    std::vector<KVLineEdit *> fields;
    for (int i = 0; i < 100; ++i) {
        fields.push_back(new KVLineEdit(QString::number(i + 1), RegNumber, &view));
        fields.back()->setFollowView(true);
        layout->addWidget(fields.back());
    }
    KVLineEdit stranger(QStringLiteral("1"), RegNumber, &other);
    stranger.setFollowView(true);
    KVLineEdit still(QStringLiteral("1"), RegNumber, &view);
    for (int round = 0; round < 100; ++round) {
        int const unit = 1 - round % 2;
        setUnit(&view, unit);
        for (int i = 0; i < 100; ++i) {
            ASSERT_EQ(fields[static_cast<std::size_t>(i)]->text(),
                      unit == 0 ? QString::number(i + 1) : QString::number((i + 1) * 25.4, 'g', 6));
        }
    }
    EXPECT_EQ(stranger.text(), "1");
    EXPECT_EQ(still.text(), "1");
    fields[0]->setFollowView(false);
    setUnit(&view, 1);
    EXPECT_EQ(fields[0]->text(), "1");
    EXPECT_EQ(fields[1]->text(), "50.8");
}

TEST_F(LineEditExtras, ViewThatIsRegisteredLaterIsFollowed)
{
    QWidget late;
    KVLineEdit typedBefore(RegNumber, &late);
    KVLineEdit untouched(RegNumber, &late);
    typedBefore.setFollowView(true);
    untouched.setFollowView(true);
    EXPECT_EQ(log.take(), Lines{}); // an empty field asks for no unit
    QTest::keyClicks(&typedBefore, "10");
    EXPECT_EQ(log.take(), Lines(2, operationError("getShowPara")));
    registerView(&late, 1);
    EXPECT_EQ(typedBefore.text(), "254"); // what was typed was inch
    QTest::keyClicks(&untouched, "254");
    setUnit(&late, 0);
    EXPECT_EQ(typedBefore.text(), "10");
    EXPECT_EQ(untouched.text(), "10");
}

TEST_F(LineEditExtras, FollowingBeginsWithTheUnitThatTheViewHasNow)
{
    KVLineEdit & edit = field(RegNumber);
    QTest::keyClicks(&edit, "1");
    setUnit(&view, 1);
    EXPECT_EQ(edit.text(), "1");
    edit.setFollowView(true);
    EXPECT_EQ(edit.text(), "25.4");
}

TEST_F(LineEditExtras, ExactValueIsWhatWasTypedInItsOwnUnit)
{
    constexpr qint64 max = std::numeric_limits<qint64>::max();
    struct Row
    {
        KVERegExp kind;
        int unit;
        char const * typed;
        double inch, metric;
        qint64 small, large; // nanometres
    };
    for (Row const & row : {
             Row{RegNumber, 1, "254.1234", 254.1234 / 25.4, 254.1234, 254123, 254123400},
             Row{RegNumber, 0, "0.00001", 0.00001, 0.00001 * 25.4, 0, 254},
             Row{RegNumber, 0, "-3.5", -3.5, -3.5 * 25.4, -88900, -88900000},
             Row{RegPositive, 0, "123456", 123456, 123456 * 25.4, 3135782400, 3135782400000},
             Row{RegPositive, 1, "9300000000000", 9300000000000 / 25.4, 9300000000000, 9300000000000000, max},
             Row{RegNumber, 1, "-", 0, 0, 0, 0},
             Row{RegNumber, 0, "", 0, 0, 0, 0},
         }) {
        SCOPED_TRACE(row.typed);
        setUnit(&view, row.unit);
        KVLineEdit & edit = field(row.kind);
        QTest::keyClicks(&edit, row.typed);
        for (int switches = 0; switches < 101; ++switches) { // ends in the other unit
            show(edit, switches % 2 == 0 ? 1 - row.unit : row.unit);
            ASSERT_EQ(edit.exactValue(0), row.inch);
            ASSERT_EQ(edit.exactValue(1), row.metric);
            ASSERT_EQ(edit.exactLengthNm(), row.small);
        }
        edit.setLengthScale(KVLineEdit::Large);
        EXPECT_EQ(edit.exactLengthNm(), row.large);
    }
}

TEST_F(LineEditExtras, ExpressionIsReadInTheUnitShownAndOtherKindsHoldNoNumber)
{
    KVLineEdit & expression = field(RegExpression);
    QTest::keyClicks(&expression, "10+2.5");
    EXPECT_EQ(expression.exactValue(1), 317.5);
    EXPECT_EQ(expression.exactLengthNm(), 317500);
    show(expression, 1);
    EXPECT_EQ(expression.exactValue(1), 12.5);
    EXPECT_EQ(expression.exactLengthNm(), 12500);
    retype(expression, "1/0");
    EXPECT_EQ(expression.exactLengthNm(), std::numeric_limits<qint64>::max());
    for (KVERegExp kind : {RegSymbolName, RegName, RegDigits}) {
        KVLineEdit & edit = field(kind);
        edit.setText("10");
        EXPECT_TRUE(std::isnan(edit.exactValue(0)));
        EXPECT_EQ(edit.exactLengthNm(), 0);
    }
}

std::string words(char const * bounds)
{
    return std::string("Illegal float value\nfloating value for field is out of range: (") + bounds + ")";
}

TEST_F(LineEditExtras, RangeTellsTheVerdictOfEachKind)
{
    struct Row
    {
        KVERegExp kind;
        KVLineEdit::LengthScale scale;
        int unit;
        char const * typed;
        std::string words; // empty for a legal text
    };
    std::string const inch = words("1, 10");
    std::string const metric = words("25.40, 254.00");
    auto const small = KVLineEdit::Small;
    auto const large = KVLineEdit::Large;
    for (Row const & row : {
             Row{RegNumber, small, 0, "10", ""},
             Row{RegNumber, small, 0, "10.00001", inch},
             Row{RegNumber, small, 1, "254", ""},
             Row{RegPositive, small, 1, "254.1", metric},
             Row{RegNumber, small, 1, "", metric},
             Row{RegNumber, large, 0, "0.01", ""},
             Row{RegNumber, large, 0, "10", words("0.001, 0.01")},
             Row{RegNumber, large, 1, "0.2541", words("0.02540, 0.25400")},
             Row{RegExpression, small, 0, "2*4", ""},
             Row{RegExpression, small, 0, "2*4+", ""}, // one trailing operator is dropped
             Row{RegExpression, small, 0, "10+2.5", inch},
             Row{RegExpression, small, 0, "2*-3", "CaculateData ERROR"},
             Row{RegSymbolName, small, 0, "rect5x10", ""},
             Row{RegSymbolName, small, 0, "rect12x5", inch},
             Row{RegSymbolName, large, 1, "r300", metric}, // sizes in a name are always small units
             Row{RegName, small, 0, "100", ""},
         }) {
        SCOPED_TRACE(row.typed);
        setUnit(&view, row.unit);
        KVLineEdit & edit = field(row.kind);
        edit.setLengthScale(row.scale);
        edit.setRange(1, 10);
        retype(edit, row.typed);
        QSignalSpy spy(&edit, &KVLineEdit::validityChanged);
        EXPECT_EQ(edit.property("uiapiValid"), QVariant(row.words.empty()));
        edit.clearRange();
        EXPECT_FALSE(edit.property("uiapiValid").isValid());
        EXPECT_EQ(spy.count(), row.words.empty() ? 0 : 1); // without a range everything is legal
        spy.clear();
        edit.setRange(1, 10);
        if (row.words.empty()) {
            EXPECT_EQ(spy.count(), 0);
        } else {
            ASSERT_EQ(spy.count(), 1);
            EXPECT_FALSE(spy.first().at(0).toBool());
            EXPECT_EQ(spy.first().at(1).toString().toStdString(), row.words);
        }
    }
    EXPECT_EQ(boxes.take(), Lines{});
}

TEST_F(LineEditExtras, VerdictIsToldOncePerChangeAndKeepsThroughASwitch)
{
    KVLineEdit & edit = field(RegNumber);
    edit.setFollowView(true);
    edit.setRange(1, 3);
    QSignalSpy spy(&edit, &KVLineEdit::validityChanged);
    QTest::keyClicks(&edit, "3");
    ASSERT_EQ(spy.count(), 0 + 1); // it was empty, which counts as 0
    spy.clear();
    // 76.2 micrometres typed would be refused, but 3 mil was typed.
    setUnit(&view, 1);
    EXPECT_EQ(edit.text(), "76.2");
    EXPECT_FALSE(isValueLegal(76.2, 1, 3, &view));
    boxes.take();
    EXPECT_EQ(edit.property("uiapiValid"), QVariant(true));
    EXPECT_EQ(spy.count(), 0);
    setUnit(&view, 0);
    QTest::keyClicks(&edit, "0000");
    ASSERT_EQ(spy.count(), 1);
    EXPECT_EQ(spy.takeFirst().at(1).toString().toStdString(), words("1, 3"));
    setUnit(&view, 1); // the words change with the unit
    ASSERT_EQ(spy.count(), 1);
    EXPECT_EQ(spy.first().at(1).toString().toStdString(), words("25.40, 76.20"));
}

TEST_F(LineEditExtras, StyleSheetFollowsTheVerdict)
{
    KVLineEdit & edit = field(RegNumber);
    edit.setStyleSheet("[uiapiValid=\"false\"] { color: rgb(255, 0, 0); }");
    edit.setRange(1, 10);
    view.show();
    auto const isRed = [&] { return edit.palette().color(QPalette::Text) == QColor(255, 0, 0); };
    retype(edit, "5");
    EXPECT_FALSE(isRed());
    retype(edit, "50");
    EXPECT_TRUE(isRed());
    edit.clearRange();
    EXPECT_FALSE(isRed());
}

TEST_F(LineEditExtras, RefusedKeyIsExplainedInPlainWordsInTheLanguage)
{
    for (bool chinese : {false, true}) {
        ASSERT_TRUE(Ext::installTranslation(chinese ? LANGUAGE_CHINESE : LANGUAGE_ENGLISH));
        QSet<QString> distinct;
        for (int kind = 1; kind <= 12; ++kind) {
            KVLineEdit & edit = field(KVERegExp(kind));
            QSignalSpy const silent(&edit, &KVLineEdit::inputRefused);
            QTest::sendKeyEvent(QTest::Click, &edit, Qt::Key_unknown, QStringLiteral("\u4e00"),
                                Qt::NoModifier);
            EXPECT_EQ(silent.count(), 0);
            edit.setRefusalHints(true);
            edit.setRefusalHints(true);
            QSignalSpy refused(&edit, &KVLineEdit::inputRefused);
            QTest::sendKeyEvent(QTest::Click, &edit, Qt::Key_unknown, QStringLiteral("\u4e00"),
                                Qt::NoModifier);
            ASSERT_EQ(refused.count(), 1) << kind;
            QString const text = refused.first().first().toString();
            EXPECT_EQ(text.contains(QRegExp("[\u4e00-\u9fa5]")), chinese) << text.toStdString();
            distinct.insert(text);
        }
        EXPECT_EQ(distinct.size(), 12); // each kind has words of its own
    }
    ASSERT_TRUE(Ext::installTranslation(LANGUAGE_ENGLISH));
    KVLineEdit & full = field(RegName);
    full.setMaxLength(2);
    full.setRefusalHints(true);
    QSignalSpy const refused(&full, &KVLineEdit::inputRefused);
    QTest::keyClicks(&full, "abc");
    ASSERT_EQ(refused.count(), 1);
    EXPECT_EQ(refused.first().first().toString(), "No more than 2 characters fit here.");
}

} // namespace
