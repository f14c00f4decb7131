#include "ext/Configuration.h"

#include "uiapi/flat/Forward.h"

namespace KVCAM::UIAPI {

std::optional<Ext::AutoMatrixFile> Ext::autoMatrixFile(int index)
{
    return Flat::onGlobalVar([&](UIAPIGlobalVar & global) { return global.autoMatrixFile(index); });
}

} // namespace KVCAM::UIAPI
