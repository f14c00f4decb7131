#include "uiapi/flat/Ranges.h"

#include "uiapi/flat/Forward.h"

#include <utility>

namespace KVCAM::UIAPI {

void getRanges(std::string const & rangeName, std::vector<Analysis_Ranges_Record> & out)
{
    Flat::onCommonPara([&](UIAPICommonPara & para) { para.getRanges(rangeName, out); });
}

int getRangesEnum(std::string const & tableName, std::string const & categoryName)
{
    return Flat::onCommonPara(
        [&](UIAPICommonPara & para) { return para.getRangesEnum(tableName, categoryName); });
}

std::string getRangesName(std::string const & tableName, int number)
{
    return Flat::onCommonPara([&](UIAPICommonPara & para) { return para.getRangesName(tableName, number); });
}

void changeRangesValue(std::string const & rangeName, std::string const & categoryName,
                       std::string const & levelName, double value)
{
    Flat::onCommonPara(
        [&](UIAPICommonPara & para) { para.changeRangesValue(rangeName, categoryName, levelName, value); });
}

void getERFList(std::string folder, std::vector<std::string> & names)
{
    Flat::onCommonPara([&](UIAPICommonPara & para) { para.getERFList(std::move(folder), names); });
}

} // namespace KVCAM::UIAPI
