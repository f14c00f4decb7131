#include "support/HostPaths.h"

#include <kvcam/HostPaths.h>

#include <QDir>

#include <string>

namespace KVCAM::UIAPI::HostPaths {

namespace {

QString base()
{
    std::string const root = Common::getPath();
    return root.empty() ? QDir::currentPath() : QString::fromStdString(root);
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
