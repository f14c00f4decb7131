#include "uiapi/flat/Selections.h"

#include "support/Compiler.h"
#include "uiapi/flat/Forward.h"

namespace KVCAM::UIAPI {
namespace {

void change(void const * view, bool Selection::*field, bool value, int line = UIAPI_CALLER_LINE)
{
    Flat::changeField(view, &UIAPICommonPara::getSelection, &UIAPICommonPara::setSelection, field, value,
                      line);
}

} // namespace

void setSelectionClear(void const * view, bool value)
{
    change(view, &Selection::clear, value);
}

void setSelectionDisplay(void const * view, bool value)
{
    change(view, &Selection::display, value);
}

void setSelectionLocation(void const * view, bool value)
{
    change(view, &Selection::location, value);
}

void setSelectionOperation(void const * view, bool value)
{
    change(view, &Selection::operation, value);
}

void setSelectionSelect(void const * view, bool value)
{
    change(view, &Selection::select, value);
}

void setSelectionTouching(void const * view, bool value)
{
    change(view, &Selection::touching, value);
}

bool getSelectionTouching(void const * view)
{
    return Flat::readField(view, &UIAPICommonPara::getSelection, &Selection::touching);
}

bool getSelectionOutsideHint()
{
    return Flat::onGlobalVar([](UIAPIGlobalVar & global) { return global.getSelectionOutsideHint(); });
}

void setSelectionOutsideHint(bool value)
{
    Flat::onGlobalVar([&](UIAPIGlobalVar & global) { global.setSelectionOutsideHint(value); });
}

int getSelectedPara(void const * view)
{
    return Flat::readField(view, &UIAPICommonPara::getSelectInfo, &select_info::selected_para);
}

void setSelectedPara(void const * view, int para)
{
    Flat::changeField(view, &UIAPICommonPara::getSelectInfo, &UIAPICommonPara::setSelectInfo,
                      &select_info::selected_para, para);
}

} // namespace KVCAM::UIAPI
