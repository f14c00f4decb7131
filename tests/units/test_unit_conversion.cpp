#include "harness/UiapiTest.h"

#include "uiapi/ViewUnit.h"
#include "uiapi/flat/ShowParameters.h"
#include "uiapi/flat/Units.h"
#include "units/UnitConversion.h"

#include <QRegExp>

#include <cmath>
#include <functional>
#include <limits>
#include <random>
#include <vector>

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
          // only the fraction is rounded, so a large integer part does not cost decimals
          Conversion{1e9, 39370078.74016, 25.4e9}, Conversion{infinity, infinity, infinity}}) {
        EXPECT_EQ(Units::toUnit(0, row.value), row.inch) << row.value;
        EXPECT_EQ(Units::toUnit(1, row.value), row.metric) << row.value;
        EXPECT_EQ(Units::toUnit(-1, row.value), row.metric) << row.value;
        EXPECT_EQ(Units::toUnit(2, row.value), row.metric) << row.value;
    }
    EXPECT_TRUE(std::isnan(Units::toUnit(0, std::nan(""))));
    for (double value : {-1e-6, -0.0, -0.00001}) { // the integer part is never -0.0
        EXPECT_FALSE(std::signbit(Units::toUnit(0, value)) || std::signbit(Units::toUnit(1, value)));
    }
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
        char const *name, *largeName, *smallName;
    };
    // of the value 2: toEngine kinds 0 and 1, toMil, fromMicrometres, milToSmallUnit
    for (Row const & row :
         {Row{0, 50800000.0, 50800.0, 2, 2 / 25400.0, 2, "2", "0.000", "2", "sq/in", "Inch", "inch", "mil"},
          Row{1, 2000000.0, 2000.0, 2 / 25.4, 0.002, 50.8, "50.80", "0.002", "1290.3200", "sq/mm", "MM", "mm",
              "my"},
          Row{2, 50800000.0, 50800.0, 2, 0.002, 50.8, "50.80", "0.002", "1290.3200", "sq/mm", "", "", ""},
          Row{-1, 50800000.0, 50800.0, 2, 0.002, 50.8, "50.80", "0.002", "1290.3200", "sq/mm", "", "", ""}}) {
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
        EXPECT_EQ(Units::name(row.unit), row.name);
        EXPECT_EQ(Units::nameByKind(row.unit, 0), row.largeName);
        EXPECT_EQ(Units::nameByKind(row.unit, 1), row.smallName);
        EXPECT_EQ(Units::nameByKind(row.unit, 2), "");
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
        EXPECT_EQ(Units::smallUnitToMilTruncated(0, row.value), row.inch);
        for (int unit : {1, 2, -1}) {
            EXPECT_EQ(Units::milToSmallUnitTruncated(unit, row.value), row.metric);
            EXPECT_EQ(Units::smallUnitToMilTruncated(unit, row.value), row.inverseMetric);
        }
    }
}

// The rule of plainText() as a regular expression.
TEST(UnitConversion, PlainTextIsTheFixedTextWithoutItsTrailingZeros)
{
    std::mt19937 random(1);
    std::uniform_real_distribution<double> exponent(-8, 15);
    std::vector<double> values{10.0,  0.0, -0.0, 100.5,    0.1234567,   -0.5,
                               100.0, 1e9, 1.05, infinity, std::nan("")};
    for (int i = 0; i < 20000; ++i) {
        double const value = std::pow(10.0, exponent(random)) * (i % 2 == 0 ? 1 : -1);
        values.push_back(i % 3 == 0 ? std::round(value * 100) / 100 : value);
    }
    for (double value : values) {
        QString text = QString("%1").arg(value, 0, 'f', -1, QChar(' '));
        text.replace(QRegExp("(\\.){0,1}0+$"), "");
        ASSERT_EQ(Units::plainText(value), text.toStdString());
    }
}

TEST(UnitConversion, SixDigitTextsTurnToExponents)
{
    EXPECT_EQ(Units::milText(0, 1234567.0, 2), "1.23457e+06");
    EXPECT_EQ(Units::milText(0, 0.1234567, 9), "0.123457"); // the precision is ignored for inch
    EXPECT_EQ(Units::milText(1, 1.0, -127), "25.400000");
    EXPECT_EQ(Units::milText(1, 1e-9, -128), "0.0000000254"); // as many decimals as it needs
    EXPECT_EQ(Units::milText(1, 1.0, std::numeric_limits<int>::max()).size(), 3 + 1074);
}

class UnitViews : public UiapiTest
{};

// Each flat function reads the unit of its view and of no other; an unknown view counts as inch
// after one line.
TEST_F(UnitViews, FlatFunctionsFollowTheView)
{
    registerView(viewHandle(0), 0);
    registerView(viewHandle(1), 1);
    auto const text = [](double value) { return QString::number(value, 'g', 17).toStdString(); };
    struct Row
    {
        std::function<std::string(void const *)> call;
        std::string inch, metric;
    };
    for (Row const & row : {
             Row{[&](auto view) { return text(getUnitData(view, 254)); }, "10", text(6451.6)},
             Row{[&](auto view) { return text(getUnitAPIData(view, 0, 1)); }, "25400000", "1000000"},
             Row{[&](auto view) { return text(getUnitMilData(view, 0, 254)); }, "254", "10"},
             Row{[&](auto view) { return text(getUnitPointData(view, 25400)); }, "1", text(25.4)},
             Row{[&](auto view) { return text(getUnitJudgeData(view, 3.9)); }, "3", "99"},
             Row{[&](auto view) { return text(getUnitJudgeData2(view, 100)); }, "100", "3"},
             Row{[&](auto view) { return text(getUnitJudgeDouble(view, 3)); }, "3", text(3 * 25.4)},
             Row{[](auto view) { return getUnitJudgeString(view, 1, 2).toStdString(); }, "1", "25.40"},
             Row{[](auto view) { return getUnitJudgeStringMetric(view, 25400).toStdString(); }, "1.000",
                 "25.400"},
             Row{[](auto view) { return getUnitString(view); }, "Inch", "MM"},
             Row{[](auto view) { return Ext::unitName(Ext::unitOf(view)).toStdString(); }, "inch",
                 "millimetre"},
             Row{[](auto view) { return getUnitStringType(view, 1); }, "mil", "my"},
             Row{[](auto view) { return getAreaUnitStringType(view); }, "sq/in", "sq/mm"},
             Row{[](auto view) { return getAreaUnitJudgeString(view, 1).toStdString(); }, "1", "645.1600"},
         }) {
        EXPECT_EQ(row.call(viewHandle(0)), row.inch);
        EXPECT_EQ(row.call(viewHandle(1)), row.metric);
        EXPECT_EQ(log.take(), Lines{});
        EXPECT_EQ(row.call(viewHandle(9)), row.inch);
        EXPECT_EQ(log.take(), Lines{operationError("getShowPara")}) << row.inch;
    }
    EXPECT_EQ(doubleToString(10.0), "10");
    EXPECT_EQ(getMeasureValue({5, 0, {0, 0, 8, 9}}), 8.0);
    EXPECT_EQ(getMeasureValue({3, 0, {1, 2, 3, 4, 5, 6, 7}}), 0.0); // unsupported
}

} // namespace
