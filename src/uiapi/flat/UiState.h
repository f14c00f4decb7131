#pragma once

#include "../ViewRecords.h"
#include "UIAPICommonExport.h"

#include <QPoint>

class QWidget;

/// \addtogroup ui_state
/// State that is not per view.
namespace KVCAM::UIAPI {

///@{
/// The input widget, not owned, null until set. Whoever sets it must reset it before it is destroyed;
/// Ext::inputWidget() is null then. Setting it logs the old and the new pointer.
UIAPICOMMON_EXPORT QWidget * getInputPtr();
UIAPICOMMON_EXPORT void setInputPtr(QWidget * widget);
///@}
///@{
/// The split widget, not owned, null until set. To be reset like the input widget.
UIAPICOMMON_EXPORT QWidget * getSplitPtr();
UIAPICOMMON_EXPORT void setSplitPtr(QWidget * widget);
///@}
///@{
/// Default (0, 0).
UIAPICOMMON_EXPORT QPoint getCoordinatePos();
UIAPICOMMON_EXPORT void setCoordinatePos(QPoint pos);
///@}
///@{
/// Default false.
UIAPICOMMON_EXPORT bool getCoordinateStatus();
UIAPICOMMON_EXPORT void setCoordinateStatus(bool status);
UIAPICOMMON_EXPORT bool getPanelPositionStatus();
UIAPICOMMON_EXPORT void setPanelPositionStatus(bool status);
///@}
///@{
/// The language's number, default 1 (English). It is only stored, and the argument does not change;
/// Ext::installTranslation() switches the texts.
UIAPICOMMON_EXPORT LANGUAGE_MODE getCurrentLanguageMode();
UIAPICOMMON_EXPORT void setCurrentLanguageMode(LANGUAGE_MODE & mode);
///@}

///@{
/// Stored in globals of the library for the life of the process; initially false, 0 or empty. No singleton is
/// created and nothing is logged. The modules that share the values define their meaning.
UIAPICOMMON_EXPORT bool getEQMode();
UIAPICOMMON_EXPORT void setEQMode(bool value);
UIAPICOMMON_EXPORT int getEQSelectionType();
UIAPICOMMON_EXPORT void setEQSelectionType(int value);
UIAPICOMMON_EXPORT bool getEQVisible();
UIAPICOMMON_EXPORT void setEQVisible(bool value);
UIAPICOMMON_EXPORT bool isEdaGraphicVisible();
UIAPICOMMON_EXPORT void setEdaGraphicVisible(bool value);
UIAPICOMMON_EXPORT DMS_Connections getDmsConnectInfo();
UIAPICOMMON_EXPORT void setDmsConnectInfo(DMS_Connections info);
///@}

} // namespace KVCAM::UIAPI
