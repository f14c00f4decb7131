#pragma once

#include "analysis/AnalysisReport.h"

#include <QByteArray>

#include <optional>
#include <string>
#include <vector>

/// What the writers of the formats share, and the writers. They compose text: a board has a million entries,
/// and a document with that many objects would take gigabytes.
namespace KVCAM::UIAPI::Ext::Formats {

/// Whether the text is the same in all of its encodings.
bool isAscii(std::string const & text);
/// Invalid UTF-8 becomes replacement characters.
QByteArray utf8(std::string const & text);
/// The shortest text that reads back equal; empty if not finite.
QByteArray numberText(std::optional<double> value);
/// In the small unit.
std::optional<double> inUnit(std::optional<Length> measured, Unit unit);
/// "mil" or "um", as reports write it; dialogs say "my".
char const * smallUnitName(Unit unit);
/// By entry: from 2 for what is named like another, see violationIds().
std::vector<int> copyNumbers(ReportCategory const & category);
/// The id with the number of the copy. All ids of a million entries would take as much as the report.
std::string copyId(ReportCategory const & category, ReportEntry const & entry, int copy);

///@{
/// The report in one format.
QByteArray json(AnalysisReport const & report);
QByteArray csv(AnalysisReport const & report);
QByteArray junit(AnalysisReport const & report, Severity failFrom);
///@}

} // namespace KVCAM::UIAPI::Ext::Formats
