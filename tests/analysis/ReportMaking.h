#pragma once

#include "analysis/AnalysisReport.h"

#include <string>
#include <utility>
#include <vector>

namespace KVCAM::Testing {

inline constexpr char const * signalTable = "SignalLayerRanges";

/// A measurement of "Circuit to circuit" (3), of "Lines" (46), or of "Pads" (45), where more is worse.
struct Spot
{
    int number = 3;
    int um = 90;
    std::vector<KVCAM::API::point> places;
    UIAPI::Ext::EntryNets nets = {"A", "B"};
    std::string layer = "top";
};

/// Red up to 100 micrometres, yellow to 120, green to 150; for pads the other way round.
inline UIAPI::Ext::AnalysisReport reportOf(std::vector<Spot> const & spots)
{
    UIAPI::Ext::AnalysisReport report;
    report.setLevelUnit(UIAPI::Ext::Unit::Millimetre);
    report.setLevels(
        signalTable,
        {{"Circuit to circuit", 100, 120, 150}, {"Lines", 100, 120, 150}, {"Pads", 150, 120, 100}});
    for (int const number : {3, 45, 46}) {
        report.addEntries(signalTable, number, {});
    }
    for (Spot const & spot : spots) {
        UIAPI::Ext::ReportEntry entry;
        entry.layer = spot.layer;
        entry.measured = UIAPI::Ext::Length::fromMicrometres(spot.um);
        entry.places = spot.places;
        entry.nets = spot.nets;
        report.addEntries(signalTable, spot.number, {entry});
    }
    return report;
}

} // namespace KVCAM::Testing
