#include "uiapi/flat/UiState.h"

#include "uiapi/flat/Forward.h"

#include <utility>

namespace KVCAM::UIAPI {

using Flat::onCommonPara;

QWidget * getInputPtr()
{
    return onCommonPara([](auto & para) { return para.getInputPtr(); });
}

void setInputPtr(QWidget * widget)
{
    onCommonPara([&](auto & para) { para.setInputPtr(widget); });
}

QWidget * getSplitPtr()
{
    return onCommonPara([](auto & para) { return para.getSplitPtr(); });
}

void setSplitPtr(QWidget * widget)
{
    onCommonPara([&](auto & para) { para.setSplitPtr(widget); });
}

QPoint getCoordinatePos()
{
    return onCommonPara([](auto & para) { return para.getCoordinatePos(); });
}

void setCoordinatePos(QPoint pos)
{
    onCommonPara([&](auto & para) { para.setCoordinatePos(pos); });
}

bool getCoordinateStatus()
{
    return onCommonPara([](auto & para) { return para.getCoordinateStatus(); });
}

void setCoordinateStatus(bool status)
{
    onCommonPara([&](auto & para) { para.setCoordinateStatus(status); });
}

bool getPanelPositionStatus()
{
    return onCommonPara([](auto & para) { return para.getPanelPositionStatus(); });
}

void setPanelPositionStatus(bool status)
{
    onCommonPara([&](auto & para) { para.setPanelPositionStatus(status); });
}

LANGUAGE_MODE getCurrentLanguageMode()
{
    return onCommonPara([](auto & para) { return para.getCurrentLanguageMode(); });
}

void setCurrentLanguageMode(LANGUAGE_MODE & mode)
{
    onCommonPara([&](auto & para) { para.setCurrentLanguageMode(mode); });
}

namespace {

// One value each per process. The record holds strings, so it is created on first use.
bool eqMode = false;
bool eqVisible = false;
bool edaGraphicVisible = false;
int eqSelectionType = 0;

DMS_Connections & dmsConnections()
{
    static DMS_Connections connections;
    return connections;
}

} // namespace

bool getEQMode()
{
    return guarded(Log::commonPara, [] { return eqMode; });
}

void setEQMode(bool value)
{
    guarded(Log::commonPara, [&] { eqMode = value; });
}

int getEQSelectionType()
{
    return guarded(Log::commonPara, [] { return eqSelectionType; });
}

void setEQSelectionType(int value)
{
    guarded(Log::commonPara, [&] { eqSelectionType = value; });
}

bool getEQVisible()
{
    return guarded(Log::commonPara, [] { return eqVisible; });
}

void setEQVisible(bool value)
{
    guarded(Log::commonPara, [&] { eqVisible = value; });
}

bool isEdaGraphicVisible()
{
    return guarded(Log::commonPara, [] { return edaGraphicVisible; });
}

void setEdaGraphicVisible(bool value)
{
    guarded(Log::commonPara, [&] { edaGraphicVisible = value; });
}

DMS_Connections getDmsConnectInfo()
{
    return guarded(Log::commonPara, [] { return dmsConnections(); });
}

void setDmsConnectInfo(DMS_Connections info)
{
    guarded(Log::commonPara, [&] { dmsConnections() = std::move(info); });
}

} // namespace KVCAM::UIAPI
