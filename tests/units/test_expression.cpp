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
    expectValues({{"10+2*3", 16},
                  {"10+2.5", 12.5},
                  {"8-2-1", 5},
                  {"8/2/2", 2},
                  {"8/2*4", 16},
                  {"2*3+4", 10},
                  {"2+3*4*5", 62},
                  {"2*3*4+1", 25},
                  {"10+2*3-8/4", 14},
                  {"7", 7},
                  {".5+5.", 5.5},
                  {"0.1+0.2", 0.1 + 0.2}, // not rounded
                  {"1.23456789*1", 1.23456789},
                  {"1/3", 1.0 / 3},
                  {"12345678901234567890+0", 12345678901234567890.0},
                  {"1e3*2", 2000},
                  {"1e-3", -3}, // "1e" is no number: there is no sign within one
                  {"0x10", 0},
                  {"infinity+1", 1},
                  {"inf*2", infinity},
                  {" 4 + 5 ", 9},
                  {"4 5", 0}});
}

TEST(Expression, OneWaitingOperatorIsTakenOffNeverARun)
{
    expectValues({{"1-2*3+4", -9}, // 1 - (2*3 + 4)
                  {"1-2*3-4", -1},
                  {"1+2*3-4*5+6", 1 + (2 * 3 - (4 * 5 + 6))},
                  {"100-10/5-3", 101},
                  {"1-2-3*4+5", -18}});
}

TEST(Expression, ATrailingOperatorGoesFirstThenALeadingSignGetsAZero)
{
    expectValues({{"6/", 6},
                  {"-5+2", -3},
                  {"+5", 5},
                  {"-5*2", -10},
                  {"-5-", -5},
                  {"-2*3+4", -10},
                  {"-", 0},
                  {"+", 0},
                  {"--", 0},
                  {"5+-", 5},
                  {"-+5", 5}}); // 0-, then 0 for the missing operand, + 5
}

TEST(Expression, AMissingOperandCountsAsZero)
{
    expectValues({{"", 0},
                  {"*2", 0},
                  {"3--2", -5},
                  {"2**3", 0},
                  {"abc", 0},
                  {"2*abc", 0},
                  {"\u0663+1", 1},
                  {"*/", 0}});
}

TEST(Expression, DivisionByZeroIsNotTrapped)
{
    expectValues({{"1/0", infinity}, {"0-1/0", -infinity}, {"5/abc", infinity}});
    EXPECT_TRUE(std::isnan(caculateData("0/0")));
    EXPECT_TRUE(std::isnan(caculateData("//")));
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
