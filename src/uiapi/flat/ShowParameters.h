#pragma once

#include "UIAPICommonExport.h"

/// \addtogroup show_parameters
/// Single fields of a view's show parameters. A getter returns the field's default for an unknown view. A
/// setter reads the record, changes the field, stores the record and pushes it to the engine, even if the
/// value is unchanged. For an unknown view a getter logs "KVCAM UIAPI getShowPara error"; a setter logs that
/// and then "KVCAM UIAPI setSelection error".
namespace KVCAM::UIAPI {

///@{
/// Default 0 (inch). UIAPICommonPara::getUnit() differs: -1 and "KVCAM UIAPI getUnit error".
UIAPICOMMON_EXPORT int getUnit(void const * view);
UIAPICOMMON_EXPORT void setUnit(void const * view, int unit);
///@}
///@{
/// Default 0.
UIAPICOMMON_EXPORT int getWidth(void const * view);
UIAPICOMMON_EXPORT void setWidth(void const * view, int width);
///@}
///@{
/// Default false.
UIAPICOMMON_EXPORT bool getNegative(void const * view);
UIAPICOMMON_EXPORT void setNegative(void const * view, bool negative);
///@}
///@{
/// Default true.
UIAPICOMMON_EXPORT bool gettextax(void const * view);
UIAPICOMMON_EXPORT void settextax(void const * view, bool textax);
///@}
///@{
/// Default true.
UIAPICOMMON_EXPORT bool getProfile(void const * view);
UIAPICOMMON_EXPORT void setProfile(void const * view, bool profile);
///@}

} // namespace KVCAM::UIAPI
