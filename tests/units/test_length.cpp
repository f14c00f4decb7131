#include "ext/Values.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <utility>

using namespace KVCAM::UIAPI::Ext;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

// Constant expressions are free of undefined behaviour, or this does not compile.
static_assert(10_mil == 254_um && 1_in == 25.4_mm && 0.5_mm == 500000_nm && Length() == -0_nm);
static_assert(0.1_mm + 0.2_mm == 0.3_mm && 1_um - 2_um == -1_um && 1_mil < 26_um && 1_mil >= 25.4_um);
static_assert(3_nm * 2 == 6_nm && -2 * 3_nm == -6_nm && 3_nm * 0.5 == 2_nm && -3_nm * 0.5 == -2_nm);
static_assert(3_nm / 2 == 2_nm && -3_nm / 2 == -2_nm && 4_nm / 3 == 1_nm && 5_nm / -2 == -3_nm);
static_assert(1_nm * 0.49 == 0_nm && 7_nm / 0.5 == 14_nm && 1_in / 1_mil == 1000 && 3_nm * 2U == 6_nm);
static_assert(Length::highest() + 1_nm == Length::highest() && Length::lowest() - 1_nm == Length::lowest());
static_assert(Length::highest() - 1_nm < Length::highest() && -Length::lowest() == Length::highest());
static_assert(Length::highest() * 2 == Length::highest() && 5_nm * INT64_MIN == Length::lowest());
static_assert(Length::fromNanometres(INT64_MIN) == Length::lowest() &&
              1_nm * UINT64_MAX == Length::highest());
static_assert(1_nm / 0 == Length::highest() && -1_nm / 0.0 == Length::lowest() && 0_nm / 0 == 0_nm);
static_assert(Length::highest() / INT64_MIN == -1_nm);
static_assert(Length::fromMil(infinity) == Length::highest() &&
              Length::fromInches(-1e300) == Length::lowest());
static_assert((12.5_mil).toMicrometres() == 317.5 && (317.5_um).toMil() == 12.5 &&
              (1_in).toMillimetres() == 25.4);
static_assert(otherUnit(Unit::Inch) == Unit::Millimetre && otherUnit(Unit::Millimetre) == Unit::Inch);
static_assert(unitOfCode(0) == Unit::Inch && unitOfCode(-1) == Unit::Millimetre && !isUnitCode(2));

TEST(Length, Texts)
{
    EXPECT_EQ(Length::fromMil(std::numeric_limits<double>::quiet_NaN()),
              0_nm); // no constant for every compiler
    struct Row
    {
        Length length;
        Unit unit;
        LengthScale scale;
        int decimals; // -1: the shortest text
        char const * text;
    };
    constexpr auto inch = Unit::Inch;
    constexpr auto metric = Unit::Millimetre;
    constexpr auto small = LengthScale::Small;
    constexpr auto large = LengthScale::Large;
    for (Row const & row : {
             Row{10_mil, inch, small, -1, "10"},
             Row{-10_mil, metric, large, -1, "-0.254"},
             Row{1_nm, inch, small, -1, "0.00004"},
             Row{1_nm, inch, large, -1, "0.00000004"},
             Row{64_nm, inch, small, -1, "0.0025"}, // 63.5 reads back as 64
             Row{1_nm, metric, large, -1, "0.000001"},
             Row{-1_nm, metric, large, 3, "0.000"}, // no "-0"
             Row{-500_nm, metric, large, 3, "-0.001"},
             Row{499_nm, metric, large, 3, "0.000"},
             Row{999999_nm, metric, large, 3, "1.000"},
             Row{9.9999_mm, metric, large, 0, "10"},
             Row{1_mm, inch, small, 2, "39.37"},
             Row{1_nm, inch, small, 99, "0.000039370078740157"},
             Row{1_in, inch, large, -5, "1"},
             Row{Length::lowest(), metric, small, -1, "-9223372036854775.807"},
             Row{Length::highest(), inch, large, 1, "363124883340.7"},
         }) {
        QString const text = row.decimals == -1 ? row.length.text(row.unit, row.scale)
                                                : row.length.text(row.unit, row.scale, row.decimals);
        EXPECT_EQ(text.toStdString(), row.text);
    }
    EXPECT_EQ((12.5_um).textWithUnit(metric, small), "12.5 my");
    EXPECT_EQ((12.5_um).textWithUnit(metric, small, MicrometreSign::Mu), u8"12.5 \u00b5m");
    EXPECT_EQ((1_in).textWithUnit(metric, large), "25.4 mm");
    EXPECT_EQ((1_in).textWithUnit(inch, large), "1 inch");
    EXPECT_EQ(unitName(metric), "millimetre");
}

// Read as a whole number of the last decimal.
std::int64_t nanometresOf(QString text, Unit unit, LengthScale scale)
{
    int const decimals = text.contains('.') ? text.size() - text.indexOf('.') - 1 : 0;
    Length const parts = Length::fromNanometres(text.remove('.').toLongLong()) * nanometresPer(unit, scale);
    return (parts / std::llround(std::pow(10, decimals))).nanometres();
}

// The shortest text reads back, and one decimal less does not.
TEST(Length, ShortestTextsAreExactAndShortest)
{
    std::mt19937_64 random(1);
    for (int i = 0; i < 20000; ++i) {
        Length const length = Length::fromNanometres(static_cast<std::int64_t>(random()) >> (31 + i % 33));
        for (auto const & [unit, scale] :
             {std::pair(Unit::Inch, LengthScale::Small), std::pair(Unit::Inch, LengthScale::Large),
              std::pair(Unit::Millimetre, LengthScale::Small),
              std::pair(Unit::Millimetre, LengthScale::Large)}) {
            QString const text = length.text(unit, scale);
            ASSERT_EQ(nanometresOf(text, unit, scale), length.nanometres()) << text.toStdString();
            int const decimals = text.contains('.') ? text.size() - text.indexOf('.') - 1 : 0;
            ASSERT_EQ(length.text(unit, scale, decimals), text);
            if (decimals > 0) {
                QString const shorter = length.text(unit, scale, decimals - 1);
                ASSERT_NE(nanometresOf(shorter, unit, scale), length.nanometres()) << text.toStdString();
            }
        }
    }
}

} // namespace
