#include "harness/UiapiTest.h"

#include "uiapi/flat/ShowParameters.h"
#include "uiapi/flat/Units.h"
#include "uiapi/flat/ViewAccess.h"
#include "units/UnitConversion.h"

#include <QRegExp>

#include <cmath>
#include <limits>
#include <optional>
#include <random>

using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

struct Conversion
{
    double value;
    double inch;   // unit 0
    double metric; // unit 1
};

TEST(UnitConversion, ToUnitRoundsTheFractionAwayFromZero)
{
    for (Conversion const & row :
         {Conversion{25.4, 1.0, 645.16}, Conversion{1.0, 0.03937, 25.4}, Conversion{0, 0, 0},
          Conversion{-1.0, -0.03937, -25.4}, Conversion{254.1234, 10.00486, 6454.734},
          // the fraction alone is rounded, so a large integer part does not eat the decimals
          Conversion{1e9, 39370078.74016, 25.4e9}, Conversion{infinity, infinity, infinity}}) {
        EXPECT_EQ(Units::toUnit(0, row.value), row.inch) << row.value;
        EXPECT_EQ(Units::toUnit(1, row.value), row.metric) << row.value;
        EXPECT_EQ(Units::toUnit(-1, row.value), row.metric) << row.value;
        EXPECT_EQ(Units::toUnit(2, row.value), row.metric) << row.value;
    }
    EXPECT_TRUE(std::isnan(Units::toUnit(0, std::nan(""))));
}

TEST(UnitConversion, OtherUnitCodesAreInchForTheEngineAndMetricForTheEye)
{
    struct Row
    {
        int unit;
        double nanometres, micrometres, mil, large, judge;
        char const * milText;
        char const * largeText;
        char const * areaText;
        char const * areaName;
    };
    // of the value 2: toEngine kinds 0 and 1, toMil, fromMicrometres, milToSmallUnit
    for (Row const & row :
         {Row{0, 50800000.0, 50800.0, 2, 2 / 25400.0, 2, "2", "0.000", "2", "sq/in"},
          Row{1, 2000000.0, 2000.0, 2 / 25.4, 0.002, 50.8, "50.80", "0.002", "1290.3200", "sq/mm"},
          Row{2, 50800000.0, 50800.0, 2, 0.002, 50.8, "50.80", "0.002", "1290.3200", "sq/mm"},
          Row{-1, 50800000.0, 50800.0, 2, 0.002, 50.8, "50.80", "0.002", "1290.3200", "sq/mm"}}) {
        SCOPED_TRACE(row.unit);
        EXPECT_EQ(Units::toEngine(row.unit, 0, 2), row.nanometres);
        EXPECT_EQ(Units::toEngine(row.unit, 1, 2), row.micrometres);
        EXPECT_EQ(Units::toEngine(row.unit, 2, 2), 0.0);
        EXPECT_EQ(Units::toEngine(row.unit, -1, 2), 0.0);
        EXPECT_EQ(Units::toMil(row.unit, 0, 2), row.mil);
        EXPECT_EQ(Units::toMil(row.unit, 1, 2), row.mil);
        EXPECT_EQ(Units::toMil(row.unit, 2, 2), row.unit == 1 ? 0.0 : 2.0);
        EXPECT_EQ(Units::fromMicrometres(row.unit, 2), row.large);
        EXPECT_EQ(Units::milToSmallUnit(row.unit, 2), row.judge);
        EXPECT_EQ(Units::milText(row.unit, 2, 2), row.milText);
        EXPECT_EQ(Units::micrometresText(row.unit, 2), row.largeText);
        EXPECT_EQ(Units::areaText(row.unit, 2), row.areaText);
        EXPECT_EQ(Units::areaName(row.unit), row.areaName);
    }
}

TEST(UnitConversion, JudgeValuesTruncateAndSaturate)
{
    struct Row
    {
        double value;
        int inch, metric, inverseMetric;
    };
    constexpr int max = std::numeric_limits<int>::max();
    constexpr int min = std::numeric_limits<int>::min();
    for (Row const & row :
         {Row{3.9, 3, 99, 0}, Row{-3.9, -3, -99, 0}, Row{99.06, 99, 2516, 3}, Row{1e12, max, max, max},
          Row{-1e12, min, min, min}, Row{infinity, max, max, max}, Row{std::nan(""), 0, 0, 0}}) {
        SCOPED_TRACE(row.value);
        EXPECT_EQ(Units::milToSmallUnitTruncated(0, row.value), row.inch);
        EXPECT_EQ(Units::milToSmallUnitTruncated(1, row.value), row.metric);
        EXPECT_EQ(Units::smallUnitToMilTruncated(0, row.value), row.inch);
        EXPECT_EQ(Units::smallUnitToMilTruncated(1, row.value), row.inverseMetric);
    }
}

