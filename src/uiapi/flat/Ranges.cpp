#include "uiapi/flat/Ranges.h"

#include "uiapi/UIAPICommonParaPrivate.h"
#include "uiapi/flat/Forward.h"

#include <QObject>

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

std::vector<Ext::RangeSource> Ext::loadedRangeFiles()
{
    return Flat::onCommonPara(
        [](UIAPICommonPara & para) { return CommonParaDoor::ranges(para).loadedFiles(); });
}

Ext::Result Ext::saveRanges(std::string const & rangeName)
{
    // Of what throws, too, nobody may believe that it was saved.
    Result result{false,
                  QObject::tr("The file \"%1\" cannot be written.").arg(QString::fromStdString(rangeName))};
    Flat::onCommonPara(
        [&](UIAPICommonPara & para) { result = CommonParaDoor::ranges(para).saveRanges(rangeName); });
    return result;
}

} // namespace KVCAM::UIAPI
