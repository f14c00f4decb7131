#include "widgets/LineEditTest.h"
#include "widgets/Translation.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QSet>
#include <QSignalSpy>
#include <QValidator>

#include <array>
#include <cmath>
#include <functional>
#include <limits>
#include <string>
#include <tuple>
#include <utility>

using namespace KVCAM::Testing;
using namespace KVCAM::UIAPI;
using namespace KVCAM::UIAPI::Ext::LengthLiterals;

namespace {

class LineEditExtras : public LineEditTest
{};

TEST_F(LineEditExtras, AFieldFollowsItsViewAndNoOtherAndCanBeGivenAnother)
{
    QWidget metric;
    registerView(&metric, 1);
    KVLineEdit edit("10", RegNumber, &view);
    KVLineEdit sum("10", RegExpression, &view);
    edit.setFollowView(true);
    for (KVLineEdit * each : {&edit, &sum}) {
        each->setRange(1_mil, 20_mil);
        each->setView(&metric);
        EXPECT_EQ(each->view(), &metric);
    }
    EXPECT_EQ(sum.property("uiapiValid"), false); // 10 micrometres
    for (auto const & [handle, unit, text] :
         {std::tuple(&view, 1, "254"), {&view, 0, "254"}, {&metric, 0, "10"}, {&metric, 1, "254"}}) {
        setUnit(handle, unit);
        EXPECT_EQ(edit.text(), text);
    }
    edit.setFollowView(false);
    setUnit(&metric, 0);
    EXPECT_EQ(edit.text(), "254");
    edit.setFollowView(true); // begins with the unit that the view has now
    EXPECT_EQ(edit.text(), "10");
    QWidget const unknown;
    edit.setView(&unknown); // is not asked
    setUnit(&metric, 1);
    EXPECT_EQ(edit.text(), "10");
    EXPECT_EQ(log.take(), Lines{});
}

TEST_F(LineEditExtras, AFieldIsFilledInAUnitWithoutTouchingItsView)
{
    struct Row
    {
        int kind, viewUnit;
        Ext::Unit unit;
        char const *text, *shown, *other; // in the view's unit and in the other one
    };
    auto const inch = Ext::Unit::Inch;
    auto const metric = Ext::Unit::Millimetre;
    for (Row const & row :
         {Row{RegNumber, 1, inch, "10", "254", "10"}, Row{RegNumber, 0, inch, "10", "10", "254"},
          Row{RegPositive, 0, metric, "254.1234", "10.0049", "254.1234"},
          Row{RegSymbolName, 0, metric, "r254", "r10", "r254"},
          Row{RegExpression, 1, inch, "1+1", "1+1", "1+1"}}) {
        setUnit(&view, row.viewUnit);
        engine.take();
        KVLineEdit & edit = field(row.kind);
        QSignalSpy const spy(&edit, &QLineEdit::textChanged);
        edit.setTyped(row.text, row.unit);
        EXPECT_EQ(edit.text() + QString::number(spy.count()), row.shown + QString("1"));
        edit.changeunit(1 - row.viewUnit);
        EXPECT_EQ(edit.text(), row.other);
        EXPECT_EQ(std::pair(edit.typed(), edit.typedUnit()), std::pair(QString(row.text), row.unit));
        edit.setTyped("", inch);
        EXPECT_EQ(edit.text() + edit.typed(), "");
        EXPECT_TRUE(engine.take().empty() && getUnit(&view) == row.viewUnit);
    }
    QWidget unknown;
    KVLineEdit stranger(RegNumber, &unknown);
    stranger.setTyped("10", metric);
    EXPECT_EQ(stranger.text(), "10");
    EXPECT_EQ(log.take(), Lines{});
}

// As Qt Designer sets it: by name, after the text and without a registered parent.
TEST_F(LineEditExtras, TheKindCanBeSetLater)
{
    QWidget unknown;
    KVLineEdit edit("254", &unknown);
    EXPECT_TRUE(edit.setProperty("kind", "Positive"));
    edit.setView(&view);
    show(edit, 1);
    EXPECT_EQ(edit.text(), "6451.6"); // what was there counts as inch
    retype(edit, "-2x");
    edit.setKind(RegPositive); // the kind that it has
    EXPECT_EQ(edit.exactValue(Ext::Unit::Millimetre), 2);
    for (auto const & [kind, keys, text] :
         {std::tuple(RegName, "X a", "2a"), {KVERegExp(0), "?", "2a?"}, {KVERegExp(12), "3", "2a?"}}) {
        edit.setKind(kind);
        type(edit, keys);
        show(edit, 0);
        EXPECT_EQ(edit.text(), text);
        EXPECT_EQ(edit.findChildren<QValidator *>().size(), kind == 0 ? 0 : 1);
    }
}

TEST_F(LineEditExtras, SymbolsCanBeConvertedToTheUnitShown)
{
    using Names = std::array<char const *, 3>; // as typed, as described, for the target unit
    for (auto const & [unit, names] :
         {std::pair(0, Names{"rect20x10", "rect0.787402x0.393701", "rect508x254"}),
          {1, Names{"rect508x254", "rect20x10", "rect20x10"}},
          {0, Names{"mine10", "mine10", "mine10"}}}) {
        setUnit(&view, unit);
        KVLineEdit & edit = field(RegSymbolName);
        type(edit, names[0]);
        for (auto const conversion :
             {KVLineEdit::AsDescribed, KVLineEdit::TargetUnit, KVLineEdit::AsDescribed}) {
            show(edit, 1 - unit);
            edit.setSymbolConversion(conversion);
            EXPECT_EQ(edit.text(), names[conversion + 1]);
            show(edit, unit);
            EXPECT_EQ(edit.text(), names[0]);
        }
    }
}

TEST_F(LineEditExtras, AnUnregisteredParentIsAnInchViewAndFollowedOnceItIsRegistered)
{
    QWidget late;
    KVLineEdit edit(RegNumber, &late);
    KVLineEdit name(RegName, &late);
    edit.setFollowView(true);
    type(name, "1");
    EXPECT_EQ(log.take(), Lines{}); // neither an empty field nor a name needs the unit
    type(edit, "1");
    EXPECT_EQ(log.take(), Lines{operationError("getShowPara")});
    registerView(&late, 1);
    EXPECT_EQ(edit.text(), "25.4"); // inches were typed
}

TEST_F(LineEditExtras, ExactValueIsWhatWasTypedInItsOwnUnit)
{
    constexpr qint64 max = std::numeric_limits<qint64>::max();
    struct Row
    {
        int unit;
        char const * typed;
        double inch, metric;
        qint64 small, large; // nanometres
    };
    for (Row const & row : {
             Row{1, "254.1234", 254.1234 / 25.4, 254.1234, 254123, 254123400},
             Row{0, "0.00001", 0.00001, 0.00001 * 25.4, 0, 254},
             Row{0, "-3.5", -3.5, -3.5 * 25.4, -88900, -88900000},
             Row{1, "9300000000000", 9300000000000 / 25.4, 9300000000000, 9300000000000000, max},
             Row{0, "-", 0, 0, 0, 0},
         }) {
        SCOPED_TRACE(row.typed);
        setUnit(&view, row.unit);
        KVLineEdit & edit = field(RegNumber);
        type(edit, row.typed);
        for (int i = 0; i < 101; ++i) {
            show(edit, i % 2 == 0 ? 1 - row.unit : row.unit);
            ASSERT_EQ(edit.exactValue(Ext::Unit::Inch), row.inch);
            ASSERT_EQ(edit.exactValue(Ext::Unit::Millimetre), row.metric);
        }
        EXPECT_EQ(edit.exactLength().nanometres(), row.small);
        edit.setLengthScale(KVLineEdit::Large);
        EXPECT_EQ(edit.exactLength().nanometres(), row.large);
    }
    EXPECT_TRUE(std::isnan(field(RegSymbolName).exactValue(Ext::Unit::Inch)));
}

TEST_F(LineEditExtras, ExpressionIsReadInTheUnitShown)
{
    KVLineEdit & edit = field(RegExpression);
    type(edit, "10+2.5");
    EXPECT_EQ(edit.exactValue(Ext::Unit::Millimetre), 317.5);
    EXPECT_EQ(edit.exactLength().nanometres(), 317500);
    show(edit, 1);
    EXPECT_EQ(edit.exactValue(Ext::Unit::Millimetre), 12.5);
    EXPECT_EQ(edit.exactLength().nanometres(), 12500);
}

std::string outside(char const * bounds)
{
    return std::string("Allowed: ") + bounds + ", both included.";
}

TEST_F(LineEditExtras, RangeJudgesEachKindWithoutABox)
{
    struct Row
    {
        int kind;
        KVLineEdit::LengthScale scale;
        int unit;
        char const * typed;
        std::string words; // empty for a legal text
    };
    std::string const inch = outside("1 mil to 10 mil");
    std::string const metric = outside("25.4 my to 254 my");
    auto const small = KVLineEdit::Small;
    auto const large = KVLineEdit::Large;
    for (Row const & row : {
             Row{RegNumber, small, 0, "10", ""},
             Row{RegNumber, small, 0, "10.0001", inch},
             Row{RegPositive, small, 1, "254.1", metric},
             Row{RegNumber, small, 1, "", metric},
             Row{RegNumber, large, 0, "0.01", ""},
             Row{RegNumber, large, 1, "0.2541", outside("0.0254 mm to 0.254 mm")},
             Row{RegExpression, small, 0, "2*4+", ""}, // one trailing operator is dropped
             Row{RegExpression, small, 0, "10+2.5", inch},
             Row{RegExpression, small, 0, "2*-3", "This calculation cannot be read."},
             Row{RegSymbolName, small, 0, "rect5x10", ""},
             Row{RegSymbolName, large, 1, "r300",
                 "\"300\" is out of range. " + metric}, // sizes in a name are always small units
             Row{RegName, small, 0, "100", ""},
         }) {
        SCOPED_TRACE(row.typed);
        setUnit(&view, row.unit);
        KVLineEdit & edit = field(row.kind);
        edit.setLengthScale(row.scale);
        edit.setRange(1_mil, 10_mil);
        retype(edit, row.typed);
        EXPECT_EQ(edit.property("uiapiValid"), QVariant(row.words.empty()));
        edit.clearRange();
        EXPECT_FALSE(edit.property("uiapiValid").isValid());
        QSignalSpy const spy(&edit, &KVLineEdit::validityChanged);
        edit.setRange(1_mil, 10_mil);
        ASSERT_EQ(spy.count(), row.words.empty() ? 0 : 1);
        EXPECT_EQ(spy.value(0).value(1).toString().toStdString(), row.words);
        edit.changeunit(1 - row.unit); // the typed text counts, not the shown one
        EXPECT_EQ(edit.property("uiapiValid"), QVariant(row.words.empty()));
    }
}

TEST_F(LineEditExtras, VerdictIsToldOncePerChangeAndKeepsThroughASwitch)
{
    KVLineEdit & edit = field(RegNumber);
    edit.setStyleSheet("[uiapiValid=\"false\"] { color: rgb(255, 0, 0); }");
    view.show();
    edit.setFollowView(true);
    type(edit, "3");
    edit.setRange(1_mil, 3_mil);
    QSignalSpy spy(&edit, &KVLineEdit::validityChanged);
    setUnit(&view, 1);
    EXPECT_EQ(edit.text(), "76.2");
    setUnit(&view, 0);
    EXPECT_EQ(spy.count(), 0);
    type(edit, "0000");
    setUnit(&view, 1); // the text changes with the unit
    ASSERT_EQ(spy.count(), 2);
    EXPECT_EQ(spy[0][1].toString().toStdString(), outside("1 mil to 3 mil"));
    EXPECT_EQ(spy[1][1].toString().toStdString(), outside("25.4 my to 76.2 my"));
    EXPECT_EQ(edit.palette().color(QPalette::Text), QColor(255, 0, 0));
}

// Deletes any object that gets a dynamic property.
struct DeletingFilter : QObject
{
    bool eventFilter(QObject * object, QEvent * event) override
    {
        if (event->type() != QEvent::DynamicPropertyChange) {
            return false;
        }
        delete object;
        return true;
    }
};

TEST_F(LineEditExtras, ASlotMayDeleteTheFieldThatEmits)
{
    DeletingFilter filter;
    QPointer<KVLineEdit> edit;
    auto const erase = [&edit] { delete edit; };
    std::function<void()> const ways[] = {
        [&] { QObject::connect(edit, &QLineEdit::textChanged, erase); },
        [&] { QObject::connect(edit, &QLineEdit::selectionChanged, erase); },
        [&] { QObject::connect(edit, &QLineEdit::cursorPositionChanged, erase); },
        [&] { QObject::connect(edit, &KVLineEdit::validityChanged, erase); },
        [&] { edit->installEventFilter(&filter); }};
    std::function<void()> const acts[] = {
        [&] { edit->changeunit(1); }, [&] { setUnit(&view, 1); }, [&] { edit->setRange(20_mil, 30_mil); },
        [&] { edit->clearRange(); }, [&] { edit->setLengthScale(KVLineEdit::Large); }};
    std::string deleted;
    for (auto const & arrange : ways) {
        for (auto const & act : acts) {
            setUnit(&view, 0);
            edit = new KVLineEdit("1", RegNumber, &view);
            edit->setRange(2_mil, 3_mil);
            edit->setFollowView(true);
            edit->selectAll();
            arrange();
            act();
            deleted += edit.isNull() ? 'x' : '.';
            delete edit;
        }
        deleted += '|';
    }
    EXPECT_EQ(deleted, "xx...|xx...|xx...|xxxxx|...x.|");
}

// The bases' destructors still emit when the private part is gone.
TEST_F(LineEditExtras, ADyingFieldHearsNoMore)
{
    auto * const edit = new KVLineEdit("1", RegNumber, &view);
    edit->setFollowView(true);
    edit->setRange(2_mil, 3_mil);
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
    edit->setFocus();
    int changes = 0;
    auto const change = [&] { setUnit(&view, ++changes % 2); };
    QObject::connect(edit, &QObject::destroyed, change);
    QObject::connect(qApp, &QApplication::focusChanged, &view, change);
    delete edit;
    EXPECT_EQ(changes, 2);
}

TEST_F(LineEditExtras, RefusedKeyIsExplainedInTheLanguage)
{
    for (bool chinese : {false, true}) {
        ASSERT_TRUE(Ext::installTranslation(chinese ? LANGUAGE_CHINESE : LANGUAGE_ENGLISH));
        QSet<QString> distinct;
        for (int kind = 1; kind <= 12; ++kind) {
            KVLineEdit & edit = field(kind);
            edit.setRefusalHints(true);
            QSignalSpy const refused(&edit, &KVLineEdit::inputRefused);
            type(edit, "\u4e00");
            ASSERT_EQ(refused.count(), 1) << kind;
            distinct.insert(refused[0][0].toString());
        }
        EXPECT_EQ(distinct.size(), 12); // each kind has its own text
        for (QString const & text : distinct) {
            EXPECT_EQ(text.contains(QRegExp("[\u4e00-\u9fa5]")), chinese) << text.toStdString();
        }
    }
    KVLineEdit & full = field(RegName);
    full.setMaxLength(2);
    full.setRefusalHints(true);
    QSignalSpy const refused(&full, &KVLineEdit::inputRefused);
    type(full, "abc");
    EXPECT_TRUE(refused.value(0).value(0).toString().contains('2'));
}

} // namespace
