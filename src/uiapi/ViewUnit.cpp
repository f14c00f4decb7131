#include "uiapi/ViewUnit.h"

#include "uiapi/flat/ShowParameters.h"

namespace KVCAM::UIAPI::Ext {

Unit unitOf(void const * view)
{
    return unitOfCode(getUnit(view));
}

} // namespace KVCAM::UIAPI::Ext
