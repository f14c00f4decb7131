#include "harness/UiapiTest.h"

#include "uiapi/UIAPICommonPara.h"
#include "uiapi/flat/Arithmetic.h"
#include "units/Expression.h"

#include <cmath>
#include <limits>

using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

struct Row
{
    char const * expression;
    double value;
};

void expectValues(std::initializer_list<Row> rows)
{
    for (Row const & row : rows) {
        EXPECT_EQ(caculateData(row.expression), row.value) << row.expression;
    }
}

TEST(Expression, Values)
{
    // nothing is rounded; a number contains no sign, and "1e" is not a number
    expectValues({Row{"10+2*3", 16}, Row{"8-2-1", 5}, Row{"8/2*4", 16}, Row{"2+3*4*5", 62}, Row{"7", 7},
                  Row{".5+5.", 5.5}, Row{"0.1+0.2", 0.1 + 0.2},
                  Row{"12345678901234567890+0", 12345678901234567890.0}, Row{"1e3*2", 2000}, Row{"1e-3", -3},
                  Row{"0x10", 0}, Row{"infinity+1", 1}, Row{"inf*2", infinity}, Row{" 4 + 5 ", 9},
                  Row{"4 5", 0}});
}

TEST(Expression, OneWaitingOperatorIsTakenOffNeverARun)
{
    // the first is 1 - (2*3 + 4)
    expectValues({Row{"1-2*3+4", -9}, Row{"1+2*3-4*5+6", 1 + (2 * 3 - (4 * 5 + 6))}, Row{"100-10/5-3", 101}});
}

TEST(Expression, ATrailingOperatorGoesFirstThenALeadingSignGetsAZero)
{
    // the last is 0-, then 0 for the missing operand, + 5
    expectValues({Row{"6/", 6}, Row{"-5+2", -3}, Row{"+5", 5}, Row{"-5*2", -10}, Row{"-5-", -5}, Row{"-", 0},
                  Row{"--", 0}, Row{"5+-", 5}, Row{"-+5", 5}});
}

TEST(Expression, AMissingOperandCountsAsZero)
{
    expectValues(
        {Row{"", 0}, Row{"*2", 0}, Row{"3--2", -5}, Row{"2**3", 0}, Row{"2*abc", 0}, Row{"\u0663+1", 1}});
}

TEST(Expression, DivisionByZeroIsNotTrapped)
{
    expectValues({Row{"1/0", infinity}, Row{"0-1/0", -infinity}, Row{"5/abc", infinity}});
    EXPECT_TRUE(std::isnan(caculateData("0/0")));
}

TEST(Expression, JudgeCaculateIsFalseExactlyForASumBeforeAProduct)
{
    QString const texts = "+|-|*|/||a|+-|*/";
    for (QString earlier : texts.split('|')) {
        for (QString later : texts.split('|')) {
            bool const held = (earlier == "+" || earlier == "-") && (later == "*" || later == "/");
            EXPECT_EQ(UIAPICommonPara::instance()->judgeCaculate(earlier, later), !held);
        }
    }
}

class ExpressionForm : public UiapiTest
{};

TEST_F(ExpressionForm, TwoNonDigitsInARowAreShownAndLogged)
{
    for (char const * text : {"2*-3", "1..5", "--", "5ab", ".+5", "1.+2", "\u0661\u0662", "1e+5 "}) {
        EXPECT_FALSE(judgeCaculateIsStandard(text)) << text;
        EXPECT_EQ(log.take(), Lines{paraError("CaculateData ERROR")}) << text;
        EXPECT_EQ(boxes.take(), Lines{informationBox("CaculateData ERROR")}) << text;
        EXPECT_EQ(boxes.lastParent(), nullptr);
    }
}

TEST_F(ExpressionForm, StandardAndEmptyTextsPassWithoutAWord)
{
    for (char const * text : {".5", "5", "5.", "5+", "+", "*2", "a", "a5b", "-5+2", "10+2*3"}) {
        EXPECT_TRUE(judgeCaculateIsStandard(text)) << text;
    }
    EXPECT_FALSE(judgeCaculateIsStandard(""));
    EXPECT_EQ(log.take(), Lines{});
}

} // namespace
