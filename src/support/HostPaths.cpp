#include "support/HostPaths.h"

#include <kvcam/HostPaths.h>

#include <QDir>

#include <string>

namespace KVCAM::UIAPI::HostPaths {

QString configurationDirectory()
{
    std::string const root = Common::getPath();
    QString const folder = QString::fromStdString(Common::getPath_config());
    QString const base = root.empty() ? QDir::currentPath() : QString::fromStdString(root);
    return base + QLatin1Char('/') + folder + QLatin1Char('/');
}

} // namespace KVCAM::UIAPI::HostPaths
