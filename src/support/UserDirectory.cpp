#include "support/UserDirectory.h"

#include <QDir>

namespace KVCAM::UIAPI::Ext {
namespace {

QString & directory()
{
    static auto * const path = new QString; // callers may outlive static objects
    return *path;
}

} // namespace

void setUserDirectory(QString const & path)
{
    directory() = path.isEmpty() ? QString() : QDir(path).absolutePath();
}

QString userFile(QString const & path)
{
    return directory().isEmpty() ? path : QDir::cleanPath(QDir(directory()).absoluteFilePath(path));
}

} // namespace KVCAM::UIAPI::Ext
