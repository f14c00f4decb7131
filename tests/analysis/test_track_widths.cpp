#include "ReportMaking.h"

#include "analysis/TrackWidths.h"

#include <gtest/gtest.h>

#include <vector>

using namespace KVCAM::UIAPI::Ext;
using namespace KVCAM::Testing;

namespace {

TEST(TrackWidths, TheAxisHoldsTheBarsAndTheLevelsNearThem)
{
    struct Row
    {
        std::vector<int> um; // of the tracks of one layer; without: a layer without a track
        Unit unit;
        double end;
        double step;
    };
    for (Row const & row : {Row{{90, 60, 100}, Unit::Millimetre, 1.05 * 150, 50},
                            Row{{37}, Unit::Millimetre, 1.05 * 120, 50}, // green is over four times as long
                            Row{{1000}, Unit::Millimetre, 1050, 200}, Row{{254}, Unit::Inch, 10.5, 2},
                            Row{{}, Unit::Millimetre, 1.05 * 150, 50}}) {
        std::vector<Spot> spots;
        for (int const um : row.um) {
            spots.push_back({46, um, {}});
        }
        TrackWidths const widths = trackWidths(reportOf(spots), {"top"});
        ASSERT_EQ(widths.layers.size(), 1U);
        EXPECT_EQ(widths.levels.size(), 3U);
        ChartAxis const axis = trackWidthAxis(widths, row.unit);
        EXPECT_DOUBLE_EQ(axis.end, row.end);
        EXPECT_DOUBLE_EQ(axis.step, row.step);
    }
    EXPECT_TRUE(trackWidths({}, {"top"}).layers.empty()) << "tracks were not checked";
    EXPECT_EQ(trackWidthAxis({}, Unit::Inch).end, 1);
}

} // namespace