TEST(UnitConversion, NamesByUnitAndKind)
{
    struct Row
    {
        int unit;
        char const *name, *large, *small;
    };
    for (Row const & row :
         {Row{0, "Inch", "inch", "mil"}, Row{1, "MM", "mm", "my"}, Row{2, "", "", ""}, Row{-1, "", "", ""}}) {
        SCOPED_TRACE(row.unit);
        EXPECT_EQ(Units::name(row.unit), row.name);
        EXPECT_EQ(Units::nameByKind(row.unit, 0), row.large);
        EXPECT_EQ(Units::nameByKind(row.unit, 1), row.small);
        EXPECT_EQ(Units::nameByKind(row.unit, 2), "");
    }
}

TEST(UnitConversion, PlainTextDropsTrailingZerosAndThePointWithThem)
{
    struct Row
    {
        double value;
        char const * text;
    };
    for (Row const & row :
         {Row{10.0, "10"}, Row{0.0, "0"}, Row{100.5, "100.5"}, Row{0.1234567, "0.123457"}, Row{-0.5, "-0.5"},
          Row{100.0, "100"}, Row{1e9, "1000000000"}, Row{0.0000001, "0"}, Row{-0.0, "0"}, Row{1.05, "1.05"},
          Row{infinity, "inf"}, Row{std::nan(""), "nan"}}) {
        EXPECT_EQ(Units::plainText(row.value), row.text);
    }
}

// The rule as a regular expression, which is what plainText() stands for.
TEST(UnitConversion, PlainTextIsTheFixedTextWithoutItsTrailingZeros)
{
    std::mt19937 random(1);
    std::uniform_real_distribution<double> exponent(-8, 15);
    for (int i = 0; i < 20000; ++i) {
        double value = std::pow(10.0, exponent(random)) * (i % 2 == 0 ? 1 : -1);
        value = i % 3 == 0 ? std::round(value * 100) / 100 : value;
        QString text = QString("%1").arg(value, 0, 'f', -1, QChar(' '));
        text.replace(QRegExp("(\\.){0,1}0+$"), "");
        ASSERT_EQ(Units::plainText(value), text.toStdString());
    }
}

TEST(UnitConversion, SixDigitTextsTurnToExponents)
{
    EXPECT_EQ(Units::milText(0, 1234567.0, 2), "1.23457e+06");
    EXPECT_EQ(Units::milText(0, 0.1234567, 9), "0.123457"); // precision is not used for inch
    EXPECT_EQ(Units::milText(1, 1.0, 0), "25");
    EXPECT_EQ(Units::milText(1, 1.0, -1), "25.400000");
    EXPECT_EQ(Units::milText(1, 1.0, std::numeric_limits<int>::max()).size(), 3 + 1074);
    EXPECT_EQ(Units::areaText(0, 1234567.0), "1.23457e+06");
}

TEST(UnitConversion, MeasuredValueNeedsKindAndCountToAgree)
{
    struct Row
    {
        int kind;
        std::vector<int> points;
        std::optional<double> value;
    };
    for (Row const & row : {Row{1, {1, 2, 3, 4, 5}, 5}, Row{2, {1, 2, 3, 4, 5}, 5}, Row{1, {1, 2, 3, 4}, {}},
                            Row{3, {1, 2, 3, 4, 5, 6, 7, 8}, 7}, Row{3, {1, 2, 3, 4, 5, 6, 7}, {}},
                            Row{5, {1, 2, 9, 4}, 4}, Row{5, {1, 2, 3, 4}, 3}, Row{5, {1, 2, 3, 4, 5}, {}},
                            Row{4, {1, 2, 3, 4, 5}, {}}, Row{0, {1, 2, 3, 4, 5}, {}},
                            Row{-1, {1, 2, 3, 4, 5}, {}}, Row{6, {1, 2, 3, 4}, {}}, Row{1, {}, {}}}) {
        EXPECT_EQ(Units::measuredValue({row.kind, 99, row.points}), row.value) << row.kind;
    }
}

// Each flat function reads the unit of the view it is given, and of no other.
class UnitViews : public UiapiTest
{
protected:
    void SetUp() override
    {
        UiapiTest::SetUp();
        for (int unit : {0, 1}) {
            Step_Config config;
            config.view = viewHandle(unit);
            config.show_param.unit = unit;
            ASSERT_TRUE(insertStepConfig(config));
        }
    }
};

