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
    /// Ends in "/"; empty if it could not be determined.
    std::string const & configurationDirectory() const { return m_directory; }

    /// Finds the directory and loads the file; failures are logged with the directory. A missing or broken
    /// file leaves everything empty, 0 or false. Only an exception, for example from the host's path helpers,
    /// gives the fallback defaults, silently. Never throws.
    void getGlobalConfig();

    /// Rewrites the whole file. A file that cannot be written stays unchanged, without a log line (a full
    /// disk destroys it only if it is written in place, see WholeFile::replace). A missing directory only
    /// gives a warning and is created. Ext::lastSettingsSave() and a finding report both.
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
