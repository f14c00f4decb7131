#include "harness/UiapiTest.h"

#include "ext/Values.h"
#include "uiapi/flat/Arithmetic.h"

#include <QLocale>
#include <QStringList>

#include <random>

using namespace KVCAM::UIAPI;
using namespace KVCAM::UIAPI::Ext;

namespace {

constexpr auto small = LengthScale::Small;
EvaluateOptions const inMil{Unit::Inch, small, EvaluateAs::Length, false};
EvaluateOptions const asNumber{std::nullopt, small, EvaluateAs::Number, false};
EvaluateOptions const unitNeeded{std::nullopt, small, EvaluateAs::Length, false};
EvaluateOptions const withComma{Unit::Millimetre, LengthScale::Large, EvaluateAs::Either, true};

template <class Value>
struct Row
{
    Value value;
    QString texts; // separated by "|"
    EvaluateOptions options = inMil;
};

TEST(Evaluate, Lengths)
{
    QLocale::setDefault(QLocale(QLocale::German)); // does not matter
    for (auto const & row : {
             Row<Length>{10127000_nm,
                         "10mm+5mil|10 mm + 5 mil|10mm+5|5+10mm|((10mm)+(5))|\t10\u00a0MM+5Thou "},
             {300000_nm, "0.1mm+0.2mm|.1mm*3|0.9mm/3|300um|300 my|300\u00b5m|300\u03bcM|0.03cm|0.3Mm"},
             {10_mil, "10|10mil|10 mils|10thou|0.01in|0.01 inch|.01\"|5+5|5*2|20/2|100/(10mm/1mm)|10."},
             {-10_mil, "-10|-(10)|-+--10|+-10mil|5*-2|10/-1|0-10|-.01 IN|(1+1)*-5"},
             {98_mil, "100-2*3+4|(100-2*3)+4|100-(2*3-4)|4+100-3*2"},
             {333333_nm, "1mm/3|2mm/6|1/3*1mm|(1mm)*(1/3)|(1/7+1/3+1/11-1/7-1/11)*1mm"},
             {2_nm, "0.0015um|0.1um*0.015|0.0000015mm|1.50000000000000000000000um/1000"},
             {-2_nm, "-0.0015um|0.0005um-0.002um"},
             {1_nm, "0.00149999999999um|1mm/1000000|0.00000000000000000000001mm*100000000000000000"},
             {100_mm, "10mm*(2+3)*2|2*(10mm+40mm)|10 * 10mm|(10mm/5mm)*50mm|100mm/(3mm-2mm)*1mm"},
             {9.1e12_mm, "9100000000000mm"},
             {9100000000000001_nm, "9100000000mm+0.0005um|0.0005um+9100000000.000000mm"}, // beyond doubles
             {301_mil, "1" + QString("+(1)").repeated(300)},
             {1.5_mm, "1,5|1.5|,5+1,|0,15cm", withComma},
             {0_nm, "0|-0|0mm|1-1|0*5mm"},
         }) {
        for (QString const & text : row.texts.split('|')) {
            Evaluation const result = evaluate(text, row.options);
            EXPECT_TRUE(result && result.isLength) << text.toStdString();
            EXPECT_EQ(result.length.nanometres(), row.value.nanometres()) << text.toStdString();
        }
    }
}

TEST(Evaluate, Numbers)
{
    EvaluateOptions const noUnit;
    for (auto const & row : {Row<double>{14, "10+2*3-8/4|14|28mm/2mm|13+1mil/25.4um", asNumber},
                             {0.3, "0.1+0.2|.3|0.9/3", noUnit},
                             {2.5, "1in/10.16mm|12,7mm/.2in", withComma},
                             {1e300, "1" + QString(300, '0'), noUnit}}) {
        for (QString const & text : row.texts.split('|')) {
            Evaluation const result = evaluate(text, row.options);
            EXPECT_TRUE(result && !result.isLength) << text.toStdString();
            EXPECT_EQ(result.number, row.value) << text.toStdString();
        }
    }
}

// The faulty part stands in brackets.
TEST(Evaluate, TheFirstFaultIsMarked)
{
    QString const deep = QString(evaluateDepth, '(');
    for (auto const & row : {
             Row<EvaluateFault>{EvaluateFault::Empty, "|[   ]"},
             {EvaluateFault::NumberMissing,
              "5[+]|5+[*]3|([)]|[*]5|[-]|(2+[)]|[mm]|[nan]|[inf]|[.]|5*[.]mm|[/]|1-[ab]2|[\"]"},
             {EvaluateFault::OperatorMissing,
              "5 [5]|10mm [5]mil|10mm[5.25]|(1)[(]2)|2[(]3)|(1)[mm]|1\"[\"]|1 [000.5]"},
             {EvaluateFault::UnknownCharacter,
              u8"5+[\uff11]|5[\uff0b]3|[\u0665]|1[%]|[=]5|1[\U0001f600]|5 [\u00d7] 2|1[\u2212]2|1[^]2"},
             {EvaluateFault::CommaNotAllowed, "1[,]000.5|1[,]5|[,]5|10mm[,]"},
             {EvaluateFault::SecondDecimalSign, "1.2[.]3|1.[.]5"},
             {EvaluateFault::SecondDecimalSign, "1.000[,]5|1,000[.]5|1,000[,]000", withComma},
             {EvaluateFault::UnknownUnit, "10[km]|1[e]3|0[x]10|10 [m] m|5[mmm]|3[inches]|1[K]|1[\u00b5]"},
             {EvaluateFault::ParenthesisNotClosed, "[(]5|2*[(](3+1)|[(]1+2 "},
             {EvaluateFault::ParenthesisNotOpened, "5[)]|(5)[)]"},
             {EvaluateFault::NestedTooDeep, deep + "[(]5|1+" + deep + "[(]"},
             {EvaluateFault::DivisionByZero, "1/[0]|1mm/[(2-2)]|0/[0mm]*5|1/[-0.0]|1/[0]/[0]"},
             {EvaluateFault::LengthTimesLength, "2mm*[3mm]|2mm*[(1+1mm)]|2*2mm*[-1mil]"},
             {EvaluateFault::NumberByLength, "5/[2mm]|1/[(1mm+2)]|(2mm/1mm)/[1mm]"},
             {EvaluateFault::UnitMissing, "5mm+[3]|[3]+5mm|[(1+2)*3]-1in|[10]| [10*2]|5mm-[2*3*1]",
              unitNeeded},
             {EvaluateFault::RatioWithLength, "1mm+[2mm/1mm]|[2mm/1mm*3mm/3mm]-1mm"},
             {EvaluateFault::NotALength, "[2mm/1mm]|[1+2mm/1mm]"},
             {EvaluateFault::NotANumber, "[5mm]|[2*(3mm+1in)]", asNumber},
             {EvaluateFault::TooLarge, "[9300000000000mm]|[1" + QString(309, '0') + "]"},
         }) {
        for (QString const & marked : row.texts.split('|')) {
            QString text = marked;
            int const begin = std::max(0, text.indexOf('['));
            text.remove('[');
            int const end = std::max(0, text.indexOf(']'));
            text.remove(']');
            Evaluation const result = evaluate(text, row.options);
            EXPECT_FALSE(result.ok || result.reason.isEmpty() || result.reason.contains("%1"));
            EXPECT_EQ(result.fault, row.value) << marked.toStdString();
            EXPECT_EQ(result.position, begin) << marked.toStdString();
            EXPECT_EQ(result.size, end - begin) << marked.toStdString();
        }
    }
}

TEST(Evaluate, TellsWhereCaculateDataGivesAnotherValue)
{
    struct Classic
    {
        char const * text;
        double value; // of caculateData(), or the same
    };
    for (Classic const & row : {Classic{"100-2*3+4", 90}, Classic{"-5*2+3", -13}, Classic{"1-4/2-3", 2}}) {
        Evaluation const result = evaluate(QString(row.text), {});
        EXPECT_TRUE(result.differs) << row.text;
        EXPECT_EQ(result.classicValue, row.value) << row.text;
    }
    // the same value in the other order; another grammar; an error
    for (char const * text : {"1+2*3+4", "0.1+0.2*1+0.7", "5-0*2+3*0", "100 -2*3+4", "100-2*3mm+4mm",
                              "(100)-2*3+4", "100-2*3+4)", "1-2*-3+4"}) {
        EXPECT_FALSE(evaluate(QString(text), inMil).differs) << text;
    }
    std::mt19937 random(1);
    auto const number = [&](int from, int to) {
        return std::uniform_int_distribution<int>(from, to)(random);
    };
    int different = 0;
    constexpr int sums = 100000;
    for (int i = 0; i < sums; ++i) {
        QString sum = QString::number(number(1, 100));
        for (int operand = 1; operand < 4; ++operand) {
            sum += QChar("+-*/"[number(0, 3)]) + QString::number(number(1, 100));
        }
        Evaluation const result = evaluate(sum, {});
        double const classic = caculateData(sum);
        bool const isOther = std::abs(classic - result.number) > 1e-9 * (1 + std::abs(classic));
        ASSERT_TRUE(result.ok && result.differs == isOther) << sum.toStdString();
        ASSERT_TRUE(!isOther || result.classicValue == classic) << sum.toStdString();
        different += isOther ? 1 : 0;
    }
    RecordProperty("different", different);
    EXPECT_NEAR(different, 0.063 * sums, 0.004 * sums);
}

} // namespace
