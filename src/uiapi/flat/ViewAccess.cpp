#include "uiapi/flat/ViewAccess.h"

#include "uiapi/flat/Forward.h"

namespace KVCAM::UIAPI {

using Flat::onCommonPara;

void getStepConfig(void const * view, Step_Config & out)
{
    onCommonPara([&](auto & para) { para.getStepConfig(view, out); });
}

bool insertStepConfig(Step_Config const & config)
{
    return onCommonPara([&](auto & para) { return para.insertStepConfig(config); });
}

void getShowPara(void const * view, KVCAM::API::show_param & out)
{
    onCommonPara([&](auto & para) { para.getShowPara(view, out); });
}

void setShowPara(void const * view, KVCAM::API::show_param const & value)
{
    onCommonPara([&](auto & para) { para.setShowPara(view, value); });
}

void getSelection(void const * view, KVCAM::API::Selection & out)
{
    onCommonPara([&](auto & para) { para.getSelection(view, out); });
}

void setSelection(void const * view, KVCAM::API::Selection const & value)
{
    onCommonPara([&](auto & para) { para.setSelection(view, value); });
}

void getSelectInfo(void const * view, KVCAM::API::select_info & out)
{
    onCommonPara([&](auto & para) { para.getSelectInfo(view, out); });
}

void setSelectInfo(void const * view, KVCAM::API::select_info const & value)
{
    onCommonPara([&](auto & para) { para.setSelectInfo(view, value); });
}

Snap_Control getSnapControl(void const * view)
{
    return onCommonPara([&](auto & para) { return para.getSnapControl(view); });
}

void setSnapControl(void const * view, Snap_Control const & value)
{
    onCommonPara([&](auto & para) { para.setSnapControl(view, value); });
}

int getSnapSize(void const * view)
{
    return onCommonPara([&](auto & para) { return para.getSnapSize(view); });
}

void setSnapSize(void const * view, int size)
{
    onCommonPara([&](auto & para) { para.setSnapSize(view, size); });
}

coordinate * getCoordinate(void const * view)
{
    return onCommonPara([&](auto & para) { return para.getCoordinate(view); });
}

Edit_Buffer * getEditBuffer(void const * view)
{
    return onCommonPara([&](auto & para) { return para.getEditBuffer(view); });
}

void setEditBufferFeatureInfo(void const * view, std::map<std::string, FeatureList> const & features)
{
    onCommonPara([&](auto & para) { para.setEditBufferFeatureInfo(view, features); });
}

LayerState * getLayerState()
{
    return onCommonPara([](auto & para) { return para.getLayerState(); });
}

double getMeasureValue(check_info const & info)
{
    return onCommonPara([&](auto & para) { return para.getMeasureValue(info); });
}

void setStepConfigToAPI(void const * view)
{
    onCommonPara([&](auto & para) { para.setStepConfigToAPI(view); });
}

} // namespace KVCAM::UIAPI
