#include "job/ConfigDirectory.h"

#include <EmbeddedEngine.h>
#include <KVCAM_API.h>
#include <UIAPICommonExt.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>

namespace Workbench {

namespace {

// Without samples the program starts without settings.
void copySamples(QString const & name, QString const & directory)
{
    QDir().mkpath(directory);
    QDir const samples(samplesDirectory() + '/' + name);
    for (QString const & file : samples.entryList(QDir::Files)) {
        QString const copy = directory + '/' + file;
        QFile::copy(samples.filePath(file), copy);
        QFile::setPermissions(copy,
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
    }
    for (QString const & folder : samples.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        copySamples(name + '/' + folder, directory + '/' + folder);
    }
}

} // namespace

QString samplesDirectory()
{
    for (char const * const installed : {"/../samples", "/../share/uiapicommon/samples"}) {
        QString folder = QDir::cleanPath(QCoreApplication::applicationDirPath() + installed);
        if (QFileInfo(folder).isDir()) {
            return folder;
        }
    }
    return QStringLiteral(WORKBENCH_SAMPLES);
}

QString enterConfiguration(QString const & directory, QString const & output)
{
    QString const chosen = directory.isEmpty() ? output + "/workbench-session/config" : directory;
    QFileInfo const folder(chosen);
    if (!folder.exists() && directory.isEmpty()) {
        copySamples("config", chosen);
        copySamples("autoMatrix", folder.path() + "/autoMatrix"); // the user's own templates
    } else if (!folder.isDir()) {
        return QString("the configuration directory \"%1\" is not there").arg(chosen);
    }
    KVCAM::Embedded::setConfigDirectory(chosen.toStdString());
    KVCAM::UIAPI::Ext::setUserDirectory(folder.absolutePath());
    return {};
}

QString readOnlyConfiguration(QString const & directory, QString const & output)
{
    QString const copy = output + "/workbench-session/config";
    QString const standard = QFileInfo(copy).isDir() ? copy : samplesDirectory() + "/config";
    return directory.isEmpty() ? standard : directory;
}

QString configurationDirectory()
{
    QString const root = QString::fromStdString(Common::getPath());
    return (root.isEmpty() ? QDir::currentPath() : root) + '/' +
           QString::fromStdString(Common::getPath_config());
}

QJsonObject readJsonObject(QString const & path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly | QIODevice::Text) ? QJsonDocument::fromJson(file.readAll()).object()
                                                            : QJsonObject();
}

} // namespace Workbench
