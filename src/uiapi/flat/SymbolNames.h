#pragma once

#include "UIAPICommonExport.h"

#include <QString>

#include <string>
#include <vector>

/// \addtogroup symbols
/// Symbol names by unit. Sizes in a name are mil or micrometres. A converted size has six significant digits;
/// a size that is not a number counts as 0. An unknown view logs "KVCAM UIAPI getUnit error" and is treated
/// as not metric.
namespace KVCAM::UIAPI {

/// Converts the lengths of a standard symbol in place: unit 0 divides by 25.4, another unit multiplies ("r10"
/// with unit 1 gives "r254"). Angles, counts and corner lists are kept. A name of no standard family, or
/// whose fields do not fit its family, is unchanged.
UIAPICOMMON_EXPORT void setSymbolUIData(QString & name, int unit);
/// If the engine knows the name (it is asked first): every number from micrometres to mil at 3 decimals for a
/// metric view, else its own text. Any other name is unchanged.
UIAPICOMMON_EXPORT void setSymbolAPIData(void const * view, QString & name);
/// Every number of any name: * 25.4 at 2 decimals for a metric view, else / 25.4 at 3 decimals. In a name
/// with as many numbers as texts, the result starts with a text ("10x" gives "x254").
UIAPICOMMON_EXPORT void setSymbolDataByUnit(void const * view, QString & name);
/// Every number of any name, in mil: micrometres at 2 decimals for a metric view, where a result one
/// hundredth off a whole micrometre becomes whole; else at 3 decimals. Order as in setSymbolDataByUnit().
UIAPICOMMON_EXPORT void setSymbolDataByMilUnit(void const * view, QString & name);
/// The name of a standard symbol whose lengths are mil: at 3 decimals for unit 0; for another unit in
/// micrometres at 2 decimals, where a result one hundredth off a whole micrometre becomes whole.
UIAPICOMMON_EXPORT std::string getSymbolNameByUnit(std::string const & name, int unit);
/// Fills `names` with the symbols of the library job "KVLIB", which is opened from "./job" if it is not open
/// and stays open. An engine exception is logged.
UIAPICOMMON_EXPORT void getKvlibSpecialSymbol(std::vector<std::string> & names);

} // namespace KVCAM::UIAPI
