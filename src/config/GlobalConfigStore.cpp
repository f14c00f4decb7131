#include "config/GlobalConfigStore.h"

#include "config/ConfigFiles.h"
#include "support/Guard.h"
#include "support/HostPaths.h"
#include "support/JsonFile.h"
#include "support/Log.h"

#include <QDir>
#include <QFile>

#include <utility>

namespace KVCAM::UIAPI {
namespace {

constexpr ConfigFiles::LoadTexts texts = {"config json文件不存在！路径：", "config json文件打开失败!路径："};

QString filePath(QString const & directory)
{
    return directory + QStringLiteral("server.json");
}

} // namespace

void GlobalConfigStore::getGlobalConfig()
{
    guard([this] { load(); }, [this](std::string const &) { setFallbackDefaults(m_settings); });
}

void GlobalConfigStore::load()
{
    m_loadFailed = true; // until it is seen to be otherwise
    QString const directory = HostPaths::configurationDirectory();
    m_directory = directory.toStdString();
    QString const path = filePath(directory);
    JsonFile::ReadResult const result =
        ConfigFiles::load(path, texts, directory, ConfigFiles::Steps::All, QIODevice::Text);
    m_loadFailed = result.status != JsonFile::ReadStatus::Ok;
    m_settings = readServerSettings(result.document);
    if (!m_loadFailed) {
        diagnoseServerSettings(result.document, FileDiagnostics(path));
    }
}

void GlobalConfigStore::saveGlobalConfig()
{
    QString const directory = QString::fromStdString(m_directory);
    // Not QDir(directory).exists(): that takes an empty path for the current directory.
    bool const exists = !directory.isEmpty() && QDir().exists(directory);
    if (!exists) {
        // The value just set is in memory only, until the next save.
        Log::warning(Log::globalVar, "configpath不存在！路径：" + m_directory + ", Create!");
        if (!directory.isEmpty()) {
            QDir().mkpath(directory);
        }
        return;
    }
    QString const path = filePath(directory);
    if (!std::exchange(m_saved, true) && keepsBackup()) {
        keepBackup(path);
    }
    JsonFile::replace(path, writeServerSettings(m_settings), QIODevice::Text);
}

void GlobalConfigStore::keepBackup(QString const & path)
{
    JsonFile::ReadResult const old = JsonFile::read(path, QIODevice::Text);
    if (!m_loadFailed && old.status == JsonFile::ReadStatus::Ok && !holdsKeysThatASaveDrops(old.document)) {
        return;
    }
    QFile file(path);
    if (file.open(QIODevice::ReadOnly) &&
        JsonFile::replace(path + QStringLiteral(".bak"), file.readAll()) != JsonFile::WriteStatus::Ok) {
        FileDiagnostics(path).report(
            Ext::DiagnosticKind::BackupFailed, {},
            QStringLiteral("The file was replaced and no copy of it could be kept."));
    }
}

} // namespace KVCAM::UIAPI