TEST_F(UnitViews, FlatFunctionsFollowTheView)
{
    void const * const inch = viewHandle(0);
    void const * const metric = viewHandle(1);
    EXPECT_EQ(getUnitData(inch, 25.4), 1.0);
    EXPECT_EQ(getUnitData(metric, 1.0), 25.4);
    EXPECT_EQ(getUnitAPIData(inch, 0, 1.0), 25400000.0);
    EXPECT_EQ(getUnitAPIData(metric, 1, 1.0), 1000.0);
    EXPECT_EQ(getUnitMilData(inch, 0, 254.0), 254.0);
    EXPECT_EQ(getUnitMilData(metric, 0, 254.0), 10.0);
    EXPECT_EQ(getUnitPointData(inch, 25400.0), 1.0);
    EXPECT_EQ(getUnitPointData(metric, 25400.0), 25.4);
    EXPECT_EQ(getUnitJudgeData(inch, 3.9), 3);
    EXPECT_EQ(getUnitJudgeData(metric, 3.9), 99);
    EXPECT_EQ(getUnitJudgeData2(inch, 100.0), 100);
    EXPECT_EQ(getUnitJudgeData2(metric, 100.0), 3);
    EXPECT_EQ(getUnitJudgeDouble(inch, 3.0), 3.0);
    EXPECT_EQ(getUnitJudgeDouble(metric, 3.0), 3.0 * 25.4);
    EXPECT_EQ(getUnitJudgeString(inch, 1.0, 2), "1");
    EXPECT_EQ(getUnitJudgeString(metric, 1.0, 2), "25.40");
    EXPECT_EQ(getUnitJudgeStringMetric(inch, 25400.0), "1.000");
    EXPECT_EQ(getUnitJudgeStringMetric(metric, 25400.0), "25.400");
    EXPECT_EQ(getUnitString(inch), "Inch");
    EXPECT_EQ(getUnitString(metric), "MM");
    EXPECT_EQ(getUnitStringType(inch, 1), "mil");
    EXPECT_EQ(getUnitStringType(metric, 1), "my");
    EXPECT_EQ(getAreaUnitStringType(inch), "sq/in");
    EXPECT_EQ(getAreaUnitStringType(metric), "sq/mm");
    EXPECT_EQ(getAreaUnitJudgeString(inch, 1.0), "1");
    EXPECT_EQ(getAreaUnitJudgeString(metric, 1.0), "645.1600");
    EXPECT_EQ(doubleToString(10.0), "10");
    EXPECT_EQ(getMeasureValue({5, 0, {0, 0, 8, 9}}), 8.0);
    EXPECT_EQ(getMeasureValue({3, 0, {1, 2, 3, 4, 5, 6, 7}}), 0.0); // not understood
    EXPECT_EQ(log.take(), Lines{});
}

TEST_F(UnitViews, UnknownViewIsAnInchViewAfterOneLogLine)
{
    void const * const unknown = viewHandle(9);
    Lines const once{operationError("getShowPara")};
    EXPECT_EQ(getUnitData(unknown, 25.4), 1.0);
    EXPECT_EQ(log.take(), once);
    EXPECT_EQ(getUnitAPIData(unknown, 1, 1.0), 25400.0);
    EXPECT_EQ(log.take(), once);
    EXPECT_EQ(getUnitMilData(unknown, 1, 1.0), 1.0);
    EXPECT_EQ(log.take(), once);
    EXPECT_EQ(getUnitPointData(unknown, 25400.0), 1.0);
    EXPECT_EQ(log.take(), once);
    EXPECT_EQ(getUnitJudgeData(unknown, 1.0), 1);
    EXPECT_EQ(log.take(), once);
    EXPECT_EQ(getUnitJudgeData2(unknown, 1.0), 1);
    EXPECT_EQ(log.take(), once);
    EXPECT_EQ(getUnitJudgeDouble(unknown, 1.0), 1.0);
    EXPECT_EQ(log.take(), once);
    EXPECT_EQ(getUnitJudgeString(unknown, 1.0, 3), "1");
    EXPECT_EQ(log.take(), once);
    EXPECT_EQ(getUnitJudgeStringMetric(unknown, 25400.0), "1.000");
    EXPECT_EQ(log.take(), once);
    EXPECT_EQ(getUnitString(unknown), "Inch");
    EXPECT_EQ(log.take(), once);
    EXPECT_EQ(getUnitStringType(unknown, 0), "inch");
    EXPECT_EQ(log.take(), once);
    EXPECT_EQ(getAreaUnitStringType(unknown), "sq/in");
    EXPECT_EQ(log.take(), once);
    EXPECT_EQ(getAreaUnitJudgeString(unknown, 1.0), "1");
    EXPECT_EQ(log.take(), once);
}

} // namespace
