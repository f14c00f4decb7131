// Range tables. The levels and names are in analysis/.

#include "uiapi/UIAPICommonPara.h"
#include "uiapi/UIAPICommonParaPrivate.h"

namespace KVCAM::UIAPI {

void UIAPICommonPara::getRanges(std::string const & rangeName,
                                std::vector<Analysis_Ranges_Record> & out) const
{
    guardedPara([&] { d->ranges.getRanges(rangeName, out); });
}

int UIAPICommonPara::getRangesEnum(std::string const & tableName, std::string const & categoryName) const
{
    return guardedPara([&] { return d->categories.getRangesEnum(tableName, categoryName); });
}

std::string UIAPICommonPara::getRangesName(std::string const & tableName, int number) const
{
    return guardedPara([&] { return d->categories.getRangesName(tableName, number); });
}

void UIAPICommonPara::changeRangesValue(std::string const & rangeName, std::string const & categoryName,
                                        std::string const & levelName, double value)
{
    guardedPara([&] { d->ranges.changeRangesValue(rangeName, categoryName, levelName, value); });
}

void UIAPICommonPara::getERFList(std::string folder, std::vector<std::string> & names) const
{
    guardedPara([&] { listErfFiles(folder, names); });
}

} // namespace KVCAM::UIAPI
