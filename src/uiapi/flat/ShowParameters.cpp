#include "uiapi/flat/ShowParameters.h"

#include "support/Compiler.h"
#include "uiapi/flat/Forward.h"

namespace KVCAM::UIAPI {
namespace {

template <class Value>
Value read(void const * view, Value show_param::*field, int line = UIAPI_CALLER_LINE)
{
    return Flat::readField(view, &UIAPICommonPara::getShowPara, field, line);
}

template <class Value>
void change(void const * view, Value show_param::*field, Value value, int line = UIAPI_CALLER_LINE)
{
    Flat::changeField(view, &UIAPICommonPara::getShowPara, &UIAPICommonPara::setShowPara, field, value, line);
}

} // namespace

int getUnit(void const * view)
{
    return read(view, &show_param::unit);
}

void setUnit(void const * view, int unit)
{
    change(view, &show_param::unit, unit);
}

int getWidth(void const * view)
{
    return read(view, &show_param::width);
}

void setWidth(void const * view, int width)
{
    change(view, &show_param::width, width);
}

bool getNegative(void const * view)
{
    return read(view, &show_param::negative);
}

void setNegative(void const * view, bool negative)
{
    change(view, &show_param::negative, negative);
}

bool gettextax(void const * view)
{
    return read(view, &show_param::textax);
}

void settextax(void const * view, bool textax)
{
    change(view, &show_param::textax, textax);
}

bool getProfile(void const * view)
{
    return read(view, &show_param::profile);
}

void setProfile(void const * view, bool profile)
{
    change(view, &show_param::profile, profile);
}

} // namespace KVCAM::UIAPI
