#pragma once

// Analysis: check results graded by the configured levels, and reports of them.
//
//   loadedRangeFiles()      which range files were read, and from where
//   saveRanges()            writes what changeRangesValue() changed back into the file
//   categoryTables()        the names of the category tables
//   grade()                 the severity of a value by the three levels of a category
//   gradeMeasured()         the same for a measured length
//   senseOf()               which side of the levels is the bad one
//   severityPalette         how a severity is shown: colour, letter, icon, name
//   markOf()                its row for a severity
//   AnalysisReport          every measurement with its category and severity
//   limitOf()               the level that decided
//   reportText()            a report as JSON, CSV, HTML or JUnit XML
//   writeReport()           the same into a file
//   ReportModel             a report as a tree for item views
//   worstOf()               the worst severity among counts
//   severitySign()          a severity in short, "✖ R"
//   severityName()          a severity in words, translated
//   trackWidths()           the narrowest track of each layer, for a chart
//   trackWidthAxis()        the axis of that chart
//   htmlReport()            a report as a page for people: language, pictures, what is listed
//   writeHtmlReport()       the same into a file
//   violationId()           the text that names a violation in every report
//   violationIds()          those of a category, different for what is named alike
//   violationName()         what the text says, as values
//   parseViolationId()      the same of a text
//   isSameViolation()       whether two names stand for the same violation, although a place moved a little
//   readReport()            a report of a JSON file
//   parseReport()           the same of its text
//   compareReports()        what is new, fixed, better or worse in a later report
//   changeName()            the name of a change
//   comparisonText()        the comparison as JSON
//   writeComparison()       the same into a file
//   readWaivers()           violations that somebody has accepted, for AnalysisReport::applyWaivers()
//   parseWaivers()          the same of a text
//   waiversText()           the waivers as JSON
//   writeWaivers()          the same into a file
//   waiverStateName()       what became of a waiver, in a word
//   isViolation()           whether a measurement fails: as bad as a severity or worse, and not waived
//   clearUnifiedResults()   empties Unified_AnalysisResult between two jobs
//
// A run: getRanges() -> AnalysisReport::setLevels(); the engine's replies -> addDrill(), addSignal(),
// addUnified(), and to Unified_AnalysisResult as before; the nets of what is added -> setNetLookup() before;
// what was not run -> addNotChecked(); at the end writeReport(). The report grades with gradeMeasured().

#include "../analysis/AnalysisReport.h"
#include "../analysis/Grade.h"
#include "../analysis/HtmlReport.h"
#include "../analysis/RangeSource.h"
#include "../analysis/ReportComparison.h"
#include "../analysis/ReportModel.h"
#include "../analysis/ReportReader.h"
#include "../analysis/TrackWidths.h"
#include "../analysis/Unified_AnalysisResult.h"
#include "../analysis/ViolationId.h"
#include "../analysis/Waivers.h"
#include "../support/Result.h"
#include "UIAPICommonExport.h"

#include <string>
#include <vector>

/// \addtogroup ranges
namespace KVCAM::UIAPI::Ext {

/// The ranges that were read, by name, ascending byte by byte. A missing name was not read: there is no such
/// file, or the file is faulty (see diagnostics()) or holds no list. A listed name for which getRanges()
/// gives nothing has an empty list. Of two files of the same name the first one read is listed.
/// \since 0.1
[[nodiscard]] UIAPICOMMON_EXPORT std::vector<RangeSource> loadedRangeFiles();

/// Writes the levels that changeRangesValue() changed back into the file that the range was read from. Only
/// these levels change, as texts in the shortest form that reads back equal; unknown keys and elements that
/// are not records are kept. The file is replaced as a whole. Rejected if the range was not read from a file,
/// or if the file no longer holds the categories read from it. Nothing to write counts as saved. The reason
/// of a failure is translated. Nothing is logged.
[[nodiscard]] UIAPICOMMON_EXPORT Result saveRanges(std::string const & rangeName);

} // namespace KVCAM::UIAPI::Ext
