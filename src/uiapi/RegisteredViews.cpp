#include "uiapi/RegisteredViews.h"

#include "uiapi/UIAPICommonParaPrivate.h"
#include "uiapi/ViewNotification.h"
#include "uiapi/flat/Forward.h"

#include <QObject>

#include <utility>

namespace KVCAM::UIAPI {

using Flat::onCommonPara;

std::vector<void const *> Ext::views()
{
    return onCommonPara([](UIAPICommonPara & para) { return CommonParaAccess::parts(para).views.handles(); });
}

bool Ext::isRegistered(void const * view)
{
    UIAPICommonPara * const para = CommonParaAccess::existing(); // creating it would bind the link's port
    return para != nullptr && CommonParaAccess::parts(*para).views.find(view) != nullptr;
}

Ext::Result Ext::registerView(Step_Config const & config)
{
    Result result{false, QObject::tr("A view needs a handle that is not null.")};
    if (config.view == nullptr) {
        return result;
    }
    result.reason = QObject::tr("The view cannot be stored.");
    onCommonPara([&](UIAPICommonPara & para) {
        void const * const view = config.view; // the argument may be replaced while slots run
        if (Step_Config * const record = CommonParaAccess::parts(para).views.find(view)) {
            Step_Config copy(config); // all or nothing
            std::swap(*record, copy);
            para.setStepConfigToAPI(view);
            notifyOfView(view, ViewAspect::Unit | ViewAspect::ShowParameters | ViewAspect::Selection);
            result = {};
        } else if (para.insertStepConfig(config)) {
            result = {};
        }
    });
    return result;
}

QWidget * Ext::inputWidget()
{
    return onCommonPara(
        [](UIAPICommonPara & para) { return CommonParaAccess::parts(para).livingInput.data(); });
}

} // namespace KVCAM::UIAPI
