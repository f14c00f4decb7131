#include "uiapi/flat/Snap.h"

#include "uiapi/flat/Forward.h"

namespace KVCAM::UIAPI {

using Flat::onCommonPara;

SNAP_TYPE_MODE getSnapType(void const * view)
{
    return onCommonPara([&](auto & para) { return para.getSnapControl(view).mode; });
}

void setSnapType(void const * view, SNAP_TYPE_MODE mode)
{
    onCommonPara([&](auto & para) {
        Snap_Control snap = para.getSnapControl(view);
        snap.mode = mode;
        para.setSnapControl(view, snap);
    });
}

void setSnapMode(void const * view, SNAP_TYPE_MODE mode)
{
    setSnapType(view, mode);
}

SNAP_TYPE_MODE getSnapMode(void const * view)
{
    return onCommonPara([&](auto & para) { return para.getSnapMode(view); });
}

} // namespace KVCAM::UIAPI
