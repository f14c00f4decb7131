#include "config/UIAPIGlobalVar.h"

#include "config/UIAPIGlobalVarPrivate.h"
#include "support/Compiler.h"
#include "support/Guard.h"
#include "support/Log.h"
#include "support/Singleton.h"

#include <kvcam/Engine.h>

namespace KVCAM::UIAPI {
namespace {

// Every public method and every step of a load runs inside this: neither the host's path helpers nor its
// engine can make a call fail.
template <class Body>
auto guardedGlobal(Body && body, int line = UIAPI_CALLER_LINE)
{
    return guarded(Log::globalVar, std::forward<Body>(body), line);
}

} // namespace

UIAPIGlobalVar * UIAPIGlobalVar::m_pUIAPIGlobalVarInstance = nullptr;

UIAPIGlobalVar * UIAPIGlobalVar::instance()
{
    return Singleton::obtain(
        m_pUIAPIGlobalVarInstance, [] { return new UIAPIGlobalVar; },
        [](UIAPIGlobalVar & made) {
            Private & parts = *made.d;
            guardedGlobal([&] { parts.config.getGlobalConfig(); });
            guardedGlobal([&] { parts.templates.getAutoMatrixTmpMapFromJson(); });
            guardedGlobal([&] { parts.templates.getAutoMatrixUserTmpFromJson(); });
            guardedGlobal([&] { parts.attributes.getTotalAttributesFromJson(); });
            guardedGlobal([&] { parts.camMateNodes.getCamMateNodesFromJson(); });
            guardedGlobal([&] { parts.templates.selectFirst(); });
            ServerSettings const & settings = parts.config.settings();
            guardedGlobal([&] { KVCAM::API::set_net_cal_thread(settings.threadCount); });
            // Set both fields: the record's default suffix must never reach the engine, not even for an empty
            // suffix.
            guardedGlobal([&] {
                KVCAM::API::set_backup_layername_info({settings.useSpecifiedSuffix, settings.suffix});
            });
        });
}

UIAPIGlobalVar::UIAPIGlobalVar() : d(new Private) {}

UIAPIGlobalVar::~UIAPIGlobalVar()
{
    delete d;
}

std::string UIAPIGlobalVar::getServerIP() const
{
    return guardedGlobal([&] { return d->config.settings().serverIp; });
}

std::string UIAPIGlobalVar::getClientIP() const
{
    return guardedGlobal([&] { return d->config.settings().clientIp; });
}

int UIAPIGlobalVar::getServerPort() const
{
    return guardedGlobal([&] { return d->config.settings().serverPort; });
}

std::string UIAPIGlobalVar::getDBPath() const
{
    return guardedGlobal([&] { return d->config.settings().dbPath; });
}

std::string UIAPIGlobalVar::getSharePath() const
{
    return guardedGlobal([&] { return d->config.settings().sharePath; });
}

int UIAPIGlobalVar::getOS() const
{
    return guardedGlobal([&] { return d->config.settings().os; });
}

int UIAPIGlobalVar::getTimeout() const
{
    return guardedGlobal([&] { return d->config.settings().timeout; });
}

bool UIAPIGlobalVar::getSelectionOutsideHint() const
{
    return guardedGlobal([&] { return d->config.settings().selectionOutsideHint; });
}

int UIAPIGlobalVar::getThreadCount() const
{
    return guardedGlobal([&] { return d->config.settings().threadCount; });
}

std::string UIAPIGlobalVar::getLayerCopySuffix() const
{
    return guardedGlobal([&] { return d->config.settings().layerCopySuffix; });
}

double UIAPIGlobalVar::getMovementFactor() const
{
    return guardedGlobal([&] { return d->config.settings().movementFactor; });
}

double UIAPIGlobalVar::getShiftConfict() const
{
    return guardedGlobal([&] { return d->config.settings().shiftConfict; });
}

int UIAPIGlobalVar::getContourAccuracy() const
{
    return guardedGlobal([&] { return d->config.settings().contourAccuracy; });
}

bool UIAPIGlobalVar::getModifyHotKey() const
{
    return guardedGlobal([&] { return d->config.settings().modifyHotKey; });
}

bool UIAPIGlobalVar::getPythonHome() const
{
    return guardedGlobal([&] { return d->config.settings().pythonHome; });
}

void UIAPIGlobalVar::setServerIP(std::string const & ip)
{
    guardedGlobal([&] { d->config.set(&ServerSettings::serverIp, ip); });
}

void UIAPIGlobalVar::setClientIP(std::string const & ip)
{
    guardedGlobal([&] { d->config.set(&ServerSettings::clientIp, ip); });
}

void UIAPIGlobalVar::setServerPort(int port)
{
    guardedGlobal([&] { d->config.set(&ServerSettings::serverPort, port); });
}

void UIAPIGlobalVar::setDBPath(std::string const & path)
{
    guardedGlobal([&] { d->config.set(&ServerSettings::dbPath, path); });
}

void UIAPIGlobalVar::setSharePath(std::string const & path)
{
    guardedGlobal([&] { d->config.set(&ServerSettings::sharePath, path); });
}

void UIAPIGlobalVar::setOS(int code)
{
    guardedGlobal([&] { d->config.set(&ServerSettings::os, code); });
}

void UIAPIGlobalVar::setTimeout(int timeout)
{
    guardedGlobal([&] { d->config.set(&ServerSettings::timeout, timeout); });
}

void UIAPIGlobalVar::setSelectionOutsideHint(bool hint)
{
    guardedGlobal([&] { d->config.set(&ServerSettings::selectionOutsideHint, hint); });
}

void UIAPIGlobalVar::setThreadCount(int count)
{
    guardedGlobal([&] {
        d->config.set(&ServerSettings::threadCount, count);
        guardedGlobal([count] { KVCAM::API::set_net_cal_thread(count); });
    });
}

std::vector<KVCAM::API::point> UIAPIGlobalVar::getRealBox() const
{
    return guardedGlobal([&] { return d->realBox; });
}

void UIAPIGlobalVar::setRealBox(std::vector<KVCAM::API::point> const & box)
{
    guardedGlobal([&] { d->realBox = box; });
}

std::vector<std::string> UIAPIGlobalVar::getAll() const
{
    return guardedGlobal([&] { return d->openJobs.getAll(); });
}

void UIAPIGlobalVar::setJob(std::string const & name)
{
    guardedGlobal([&] { d->openJobs.setJob(name); });
}

void UIAPIGlobalVar::delJob(std::string const & name)
{
    guardedGlobal([&] { d->openJobs.delJob(name); });
}

void UIAPIGlobalVar::delAll()
{
    guardedGlobal([&] { d->openJobs.delAll(); });
}

std::map<int, AutoMatrixTmp> UIAPIGlobalVar::getAutoMatrixTmpMap() const
{
    return guardedGlobal([&] { return d->templates.getAutoMatrixTmpMap(); });
}

AutoMatrixTmp UIAPIGlobalVar::getCurrentAutoMatrixTmp() const
{
    return guardedGlobal([&] { return d->templates.getCurrentAutoMatrixTmp(); });
}

void UIAPIGlobalVar::setCurrentAutoMatrixTmp(AutoMatrixTmp const & tmpl)
{
    guardedGlobal([&] { d->templates.setCurrentAutoMatrixTmp(tmpl); });
}

void UIAPIGlobalVar::saveCurrentAutoMatrixTmp(int index, QString name, AutoMatrixTmp const & tmpl)
{
    guardedGlobal([&] { d->templates.saveCurrentAutoMatrixTmp(index, name, tmpl); });
}

void UIAPIGlobalVar::deleteAutoMatrix(int index, QString name)
{
    guardedGlobal([&] { d->templates.deleteAutoMatrix(index, name); });
}

std::optional<Ext::AutoMatrixFile> UIAPIGlobalVar::autoMatrixFile(int index) const
{
    return guardedGlobal([&] { return d->templates.autoMatrixFile(index); });
}

int UIAPIGlobalVar::getAutomatrixMatrixIndex(QString name) const
{
    return guardedGlobal([&] { return d->templates.getAutomatrixMatrixIndex(name); });
}

std::map<std::string, std::tuple<int, int, std::vector<std::string>>>
UIAPIGlobalVar::getTotalAttributes() const
{
    return guardedGlobal([&] { return d->attributes.getTotalAttributes(); });
}

void UIAPIGlobalVar::getParentAttribute(std::vector<std::string> & out) const
{
    guardedGlobal([&] { d->attributes.getParentAttribute(out); });
}

std::vector<std::string> UIAPIGlobalVar::getCamMateNodes() const
{
    return guardedGlobal([&] { return d->camMateNodes.getCamMateNodes(); });
}

} // namespace KVCAM::UIAPI
