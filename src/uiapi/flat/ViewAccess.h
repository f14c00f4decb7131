#pragma once

#include "../ViewRecords.h"
#include "UIAPICommonExport.h"

#include <map>
#include <string>

/// \addtogroup view_access
/// Per-view record access and the push to the engine. Each function forwards to the method of the same name
/// in UIAPICommonPara, which documents messages and neutral results.
namespace KVCAM::UIAPI {

/// Copies the whole record out.
UIAPICOMMON_EXPORT void getStepConfig(void const * view, Step_Config & out);
/// Registers a view and pushes its record to the engine. False, with an ERROR line, for a null handle; false,
/// silently, for a handle already registered.
UIAPICOMMON_EXPORT bool insertStepConfig(Step_Config const & config);
///@{
/// Copies this part of the record out, or stores and pushes it.
UIAPICOMMON_EXPORT void getShowPara(void const * view, KVCAM::API::show_param & out);
UIAPICOMMON_EXPORT void setShowPara(void const * view, KVCAM::API::show_param const & value);
UIAPICOMMON_EXPORT void getSelection(void const * view, KVCAM::API::Selection & out);
UIAPICOMMON_EXPORT void setSelection(void const * view, KVCAM::API::Selection const & value);
UIAPICOMMON_EXPORT void getSelectInfo(void const * view, KVCAM::API::select_info & out);
UIAPICOMMON_EXPORT void setSelectInfo(void const * view, KVCAM::API::select_info const & value);
///@}
/// {127, 7, 5} for an unknown view.
UIAPICOMMON_EXPORT Snap_Control getSnapControl(void const * view);
/// Stores all but the snap size, which it keeps.
UIAPICOMMON_EXPORT void setSnapControl(void const * view, Snap_Control const & value);
/// 5 for an unknown view, after "KVCAM UIAPI getSnapControl error, use default snap size!".
UIAPICOMMON_EXPORT int getSnapSize(void const * view);
/// Nothing is pushed to the engine.
UIAPICOMMON_EXPORT void setSnapSize(void const * view, int size);
/// Owned by the library and valid until the singleton is assigned to; null for an unknown view.
UIAPICOMMON_EXPORT coordinate * getCoordinate(void const * view);
/// Owned by the library and valid until the singleton is assigned to; null for an unknown view.
UIAPICOMMON_EXPORT Edit_Buffer * getEditBuffer(void const * view);
/// Replaces the feature lists of the edit buffer.
UIAPICOMMON_EXPORT void setEditBufferFeatureInfo(void const * view,
                                                 std::map<std::string, FeatureList> const & features);
/// The layers that the host marks; owned by the library and never null.
UIAPICOMMON_EXPORT LayerState * getLayerState();
/// The measured quantity in micrometres; 0.0 for a kind that measures nothing and if the number of points
/// does not match the kind.
UIAPICOMMON_EXPORT double getMeasureValue(check_info const & info);

/// Pushes show_param, Selection and select_info of a view; an unknown view is logged and shown in a box.
UIAPICOMMON_EXPORT void setStepConfigToAPI(void const * view);

} // namespace KVCAM::UIAPI
