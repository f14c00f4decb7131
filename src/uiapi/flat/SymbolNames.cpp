#include "uiapi/flat/SymbolNames.h"

#include "uiapi/flat/Forward.h"

namespace KVCAM::UIAPI {

using Flat::onCommonPara;

void setSymbolUIData(QString & name, int unit)
{
    onCommonPara([&](auto & para) { para.setSymbolUIData(name, unit); });
}

void setSymbolAPIData(void const * view, QString & name)
{
    onCommonPara([&](auto & para) { para.setSymbolAPIData(view, name); });
}

void setSymbolDataByUnit(void const * view, QString & name)
{
    onCommonPara([&](auto & para) { para.setSymbolDataByUnit(view, name); });
}

void setSymbolDataByMilUnit(void const * view, QString & name)
{
    onCommonPara([&](auto & para) { para.setSymbolDataByMilUnit(view, name); });
}

std::string getSymbolNameByUnit(std::string const & name, int unit)
{
    return onCommonPara([&](auto & para) { return para.getSymbolNameByUnit(name, unit); });
}

void getKvlibSpecialSymbol(std::vector<std::string> & names)
{
    onCommonPara([&](auto & para) { para.getKvlibSpecialSymbol(names); });
}

} // namespace KVCAM::UIAPI
