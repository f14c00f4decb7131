#include "config/GlobalConfigStore.h"

#include "config/ConfigFiles.h"
#include "config/SettingsFile.h"
#include "support/Guard.h"
#include "support/HostPaths.h"
#include "support/Log.h"
#include "support/WholeFile.h"

#include <QDir>

#include <utility>

namespace KVCAM::UIAPI {
namespace {

constexpr ConfigFiles::LoadTexts texts = {"config json文件不存在！路径：", "config json文件打开失败!路径："};

struct State
{
    Ext::Result lastSave;
    KeysTaken keys = KeysTaken::Read;
};

// Never destroyed: a setter may be called while the process exits.
State & state()
{
    static auto * state = new State;
    return *state;
}

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
    m_loadFailed = true; // until proven otherwise
    QString const directory = HostPaths::configurationDirectory();
    m_directory = directory.toStdString();
    QString const path = filePath(directory);
    WholeFile::ReadResult const result =
        ConfigFiles::load(path, texts, directory, ConfigFiles::Steps::All, QIODevice::Text);
    m_loadFailed = result.status != WholeFile::ReadStatus::Ok;
    m_settings = readServerSettings(result.document, state().keys);
    if (!m_loadFailed) {
        diagnoseServerSettings(result.document, state().keys, FileDiagnostics(path));
    }
}

void GlobalConfigStore::saveGlobalConfig()
{
    Ext::Result const result = save();
    if (!result) {
        FileDiagnostics(filePath(QString::fromStdString(m_directory)))
            .report(Ext::DiagnosticKind::SaveFailed, {}, result.reason);
    }
    state().lastSave = result;
}

Ext::Result GlobalConfigStore::save()
{
    QString const directory = QString::fromStdString(m_directory);
    // Not QDir(directory).exists(): it treats an empty path as the current directory.
    bool const exists = !directory.isEmpty() && QDir().exists(directory);
    if (!exists) {
        // The new value is only in memory until the next save.
        Log::warning(Log::globalVar, "configpath不存在！路径：" + m_directory + ", Create!");
        bool const isCreated = !directory.isEmpty() && QDir().mkpath(directory);
        return {false, isCreated ? QStringLiteral("The directory was created and nothing written.")
                                 : QStringLiteral("There is no directory, and it cannot be created.")};
    }
    QString const path = filePath(directory);
    if (!std::exchange(m_saved, true) && keepsBackup()) {
        keepBackup(path);
    }
    return WholeFile::replace(path, writeServerSettings(m_settings), QIODevice::Text);
}

void GlobalConfigStore::keepBackup(QString const & path)
{
    WholeFile::ReadResult const old = WholeFile::readJson(path, QIODevice::Text);
    if (!m_loadFailed && old.status == WholeFile::ReadStatus::Ok && !holdsKeysThatASaveDrops(old.document)) {
        return;
    }
    // Not in text mode: keep every byte.
    WholeFile::Content const content = WholeFile::read(path);
    if (content.status == WholeFile::ReadStatus::OpenFailed ||
        (content.status == WholeFile::ReadStatus::Ok &&
         !WholeFile::replace(path + QStringLiteral(".bak"), content.bytes))) {
        FileDiagnostics(path).report(
            Ext::DiagnosticKind::BackupFailed, {},
            QStringLiteral("The file was replaced and no copy of it could be kept."));
    }
}

Ext::Result Ext::lastSettingsSave()
{
    return state().lastSave;
}

void Ext::setReadSavedSettingKeys(bool read)
{
    state().keys = read ? KeysTaken::WrittenToo : KeysTaken::Read;
}

} // namespace KVCAM::UIAPI
