#include "uiapi/flat/AutoMatrix.h"

#include "uiapi/flat/Forward.h"

namespace KVCAM::UIAPI {

std::map<int, AutoMatrixTmp> getAutoMatrixTmpMap()
{
    return Flat::onGlobalVar([](UIAPIGlobalVar & global) { return global.getAutoMatrixTmpMap(); });
}

AutoMatrixTmp getCurrentAutoMatrixTmp()
{
    return Flat::onGlobalVar([](UIAPIGlobalVar & global) { return global.getCurrentAutoMatrixTmp(); });
}

void setCurrentAutoMatrixTmp(AutoMatrixTmp const & tmpl)
{
    Flat::onGlobalVar([&](UIAPIGlobalVar & global) { return global.setCurrentAutoMatrixTmp(tmpl); });
}

void saveCurrentAutoMatrixTmp(int index, QString name, AutoMatrixTmp const & tmpl)
{
    Flat::onGlobalVar(
        [&](UIAPIGlobalVar & global) { return global.saveCurrentAutoMatrixTmp(index, name, tmpl); });
}

void deleteAutoMatrix(int index, QString name)
{
    Flat::onGlobalVar([&](UIAPIGlobalVar & global) { return global.deleteAutoMatrix(index, name); });
}

int getAutomatrixMatrixIndex(QString name)
{
    return Flat::onGlobalVar([&](UIAPIGlobalVar & global) { return global.getAutomatrixMatrixIndex(name); });
}

} // namespace KVCAM::UIAPI
