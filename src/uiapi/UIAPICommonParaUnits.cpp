// Unit conversion by view: the unit is looked up here, the rules are in units/.

#include "analysis/CheckKinds.h"
#include "uiapi/DisplayUnit.h"
#include "uiapi/UIAPICommonPara.h"
#include "uiapi/UIAPICommonParaPrivate.h"
#include "units/UnitConversion.h"

namespace KVCAM::UIAPI {

double UIAPICommonPara::getUnitData(void const * view, double value) const
{
    return guardedPara([&] { return Units::toUnit(displayUnit(*this, view), value); });
}

double UIAPICommonPara::getUnitAPIData(void const * view, int kind, double value) const
{
    return guardedPara([&] { return Units::toEngine(displayUnit(*this, view), kind, value); });
}

double UIAPICommonPara::getUnitMilData(void const * view, int kind, double value) const
{
    return guardedPara([&] { return Units::toMil(displayUnit(*this, view), kind, value); });
}

double UIAPICommonPara::getUnitPointData(void const * view, double value) const
{
    return guardedPara([&] { return Units::fromMicrometres(displayUnit(*this, view), value); });
}

int UIAPICommonPara::getUnitJudgeData(void const * view, double value) const
{
    return guardedPara([&] { return Units::milToSmallUnitTruncated(displayUnit(*this, view), value); });
}

double UIAPICommonPara::getUnitJudgeDouble(void const * view, double value) const
{
    return guardedPara([&] { return Units::milToSmallUnit(displayUnit(*this, view), value); });
}

QString UIAPICommonPara::getUnitJudgeString(void const * view, double value, int precision) const
{
    return guardedPara([&] { return Units::milText(displayUnit(*this, view), value, precision); });
}

QString UIAPICommonPara::getUnitJudgeStringMetric(void const * view, double value) const
{
    return guardedPara([&] { return Units::micrometresText(displayUnit(*this, view), value); });
}

QString UIAPICommonPara::getAreaUnitJudgeString(void const * view, double value) const
{
    return guardedPara([&] { return Units::areaText(displayUnit(*this, view), value); });
}

std::string UIAPICommonPara::getAreaUnitStringType(void const * view) const
{
    return guardedPara([&] { return Units::areaName(displayUnit(*this, view)); });
}

std::string UIAPICommonPara::doubleToString(double value) const
{
    return guardedPara([&] { return Units::plainText(value); });
}

double UIAPICommonPara::getMeasureValue(check_info const & info) const
{
    return guardedPara([&] { return measuredValue(info).value_or(0.0); });
}

} // namespace KVCAM::UIAPI
