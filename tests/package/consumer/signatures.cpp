// The signatures that consumers were compiled against. One that changes no longer converts here; one that is
// not exported no longer links.

#include <UIAPICommon.h>

namespace KVCAM::UIAPI {
namespace {

template <class Signature>
void const * keep(Signature * function)
{
    return reinterpret_cast<void const *>(function);
}

// Data, so that the linker has to find every one of them.
void const * const functions[] = {
    keep<void(void const *, Step_Config &)>(&getStepConfig),
    keep<bool(Step_Config const &)>(&insertStepConfig),
    keep<void(void const *, KVCAM::API::show_param &)>(&getShowPara),
    keep<void(void const *, KVCAM::API::show_param const &)>(&setShowPara),
    keep<void(void const *, KVCAM::API::Selection &)>(&getSelection),
    keep<void(void const *, KVCAM::API::Selection const &)>(&setSelection),
    keep<void(void const *, KVCAM::API::select_info &)>(&getSelectInfo),
    keep<void(void const *, KVCAM::API::select_info const &)>(&setSelectInfo),
    keep<Snap_Control(void const *)>(&getSnapControl),
    keep<void(void const *, Snap_Control const &)>(&setSnapControl),
    keep<int(void const *)>(&getSnapSize),
    keep<void(void const *, int)>(&setSnapSize),
    keep<coordinate *(void const *)>(&getCoordinate),
    keep<Edit_Buffer *(void const *)>(&getEditBuffer),
    keep<void(void const *, std::map<std::string, FeatureList> const &)>(&setEditBufferFeatureInfo),
    keep<LayerState *()>(&getLayerState),
    keep<double(check_info const &)>(&getMeasureValue),
    keep<int(void const *)>(&getUnit),
    keep<void(void const *, int)>(&setUnit),
    keep<int(void const *)>(&getWidth),
    keep<void(void const *, int)>(&setWidth),
    keep<bool(void const *)>(&getNegative),
    keep<void(void const *, bool)>(&setNegative),
    keep<bool(void const *)>(&gettextax),
    keep<void(void const *, bool)>(&settextax),
    keep<bool(void const *)>(&getProfile),
    keep<void(void const *, bool)>(&setProfile),
    keep<void(void const *, bool)>(&setSelectionClear),
    keep<void(void const *, bool)>(&setSelectionDisplay),
    keep<void(void const *, bool)>(&setSelectionLocation),
    keep<void(void const *, bool)>(&setSelectionOperation),
    keep<void(void const *, bool)>(&setSelectionSelect),
    keep<void(void const *, bool)>(&setSelectionTouching),
    keep<bool(void const *)>(&getSelectionTouching),
    keep<int(void const *)>(&getSelectedPara),
    keep<void(void const *, int)>(&setSelectedPara),
    keep<SNAP_TYPE_MODE(void const *)>(&getSnapType),
    keep<void(void const *, SNAP_TYPE_MODE)>(&setSnapType),
    keep<void(void const *, SNAP_TYPE_MODE)>(&setSnapMode),
    keep<SNAP_TYPE_MODE(void const *)>(&getSnapMode),
    keep<QWidget *()>(&getInputPtr),
    keep<void(QWidget *)>(&setInputPtr),
    keep<QWidget *()>(&getSplitPtr),
    keep<void(QWidget *)>(&setSplitPtr),
    keep<QPoint()>(&getCoordinatePos),
    keep<void(QPoint)>(&setCoordinatePos),
    keep<bool()>(&getCoordinateStatus),
    keep<void(bool)>(&setCoordinateStatus),
    keep<bool()>(&getPanelPositionStatus),
    keep<void(bool)>(&setPanelPositionStatus),
    keep<LANGUAGE_MODE()>(&getCurrentLanguageMode),
    keep<void(LANGUAGE_MODE &)>(&setCurrentLanguageMode),
    keep<bool()>(&getEQMode),
    keep<void(bool)>(&setEQMode),
    keep<int()>(&getEQSelectionType),
    keep<void(int)>(&setEQSelectionType),
    keep<bool()>(&getEQVisible),
    keep<void(bool)>(&setEQVisible),
    keep<bool()>(&isEdaGraphicVisible),
    keep<void(bool)>(&setEdaGraphicVisible),
    keep<DMS_Connections()>(&getDmsConnectInfo),
    keep<void(DMS_Connections)>(&setDmsConnectInfo),
    keep<bool()>(&getCtrlEnpress),
    keep<bool()>(&getShiftEnpress),
    keep<bool()>(&getAltEnpress),
    keep<void(void const *)>(&setStepConfigToAPI),
    keep<double(void const *, double)>(&getUnitData),
    keep<double(void const *, int, double)>(&getUnitAPIData),
    keep<double(void const *, int, double)>(&getUnitMilData),
    keep<double(void const *, double)>(&getUnitPointData),
    keep<int(void const *, double)>(&getUnitJudgeData),
    keep<int(void const *, double)>(&getUnitJudgeData2),
    keep<double(void const *, double)>(&getUnitJudgeDouble),
    keep<QString(void const *, double, int)>(&getUnitJudgeString),
    keep<QString(void const *, double)>(&getUnitJudgeStringMetric),
    keep<std::string(void const *)>(&getUnitString),
    keep<std::string(void const *, int)>(&getUnitStringType),
    keep<std::string(void const *)>(&getAreaUnitStringType),
    keep<QString(void const *, double)>(&getAreaUnitJudgeString),
    keep<std::string(double)>(&doubleToString),
};

} // namespace
} // namespace KVCAM::UIAPI

int signatures()
{
    int found = 0;
    for (void const * function : KVCAM::UIAPI::functions) {
        found += function != nullptr ? 1 : 0;
    }
    return found;
}
