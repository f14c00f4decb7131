#include "harness/UiapiTest.h"

#include "uiapi/UIAPICommonPara.h"
#include "uiapi/flat/Arithmetic.h"
#include "units/ValueCheck.h"
#include "widgets/Translation.h"

#include <QCoreApplication>
#include <QTranslator>
#include <QWidget>

#include <cmath>
#include <limits>
#include <vector>

using namespace KVCAM::UIAPI;
using namespace KVCAM::UIAPI::Ext::LengthLiterals;
using namespace KVCAM::Testing;

namespace {

class ValueLegality : public UiapiTest
{
protected:
    void SetUp() override
    {
        UiapiTest::SetUp();
        registerView(viewHandle(0), 0);
        registerView(viewHandle(1), 1);
    }

    void expectShown(std::string const & text)
    {
        EXPECT_EQ(boxes.take(), text.empty() ? Lines{} : Lines{informationBox(text)});
    }

    static std::string lengthText(std::string const & bounds)
    {
        return bounds.empty() ? ""
                              : "Illegal float value\nfloating value for field is out of range: " + bounds;
    }
};

TEST_F(ValueLegality, BoundsInMilAreConvertedAndBelongToTheRange)
{
    double const infinity = std::numeric_limits<double>::infinity();
    struct Row
    {
        int unit;
        double value, minimum, maximum;
        char const * bounds; // empty for a legal value
    };
    for (Row const & row : {Row{0, 1, 1, 10, ""}, Row{0, 10, 1, 10, ""}, Row{0, 10.001, 1, 10, "(1, 10)"},
                            Row{0, 0.999, 1, 10, "(1, 10)"}, Row{1, 25.4, 1, 10, ""}, Row{1, 254, 1, 10, ""},
                            Row{1, 254.1, 1, 10, "(25.40, 254.00)"}, Row{1, 25.3, 1, 10, "(25.40, 254.00)"},
                            // no tolerance: 3 mil is 76.199999999999989
                            Row{1, 76.2, 1, 3, "(25.40, 76.20)"}, Row{1, 76.19, 1, 3, ""},
                            Row{0, 5, 10, 1, "(10, 1)"}, Row{0, 0, 1234567, 2e9, "(1.23457e+06, 2e+09)"},
                            Row{1, -1, 0, infinity, "(0.00, inf)"}, Row{0, infinity, 0, infinity, ""},
                            Row{0, std::nan(""), 1, 10, ""}, Row{1, std::nan(""), 1, 10, ""}}) {
        SCOPED_TRACE(row.value);
        std::string const text = lengthText(row.bounds);
        void const * const view = viewHandle(row.unit);
        EXPECT_EQ(isValueLegal(row.value, row.minimum, row.maximum, view), text.empty());
        expectShown(text);
        UIAPICommonPara::instance()->isValueLegal1(row.value, row.minimum, row.maximum, view);
        expectShown(text);
    }
    EXPECT_EQ(log.take(), Lines{});
}

TEST_F(ValueLegality, AnUnknownViewIsLoggedOnceForEachBoundAndEachText)
{
    std::string const line = operationError("getShowPara");
    EXPECT_TRUE(isValueLegal(10, 1, 10, viewHandle(9)));
    EXPECT_EQ(log.take(), (Lines{line, line}));
    EXPECT_FALSE(isValueLegal(254, 1, 10, viewHandle(9)));
    EXPECT_EQ(log.take(), (Lines{line, line, line, line}));
    EXPECT_EQ(boxes.take(), Lines{informationBox(lengthText("(1, 10)"))});
    // no look-up
    EXPECT_TRUE(isNumValueLegal(10, 1, 10, viewHandle(9)));
    EXPECT_EQ(log.take(), Lines{});
}

TEST_F(ValueLegality, AViewThatIsALivingWidgetIsTheBoxsParent)
{
    QWidget widget;
    registerView(&widget, 1);
    EXPECT_FALSE(isValueLegal(10, 1, 10, &widget));
    EXPECT_EQ(boxes.lastParent(), &widget);
    EXPECT_FALSE(isNumValueLegal(0, 1, 10, &widget));
    EXPECT_EQ(boxes.lastParent(), &widget);
    EXPECT_FALSE(isNumValueLegal(0, 1, 10, viewHandle(0)));
    EXPECT_EQ(boxes.lastParent(), nullptr);
    boxes.take();
}

TEST_F(ValueLegality, PlainNumbersAreNotConverted)
{
    struct Row
    {
        double value, minimum, maximum;
        char const * text; // empty for a legal value
    };
    for (Row const & row :
         {Row{5, 1, 4, "5\nlegal values: from 1 to 4"}, Row{1, 1, 4, ""}, Row{4, 1, 4, ""},
          Row{0.5, 1, 4, "0.5\nlegal values: from 1 to 4"}, Row{std::nan(""), 1, 4, ""},
          Row{12345678.5, 0.1234567, 1e7, "12345678.5\nlegal values: from 0.123457 to 1e+07"}}) {
        std::string const text =
            *row.text == '\0' ? "" : std::string("floating value for field is out of range: ") + row.text;
        EXPECT_EQ(isNumValueLegal(row.value, row.minimum, row.maximum, viewHandle(1)), text.empty());
        expectShown(text);
        EXPECT_EQ(Ext::checkNumber(row.value, row.minimum, row.maximum).ok, text.empty());
    }
}

TEST_F(ValueLegality, TheFirstIllegalNumberOfASymbolEndsTheCheck)
{
    struct Row
    {
        char const * name;
        int unit;
        bool legal;
        std::size_t lookUps; // of an unknown view
    };
    for (Row const & row : {Row{"r5x10", 0, true, 4}, Row{"r12x5", 0, false, 4}, Row{"r5x12x3", 0, false, 6},
                            Row{"r25.4x254", 1, true, 0}, Row{"r25.4x254.1", 1, false, 0},
                            Row{"", 0, true, 0}, Row{"abc", 0, true, 0}, Row{"r-5", 0, true, 2},
                            Row{"r1..2", 0, false, 4}, Row{"ths5x5x45x4x5", 0, false, 8}}) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(isSymbolValueLegal(row.name, 1, 10, viewHandle(row.unit)), row.legal);
        expectShown(row.legal ? "" : lengthText(row.unit == 0 ? "(1, 10)" : "(25.40, 254.00)"));
        EXPECT_EQ(Ext::checkSymbol(row.name, 1_mil, 10_mil, Ext::unitOfCode(row.unit)).ok, row.legal);
        if (row.unit == 0) {
            isSymbolValueLegal(row.name, 1, 10, viewHandle(9));
            EXPECT_EQ(log.take(), Lines(row.lookUps, operationError("getShowPara")));
            boxes.take();
        }
    }
}

