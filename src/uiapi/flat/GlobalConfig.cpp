#include "uiapi/flat/GlobalConfig.h"

#include "uiapi/flat/Forward.h"

namespace KVCAM::UIAPI {

std::string getServerIP()
{
    return Flat::onGlobalVar([](UIAPIGlobalVar & global) { return global.getServerIP(); });
}

int getServerPort()
{
    return Flat::onGlobalVar([](UIAPIGlobalVar & global) { return global.getServerPort(); });
}

std::string getClientIP()
{
    return Flat::onGlobalVar([](UIAPIGlobalVar & global) { return global.getClientIP(); });
}

int getTimeout()
{
    return Flat::onGlobalVar([](UIAPIGlobalVar & global) { return global.getTimeout(); });
}

int getThreadCount()
{
    return Flat::onGlobalVar([](UIAPIGlobalVar & global) { return global.getThreadCount(); });
}

void setThreadCount(int count)
{
    Flat::onGlobalVar([&](UIAPIGlobalVar & global) { return global.setThreadCount(count); });
}

std::string getDBPath()
{
    return Flat::onGlobalVar([](UIAPIGlobalVar & global) { return global.getDBPath(); });
}

std::string getSharePath()
{
    return Flat::onGlobalVar([](UIAPIGlobalVar & global) { return global.getSharePath(); });
}

bool getPythonHome()
{
    return Flat::onGlobalVar([](UIAPIGlobalVar & global) { return global.getPythonHome(); });
}

int getOS()
{
    return Flat::onGlobalVar([](UIAPIGlobalVar & global) { return global.getOS(); });
}

std::string getLayerCopySuffix()
{
    return Flat::onGlobalVar([](UIAPIGlobalVar & global) { return global.getLayerCopySuffix(); });
}

int getContourAccuracy()
{
    return Flat::onGlobalVar([](UIAPIGlobalVar & global) { return global.getContourAccuracy(); });
}

double getMovementFactor()
{
    return Flat::onGlobalVar([](UIAPIGlobalVar & global) { return global.getMovementFactor(); });
}

bool getModifyHotKey()
{
    return Flat::onGlobalVar([](UIAPIGlobalVar & global) { return global.getModifyHotKey(); });
}

double getShiftConfict()
{
    return Flat::onGlobalVar([](UIAPIGlobalVar & global) { return global.getShiftConfict(); });
}

std::vector<KVCAM::API::point> getRealBox()
{
    return Flat::onGlobalVar([](UIAPIGlobalVar & global) { return global.getRealBox(); });
}

void setRealBox(std::vector<KVCAM::API::point> const & box)
{
    Flat::onGlobalVar([&](UIAPIGlobalVar & global) { return global.setRealBox(box); });
}

std::vector<std::string> getAllToVar()
{
    return Flat::onGlobalVar([](UIAPIGlobalVar & global) { return global.getAll(); });
}

void setJobToVar(std::string const & name)
{
    Flat::onGlobalVar([&](UIAPIGlobalVar & global) { return global.setJob(name); });
}

void delJobToVar(std::string const & name)
{
    Flat::onGlobalVar([&](UIAPIGlobalVar & global) { return global.delJob(name); });
}

void delAllToVar()
{
    Flat::onGlobalVar([](UIAPIGlobalVar & global) { return global.delAll(); });
}

} // namespace KVCAM::UIAPI
