#include "uiapi/flat/Units.h"

#include "uiapi/flat/Forward.h"
#include "units/UnitConversion.h"

namespace KVCAM::UIAPI {
namespace {

using Flat::onCommonPara;

int displayUnit(void const * view)
{
    return Flat::readField(view, &UIAPICommonPara::getShowPara, &show_param::unit);
}

} // namespace

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
    return Units::smallUnitToMilTruncated(displayUnit(view), value);
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
    return Units::name(displayUnit(view));
}

std::string getUnitStringType(void const * view, int kind)
{
    return Units::nameByKind(displayUnit(view), kind);
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
