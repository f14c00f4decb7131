// The per-view records of UIAPICommonPara.

#include "support/Boxes.h"
#include "support/Compiler.h"
#include "support/Log.h"
#include "uiapi/EngineBridge.h"
#include "uiapi/UIAPICommonPara.h"
#include "uiapi/UIAPICommonParaPrivate.h"
#include "uiapi/ViewNotification.h"

namespace KVCAM::UIAPI {
namespace {

// The record of a view, or null; an unknown view is logged.
Step_Config * recordOf(ViewRegistry & views, void const * view, char const * operation,
                       int line = UIAPI_CALLER_LINE)
{
    Step_Config * const record = views.find(view);
    if (record == nullptr) {
        Log::operationError(operation, {}, line);
    }
    return record;
}

// Copies one field of a view's record out; an unknown view leaves `out` untouched.
template <class Field>
void copyOut(ViewRegistry & views, void const * view, Field Step_Config::*field, Field & out,
             char const * operation, int line = UIAPI_CALLER_LINE)
{
    if (Step_Config const * record = recordOf(views, view, operation, line)) {
        out = record->*field;
    }
}

// The record is not used after the push: it may be replaced during it.
void storeShowPara(Step_Config & record, show_param const & value)
{
    void const * const view = record.view;
    bool const unitChanges = record.show_param.unit != value.unit;
    record.show_param = value;
    EngineBridge::sendShowParaToAPI(record.show_param);
    notifyOfView(view, unitChanges ? Ext::ViewAspect::Unit | Ext::ViewAspect::ShowParameters
                                   : Ext::ViewAspects(Ext::ViewAspect::ShowParameters));
}

} // namespace

bool UIAPICommonPara::insertStepConfig(Step_Config const & config)
{
    return guardedPara([&]() -> bool {
        if (config.view == nullptr) {
            Log::operationError("insertStepConfig");
            return false;
        }
        void const * const view = config.view;
        if (!d->views.append(config)) {
            return false;
        }
        setStepConfigToAPI(view);
        notifyOfView(view,
                     Ext::ViewAspect::Unit | Ext::ViewAspect::ShowParameters | Ext::ViewAspect::Selection);
        return true;
    });
}

void UIAPICommonPara::getStepConfig(void const * view, Step_Config & out) const
{
    guardedPara([&] {
        if (Step_Config const * record = recordOf(d->views, view, "getStepConfig")) {
            out = *record;
        }
    });
}

int UIAPICommonPara::getUnit(void const * view) const
{
    return guardedPara([&]() -> int {
        Step_Config const * const record = recordOf(d->views, view, "getUnit");
        return record != nullptr ? record->show_param.unit : -1;
    });
}

void UIAPICommonPara::setUnit(void const * view, int unit)
{
    guardedPara([&] {
        if (Step_Config * record = recordOf(d->views, view, "setUnit")) {
            show_param changed = record->show_param;
            changed.unit = unit;
            storeShowPara(*record, changed);
        }
    });
}

void UIAPICommonPara::getShowPara(void const * view, KVCAM::API::show_param & out) const
{
    guardedPara([&] { copyOut(d->views, view, &Step_Config::show_param, out, "getShowPara"); });
}

// The setters of show_param and select_info are logged as "setSelection"; log readers expect that.
void UIAPICommonPara::setShowPara(void const * view, KVCAM::API::show_param const & value)
{
    guardedPara([&] {
        if (Step_Config * record = recordOf(d->views, view, "setSelection")) {
            storeShowPara(*record, value);
        }
    });
}

void UIAPICommonPara::getSelection(void const * view, Selection & out) const
{
    guardedPara([&] { copyOut(d->views, view, &Step_Config::selection, out, "getSelection"); });
}

void UIAPICommonPara::setSelection(void const * view, Selection const & value)
{
    guardedPara([&] {
        if (Step_Config * record = recordOf(d->views, view, "setSelection")) {
            record->selection = value;
            EngineBridge::sendSelectionToAPI(record->selection);
            notifyOfView(view, Ext::ViewAspect::Selection);
        }
    });
}

void UIAPICommonPara::getSelectInfo(void const * view, KVCAM::API::select_info & out) const
{
    guardedPara([&] { copyOut(d->views, view, &Step_Config::select_info, out, "getSelectInfo"); });
}

void UIAPICommonPara::setSelectInfo(void const * view, KVCAM::API::select_info const & value)
{
    guardedPara([&] {
        if (Step_Config * record = recordOf(d->views, view, "setSelection")) {
            record->select_info = value;
            EngineBridge::sendSelectInfoToAPI(record->select_info);
        }
    });
}

Snap_Control UIAPICommonPara::getSnapControl(void const * view) const
{
    return guardedPara([&] {
        Snap_Control snap; // its defaults are the result for an unknown view
        copyOut(d->views, view, &Step_Config::snap, snap, "getSnapControl");
        return snap;
    });
}

void UIAPICommonPara::setSnapControl(void const * view, Snap_Control const & value)
{
    guardedPara([&] {
        if (Step_Config * record = recordOf(d->views, view, "setSnapControl")) {
            // The size is kept: only setSnapSize() changes it.
            record->snap.first = value.first;
            record->snap.mode = value.mode;
        }
    });
}

int UIAPICommonPara::getSnapSize(void const * view) const
{
    return guardedPara([&]() -> int {
        if (Step_Config const * record = d->views.find(view)) {
            return record->snap.size;
        }
        Log::operationError("getSnapControl", ", use default snap size!");
        return Snap_Control{}.size;
    });
}

void UIAPICommonPara::setSnapSize(void const * view, int size)
{
    guardedPara([&] {
        if (Step_Config * record = recordOf(d->views, view, "setSnapControl")) {
            record->snap.size = size;
        }
    });
}

SNAP_TYPE_MODE UIAPICommonPara::getSnapMode(void const * view) const
{
    return guardedPara([&]() -> SNAP_TYPE_MODE {
        // Same as copying out the whole record, but without copying the edit buffer.
        Step_Config const * const record = recordOf(d->views, view, "getStepConfig");
        return record != nullptr ? record->snap.mode : Snap_Control{}.mode;
    });
}

Edit_Buffer * UIAPICommonPara::getEditBuffer(void const * view)
{
    return guardedPara([&]() -> Edit_Buffer * {
        Step_Config * const record = recordOf(d->views, view, "getEditBuffer");
        return record != nullptr ? &record->edit_buffer : nullptr;
    });
}

void UIAPICommonPara::setEditBufferFeatureInfo(void const * view,
                                               std::map<std::string, FeatureList> const & features)
{
    guardedPara([&] {
        if (Step_Config * record = recordOf(d->views, view, "setEditBufferFeatureInfo")) {
            record->edit_buffer.features = features;
        }
    });
}

coordinate * UIAPICommonPara::getCoordinate(void const * view)
{
    return guardedPara([&]() -> coordinate * {
        Step_Config * const record =
            recordOf(d->views, view, "getEditBuffer"); // always logged under this name
        return record != nullptr ? &record->coordinate : nullptr;
    });
}

void UIAPICommonPara::setStepConfigToAPI(void const * view)
{
    guardedPara([&] {
        // Look the record up for each push: an engine that calls back may change the next part, or assign to
        // this object, which replaces or removes the record.
        auto const push = [&](auto field, auto send) {
            Step_Config const * const record = recordOf(d->views, view, "setStepConfigToAPI");
            if (record != nullptr) {
                send(record->*field);
            }
            return record != nullptr;
        };
        if (!push(&Step_Config::show_param, EngineBridge::sendShowParaToAPI)) {
            showInformation(nullptr, QStringLiteral("未能找到此graphic的全局参数")); // not translated
            return;
        }
        push(&Step_Config::selection, EngineBridge::sendSelectionToAPI) &&
            push(&Step_Config::select_info, EngineBridge::sendSelectInfoToAPI);
    });
}

} // namespace KVCAM::UIAPI
