#pragma once

#include "config/ServerSettings.h"
#include "support/Result.h"

#include <string>

namespace KVCAM::UIAPI {

/// The settings in memory and their file, "server.json" in the configuration directory.
class GlobalConfigStore
{
public:
    ServerSettings const & settings() const { return m_settings; }
    /// With a "/" at its end; empty while it could not be found out.
    std::string const & configurationDirectory() const { return m_directory; }

    /// Finds the directory and loads the file; what fails is logged with the directory. A missing or broken
    /// file leaves everything empty, 0 or false. Only an exception, as from the host's path helpers, gives
    /// the fallback defaults, without a word. Throws nothing.
    void getGlobalConfig();

    /// Rewrites the whole file; a file that cannot be written stays as it was, without a log line (a full
    /// disk loses it only where it is written in place, see JsonFile::replace). A missing directory is only
    /// warned about and created. Ext::lastSettingsSave() and a finding tell of both.
    void saveGlobalConfig();

    /// Assigns one setting and saves.
    template <class Value>
    void set(Value ServerSettings::*field, Value const & value)
    {
        m_settings.*field = value;
        saveGlobalConfig();
    }

private:
    void load();
    Ext::Result save();
    void keepBackup(QString const & path);

    ServerSettings m_settings;
    std::string m_directory;
    bool m_loadFailed = false;
    bool m_saved = false;
};

} // namespace KVCAM::UIAPI