// The message is composed first and then looked up as a whole, in UTF-8.
TEST_F(ValueLegality, TheComposedMessageIsTranslated)
{
    struct Upper : QTranslator
    {
        QString translate(char const * context, char const * text, char const *, int) const override
        {
            return context == std::string("QObject") ? QString::fromUtf8(text).toUpper() : QString();
        }
        bool isEmpty() const override { return false; }
    } upper;
    QCoreApplication::installTranslator(&upper);
    EXPECT_FALSE(isNumValueLegal(5, 1, 4, nullptr));
    EXPECT_EQ(boxes.take(), Lines{"information|INFORMATION|FLOATING VALUE FOR FIELD IS OUT OF RANGE: 5\n"
                                  "LEGAL VALUES: FROM 1 TO 4"});
    EXPECT_FALSE(isValueLegal(0, 1, 4, viewHandle(0)));
    EXPECT_EQ(boxes.take().back().substr(0, 42), "information|INFORMATION|ILLEGAL FLOAT VALU");
    EXPECT_FALSE(judgeCaculateIsStandard("--"));
    EXPECT_EQ(boxes.take(), Lines{"information|INFORMATION|CACULATEDATA ERROR"});
    log.take();
    QCoreApplication::removeTranslator(&upper);
}

// Kind, bounds and sentence; the bounds are included, to the nanometre.
TEST_F(ValueLegality, VerdictsSayWhatIsAllowedInTheUnitAndTheLanguage)
{
    struct Row
    {
        Ext::ValueVerdict verdict;
        Ext::ValueFault fault;
        char const * sentence;
        char const * chinese;
    };
    auto const none = Ext::Length::highest();
    auto const inch = Ext::Unit::Inch;
    auto const metric = Ext::Unit::Millimetre;
    auto const check = [](Ext::Length value, Ext::Length minimum, Ext::Length maximum, Ext::Unit unit,
                          Ext::LengthScale scale = Ext::LengthScale::Small) {
        return Ext::checkValue(value, minimum, maximum, unit, scale);
    };
    auto const rows = [&] {
        return std::vector<Row>{
            {check(76.2_um, 1_mil, 3_mil, metric), Ext::ValueFault::None, "", ""},
            {check(1_mil, 25.4_um, 3_mil, metric), Ext::ValueFault::None, "", ""},
            {check(76201_nm, 1_mil, 3_mil, inch), Ext::ValueFault::TooLarge,
             "Allowed: 1 mil to 3 mil, both included.", "允许范围：1 mil 至 3 mil（含两端）。"},
            {check(0_nm, 1_nm, 3_mil, metric, Ext::LengthScale::Large), Ext::ValueFault::TooSmall,
             "Allowed: 0.000001 mm to 0.0762 mm, both included.",
             "允许范围：0.000001 mm 至 0.0762 mm（含两端）。"},
            {check(0_nm, 1_um, none, metric), Ext::ValueFault::TooSmall, "Allowed: 1 my or more.",
             "允许范围：不小于 1 my。"},
            {check(0_nm, -none, -1_um, metric), Ext::ValueFault::TooLarge, "Allowed: -1 my or less.",
             "允许范围：不大于 -1 my。"},
            {Ext::checkSymbol("rect25.4x300", 1_mil, 10_mil, metric, inch), Ext::ValueFault::TooLarge,
             "\"300\" is out of range. Allowed: 1 mil to 10 mil, both included.",
             "“300”超出范围。允许范围：1 mil 至 10 mil（含两端）。"}};
    };
    for (Row const & row : rows()) {
        EXPECT_EQ(row.verdict.ok, row.fault == Ext::ValueFault::None);
        EXPECT_EQ(row.verdict.fault, row.fault) << row.sentence;
        EXPECT_EQ(row.verdict.reason.toStdString(), row.sentence);
    }
    Ext::ValueVerdict const symbol = rows().back().verdict;
    EXPECT_TRUE(symbol.minimum == 1_mil && symbol.maximum == 10_mil && symbol.position == 9 &&
                symbol.size == 3);
    Ext::NumberVerdict const number = Ext::checkNumber(5, 0.1234567, 4);
    EXPECT_TRUE(number.fault == Ext::ValueFault::TooLarge && number.maximum == 4);
    EXPECT_EQ(number.reason, "Allowed: 0.1234567 to 4, both included.");
    ASSERT_TRUE(Ext::installTranslation(LANGUAGE_MODE(0)));
    for (Row const & row : rows()) {
        EXPECT_EQ(row.verdict.reason.toStdString(), row.chinese);
    }
}

} // namespace
