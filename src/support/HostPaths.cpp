#include "support/HostPaths.h"

#include "support/UserDirectory.h"

#include <kvcam/HostPaths.h>

#include <QDir>

#include <string>

namespace KVCAM::UIAPI::HostPaths {

namespace {

QString base()
{
    std::string const root = Common::getPath();
    QString const path = Ext::userFile(root.empty() ? QStringLiteral(".") : QString::fromStdString(root));
    return root.empty() && !QDir::isAbsolutePath(path) ? QDir::currentPath() : path;
}

} // namespace

QString configurationDirectory()
{
    QString const directory = base() + QLatin1Char('/');
    return directory + QString::fromStdString(Common::getPath_config()) + QLatin1Char('/');
}

QString rangesDirectory()
{
    QString const directory = base() + QLatin1Char('/');
    return directory + QString::fromStdString(Common::getPath_rangesconfig());
}

} // namespace KVCAM::UIAPI::HostPaths
