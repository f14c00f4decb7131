#include "uiapi/flat/Units.h"

#include "uiapi/DisplayUnit.h"
#include "uiapi/flat/Forward.h"
#include "units/UnitConversion.h"

namespace KVCAM::UIAPI {
using Flat::onCommonPara;

double getUnitData(void const * view, double value)
{
    return onCommonPara([&](auto & para) { return para.getUnitData(view, value); });
}

double getUnitAPIData(void const * view, int kind, double value)
{
    return onCommonPara([&](auto & para) { return para.getUnitAPIData(view, kind, value); });
}

double getUnitMilData(void const * view, int kind, double value)
{
    return onCommonPara([&](auto & para) { return para.getUnitMilData(view, kind, value); });
}

double getUnitPointData(void const * view, double value)
{
    return onCommonPara([&](auto & para) { return para.getUnitPointData(view, value); });
}

int getUnitJudgeData(void const * view, double value)
{
    return onCommonPara([&](auto & para) { return para.getUnitJudgeData(view, value); });
}

int getUnitJudgeData2(void const * view, double value)
{
    return onCommonPara(
        [&](auto & para) { return Units::smallUnitToMilTruncated(displayUnit(para, view), value); });
}

double getUnitJudgeDouble(void const * view, double value)
{
    return onCommonPara([&](auto & para) { return para.getUnitJudgeDouble(view, value); });
}

QString getUnitJudgeString(void const * view, double value, int precision)
{
    return onCommonPara([&](auto & para) { return para.getUnitJudgeString(view, value, precision); });
}

QString getUnitJudgeStringMetric(void const * view, double value)
{
    return onCommonPara([&](auto & para) { return para.getUnitJudgeStringMetric(view, value); });
}

std::string getUnitString(void const * view)
{
    return onCommonPara([&](auto & para) { return Units::name(displayUnit(para, view)); });
}

std::string getUnitStringType(void const * view, int kind)
{
    return onCommonPara([&](auto & para) { return Units::nameByKind(displayUnit(para, view), kind); });
}

std::string getAreaUnitStringType(void const * view)
{
    return onCommonPara([&](auto & para) { return para.getAreaUnitStringType(view); });
}

QString getAreaUnitJudgeString(void const * view, double value)
{
    return onCommonPara([&](auto & para) { return para.getAreaUnitJudgeString(view, value); });
}

std::string doubleToString(double value)
{
    return onCommonPara([&](auto & para) { return para.doubleToString(value); });
}

} // namespace KVCAM::UIAPI
