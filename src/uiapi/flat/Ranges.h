#pragma once

#include "../../analysis/AnalysisRecords.h"
#include "UIAPICommonExport.h"

#include <string>
#include <vector>

/// \addtogroup ranges
/// The result categories of the analysis actions and their colour levels. Names are UTF-8 and compared byte
/// for byte. The first call reads the range files: every "*.json" in the sub-directories of the host's ranges
/// directory, once per process. Range files and category tables usually have the same names and are otherwise
/// independent.
namespace KVCAM::UIAPI {

/// Replaces `out` with the records of a range file (its name without ".json") in file order; none for a file
/// that was not read.
UIAPICOMMON_EXPORT void getRanges(std::string const & rangeName, std::vector<Analysis_Ranges_Record> & out);
/// The smallest number of the category of this name; -1 if the table or name is unknown.
UIAPICOMMON_EXPORT int getRangesEnum(std::string const & tableName, std::string const & categoryName);
/// The category's name; empty if the table or number is unknown.
UIAPICOMMON_EXPORT std::string getRangesName(std::string const & tableName, int number);
/// Sets "RedLv", "YellowLv" or "GreenLv" of the first category of this name, in memory only. Unknown names
/// change nothing.
UIAPICOMMON_EXPORT void changeRangesValue(std::string const & rangeName, std::string const & categoryName,
                                          std::string const & levelName, double value);
/// Appends the base names (up to the first ".") of the files in "./ERFconfig/" + folder, in no order. Nothing
/// if there is no such directory, or for a folder with a component "..".
UIAPICOMMON_EXPORT void getERFList(std::string folder, std::vector<std::string> & names);

} // namespace KVCAM::UIAPI
