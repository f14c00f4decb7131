#pragma once

#include "UIAPICommonExport.h"
#include "analysis/AnalysisRecords.h"
#include "analysis/RangeSource.h"
#include "support/Result.h"

#include <string>
#include <vector>

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

namespace Ext {

/// The ranges that were read, by name, ascending byte by byte. A name that is not among them was not read: no
/// file has it, or its file is at fault (see diagnostics()) or holds no list. One that is there and of which
/// getRanges() gives nothing has an empty list. Of two files of the same name the first that was read stands
/// here.
UIAPICOMMON_EXPORT std::vector<RangeSource> loadedRangeFiles();

/// Writes the levels that changeRangesValue() changed back into the file that the range was read from. Only
/// these levels change, as texts in the shortest form that reads back equal; unknown keys and elements that
/// are no records are kept. The file is replaced whole. Refused when the range was not read from a file, and
/// when the file does not hold the categories that were read from it any more. Nothing to write counts as
/// saved. The reason of a failure is translated. Nothing is logged.
[[nodiscard]] UIAPICOMMON_EXPORT Result saveRanges(std::string const & rangeName);

} // namespace Ext

} // namespace KVCAM::UIAPI
