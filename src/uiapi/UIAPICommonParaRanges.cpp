// Range tables: the levels and names stand in analysis/.

#include "uiapi/UIAPICommonPara.h"
#include "uiapi/UIAPICommonParaPrivate.h"

namespace KVCAM::UIAPI {

void UIAPICommonPara::getRanges(std::string const & rangeName,
                                std::vector<Analysis_Ranges_Record> & out) const
{
    d->ranges.getRanges(rangeName, out);
}

int UIAPICommonPara::getRangesEnum(std::string const & tableName, std::string const & categoryName) const
{
    return d->categories.getRangesEnum(tableName, categoryName);
}

std::string UIAPICommonPara::getRangesName(std::string const & tableName, int number) const
{
    return d->categories.getRangesName(tableName, number);
}

void UIAPICommonPara::changeRangesValue(std::string const & rangeName, std::string const & categoryName,
                                        std::string const & levelName, double value)
{
    d->ranges.changeRangesValue(rangeName, categoryName, levelName, value);
}

void UIAPICommonPara::getERFList(std::string folder, std::vector<std::string> & names) const
{
    listErfFiles(folder, names);
}

} // namespace KVCAM::UIAPI
