#pragma once

#include "job/CommandLine.h"
#include "tour/BoardOutcome.h"

#include <UIAPICommonExt.h>

#include <QString>

#include <optional>
#include <vector>

namespace Workbench {

/// What the results of a board are held against.
struct Yardstick
{
    std::vector<KVCAM::UIAPI::Ext::Waiver> waivers;
    std::optional<KVCAM::UIAPI::Ext::AnalysisReport> baseline;

    KVCAM::UIAPI::Ext::AnalysisReport const * baselineOrNull() const
    {
        return baseline ? &*baseline : nullptr;
    }
};

/// Reads the files that the command line names, which is worth doing before the checks. Returns what is
/// wrong; empty on success.
QString readYardstick(CommandLine const & board, Yardstick & yardstick);

/// Counts the results, to which the waivers have been applied, compares them with the baseline, writes the
/// comparison, and decides by what the command line asks for. What is new fails as asked, and so does a
/// violation that is in the baseline with a better severity.
void judge(BoardOutcome & outcome, KVCAM::UIAPI::Ext::AnalysisReport const & report,
           CommandLine const & board, Yardstick const & yardstick);

/// What must not be missing where something that is found may fail the run: without levels nothing would.
/// Returns what is missing; empty if it is there. Needs the configuration.
QString missingLevels();

} // namespace Workbench
