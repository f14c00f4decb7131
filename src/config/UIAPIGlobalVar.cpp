#include "config/UIAPIGlobalVar.h"

#include "config/UIAPIGlobalVarPrivate.h"
#include "support/Guard.h"
#include "support/Log.h"

#include <kvcam/Engine.h>

namespace KVCAM::UIAPI {
namespace {

// Neither the host's path helpers nor its engine make a call fail.
template <class Body>
void attempt(Body && body, int line = __builtin_LINE())
{
    guarded(Log::globalVar, std::forward<Body>(body), line);
}

} // namespace

UIAPIGlobalVar * UIAPIGlobalVar::m_pUIAPIGlobalVarInstance = nullptr;

UIAPIGlobalVar * UIAPIGlobalVar::instance()
{
    if (m_pUIAPIGlobalVarInstance == nullptr) {
        m_pUIAPIGlobalVarInstance = new UIAPIGlobalVar;
    }
    return m_pUIAPIGlobalVarInstance;
}

UIAPIGlobalVar::UIAPIGlobalVar() : d(new Private)
{
    d->config.getGlobalConfig();
    attempt([this] { d->templates.getAutoMatrixTmpMapFromJson(); });
    attempt([this] { d->templates.getAutoMatrixUserTmpFromJson(); });
    attempt([this] { d->attributes.getTotalAttributesFromJson(); });
    attempt([this] { d->camMateNodes.getCamMateNodesFromJson(); });
    d->templates.selectFirst();

    // An engine that calls back from a push finds this object, which is complete, instead of creating
    // another.
    m_pUIAPIGlobalVarInstance = this;
    ServerSettings const & settings = d->config.settings();
    attempt([&] { KVCAM::API::set_net_cal_thread(settings.threadCount); });
    attempt([&] {
        // Both fields, so that the record's default suffix never reaches the engine, not even for an empty
        // one.
        KVCAM::API::set_backup_layername_info({settings.useSpecifiedSuffix, settings.suffix});
    });
}

UIAPIGlobalVar::~UIAPIGlobalVar()
{
    delete d;
}

std::string UIAPIGlobalVar::getServerIP() const
{
    return d->config.settings().serverIp;
}

std::string UIAPIGlobalVar::getClientIP() const
{
    return d->config.settings().clientIp;
}

int UIAPIGlobalVar::getServerPort() const
{
    return d->config.settings().serverPort;
}

std::string UIAPIGlobalVar::getDBPath() const
{
    return d->config.settings().dbPath;
}

std::string UIAPIGlobalVar::getSharePath() const
{
    return d->config.settings().sharePath;
}

int UIAPIGlobalVar::getOS() const
{
    return d->config.settings().os;
}

int UIAPIGlobalVar::getTimeout() const
{
    return d->config.settings().timeout;
}

bool UIAPIGlobalVar::getSelectionOutsideHint() const
{
    return d->config.settings().selectionOutsideHint;
}

int UIAPIGlobalVar::getThreadCount() const
{
    return d->config.settings().threadCount;
}

std::string UIAPIGlobalVar::getLayerCopySuffix() const
{
    return d->config.settings().layerCopySuffix;
}

double UIAPIGlobalVar::getMovementFactor() const
{
    return d->config.settings().movementFactor;
}

double UIAPIGlobalVar::getShiftConfict() const
{
    return d->config.settings().shiftConfict;
}

int UIAPIGlobalVar::getContourAccuracy() const
{
    return d->config.settings().contourAccuracy;
}

bool UIAPIGlobalVar::getModifyHotKey() const
{
    return d->config.settings().modifyHotKey;
}

bool UIAPIGlobalVar::getPythonHome() const
{
    return d->config.settings().pythonHome;
}

void UIAPIGlobalVar::setServerIP(std::string const & ip)
{
    d->config.set(&ServerSettings::serverIp, ip);
}

void UIAPIGlobalVar::setClientIP(std::string const & ip)
{
    d->config.set(&ServerSettings::clientIp, ip);
}

void UIAPIGlobalVar::setServerPort(int port)
{
    d->config.set(&ServerSettings::serverPort, port);
}

void UIAPIGlobalVar::setDBPath(std::string const & path)
{
    d->config.set(&ServerSettings::dbPath, path);
}

void UIAPIGlobalVar::setSharePath(std::string const & path)
{
    d->config.set(&ServerSettings::sharePath, path);
}

void UIAPIGlobalVar::setOS(int code)
{
    d->config.set(&ServerSettings::os, code);
}

void UIAPIGlobalVar::setTimeout(int timeout)
{
    d->config.set(&ServerSettings::timeout, timeout);
}

void UIAPIGlobalVar::setSelectionOutsideHint(bool hint)
{
    d->config.set(&ServerSettings::selectionOutsideHint, hint);
}

void UIAPIGlobalVar::setThreadCount(int count)
{
    d->config.set(&ServerSettings::threadCount, count);
    attempt([count] { KVCAM::API::set_net_cal_thread(count); });
}

std::vector<KVCAM::API::point> UIAPIGlobalVar::getRealBox() const
{
    return d->realBox;
}

void UIAPIGlobalVar::setRealBox(std::vector<KVCAM::API::point> const & box)
{
    d->realBox = box;
}

std::vector<std::string> UIAPIGlobalVar::getAll() const
{
    return d->openJobs.getAll();
}

void UIAPIGlobalVar::setJob(std::string const & name)
{
    d->openJobs.setJob(name);
}

void UIAPIGlobalVar::delJob(std::string const & name)
{
    d->openJobs.delJob(name);
}

void UIAPIGlobalVar::delAll()
{
    d->openJobs.delAll();
}

std::map<int, AutoMatrixTmp> UIAPIGlobalVar::getAutoMatrixTmpMap() const
{
    return d->templates.getAutoMatrixTmpMap();
}

AutoMatrixTmp UIAPIGlobalVar::getCurrentAutoMatrixTmp() const
{
    return d->templates.getCurrentAutoMatrixTmp();
}

void UIAPIGlobalVar::setCurrentAutoMatrixTmp(AutoMatrixTmp const & tmpl)
{
    d->templates.setCurrentAutoMatrixTmp(tmpl);
}

void UIAPIGlobalVar::saveCurrentAutoMatrixTmp(int index, QString name, AutoMatrixTmp const & tmpl)
{
    d->templates.saveCurrentAutoMatrixTmp(index, name, tmpl);
}

void UIAPIGlobalVar::deleteAutoMatrix(int index, QString name)
{
    d->templates.deleteAutoMatrix(index, name);
}

std::optional<Ext::AutoMatrixFile> UIAPIGlobalVar::autoMatrixFile(int index) const
{
    return d->templates.autoMatrixFile(index);
}

int UIAPIGlobalVar::getAutomatrixMatrixIndex(QString name) const
{
    return d->templates.getAutomatrixMatrixIndex(name);
}

std::map<std::string, std::tuple<int, int, std::vector<std::string>>>
UIAPIGlobalVar::getTotalAttributes() const
{
    return d->attributes.getTotalAttributes();
}

void UIAPIGlobalVar::getParentAttribute(std::vector<std::string> & out) const
{
    d->attributes.getParentAttribute(out);
}

std::vector<std::string> UIAPIGlobalVar::getCamMateNodes() const
{
    return d->camMateNodes.getCamMateNodes();
}

} // namespace KVCAM::UIAPI
