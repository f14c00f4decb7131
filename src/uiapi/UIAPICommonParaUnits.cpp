// Unit conversion by view: the unit is looked up here, the rules stand in units/.

#include "uiapi/UIAPICommonPara.h"
#include "units/UnitConversion.h"

namespace KVCAM::UIAPI {

// The unit of the view's show parameters; an unknown view is logged as "getShowPara" and counts as inch.
int UIAPICommonPara::displayUnit(void const * view) const
{
    KVCAM::API::show_param parameters;
    getShowPara(view, parameters);
    return parameters.unit;
}

double UIAPICommonPara::getUnitData(void const * view, double value) const
{
    return Units::toUnit(displayUnit(view), value);
}

double UIAPICommonPara::getUnitAPIData(void const * view, int kind, double value) const
{
    return Units::toEngine(displayUnit(view), kind, value);
}

double UIAPICommonPara::getUnitMilData(void const * view, int kind, double value) const
{
    return Units::toMil(displayUnit(view), kind, value);
}

double UIAPICommonPara::getUnitPointData(void const * view, double value) const
{
    return Units::fromMicrometres(displayUnit(view), value);
}

int UIAPICommonPara::getUnitJudgeData(void const * view, double value) const
{
    return Units::milToSmallUnitTruncated(displayUnit(view), value);
}

double UIAPICommonPara::getUnitJudgeDouble(void const * view, double value) const
{
    return Units::milToSmallUnit(displayUnit(view), value);
}

QString UIAPICommonPara::getUnitJudgeString(void const * view, double value, int precision) const
{
    return Units::milText(displayUnit(view), value, precision);
}

QString UIAPICommonPara::getUnitJudgeStringMetric(void const * view, double value) const
{
    return Units::micrometresText(displayUnit(view), value);
}

QString UIAPICommonPara::getAreaUnitJudgeString(void const * view, double value) const
{
    return Units::areaText(displayUnit(view), value);
}

std::string UIAPICommonPara::getAreaUnitStringType(void const * view) const
{
    return Units::areaName(displayUnit(view));
}

std::string UIAPICommonPara::doubleToString(double value) const
{
    return Units::plainText(value);
}

double UIAPICommonPara::getMeasureValue(check_info const & info) const
{
    return Units::measuredValue(info);
}

} // namespace KVCAM::UIAPI
