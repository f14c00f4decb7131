#pragma once

#include "uiapi/UIAPICommonPara.h"

namespace KVCAM::UIAPI {

/// The unit of a view's show parameters; an unknown view is logged as "getShowPara" and treated as inch.
inline int displayUnit(UIAPICommonPara const & para, void const * view)
{
    KVCAM::API::show_param parameters;
    para.getShowPara(view, parameters);
    return parameters.unit;
}

} // namespace KVCAM::UIAPI
