#pragma once

#include "config/DiagnosticCollector.h"

#include <QByteArray>
#include <QJsonDocument>

#include <array>
#include <string>
#include <variant>

namespace KVCAM::UIAPI {

/// The 17 persisted settings. Their consumers define units and codes; the library does not interpret them.
struct ServerSettings
{
    std::string serverIp;
    std::string clientIp;
    int serverPort = 0;
    std::string dbPath;
    std::string sharePath;
    int os = 0;
    int timeout = 0;
    bool selectionOutsideHint = false;
    int threadCount = 0;
    bool useSpecifiedSuffix = false;
    std::string suffix;
    std::string layerCopySuffix;
    double movementFactor = 0.0;
    double shiftConfict = 0.0;
    int contourAccuracy = 0;
    bool modifyHotKey = false;
    bool pythonHome = false;
};

/// One setting: the member, whose type is also the JSON type, and its key in "server.json".
struct SettingField
{
    std::variant<std::string ServerSettings::*, int ServerSettings::*, bool ServerSettings::*,
                 double ServerSettings::*>
        member;
    char const * readKey;
    char const * writtenKey;
};

/// The settings in the order in which they are read. Four are written under a key other than the one they are
/// read from: a saved value does not come back at the next start, unless Ext::setReadSavedSettingKeys() is
/// used. Files in the field rely on this.
inline constexpr std::array<SettingField, 17> settingFields = {{
    {&ServerSettings::serverIp, "ServerIp", "ServerIp"},
    {&ServerSettings::clientIp, "ClientIp", "ClientIp"},
    {&ServerSettings::serverPort, "Port", "Port"},
    {&ServerSettings::dbPath, "DBPath", "DBPath"},
    {&ServerSettings::sharePath, "SharePath", "SharePath"},
    {&ServerSettings::os, "OS", "OS"},
    {&ServerSettings::timeout, "TimeOut", "TimeOut"},
    {&ServerSettings::selectionOutsideHint, "SelectionOutsideHint", "SelectionOutsideHint"},
    {&ServerSettings::threadCount, "ThreadCount", "ThreadCount"},
    {&ServerSettings::useSpecifiedSuffix, "use_specifiled_suffix", "use_specifiled_suffix"},
    {&ServerSettings::suffix, "suffix", "suffix"},
    {&ServerSettings::layerCopySuffix, "layer_copy_suffix", "LayerCopySuffix"},
    {&ServerSettings::movementFactor, "Movement_factor", "MovementFactor"},
    {&ServerSettings::shiftConfict, "Shift_confict", "ShiftConfict"},
    {&ServerSettings::contourAccuracy, "contour_accuracy", "ContourAccuracy"},
    {&ServerSettings::modifyHotKey, "modify_hotkey", "modify_hotkey"},
    {&ServerSettings::pythonHome, "PythonHome", "PythonHome"},
}};

/// Under which keys settings are looked up.
enum class KeysTaken
{
    Read,       ///< only the read keys
    WrittenToo, ///< the written key if the read key is absent
};

/// Reads all settings. A missing key, a value of another type, and a fraction or a number beyond int for an
/// integer give an empty text, 0, false or 0.0.
ServerSettings readServerSettings(QJsonDocument const & document, KeysTaken keys);

/// Reports keys of the file that are missing, of another type, unknown or not read back.
void diagnoseServerSettings(QJsonDocument const & document, KeysTaken keys,
                            FileDiagnostics const & diagnostics);

/// The file's content: indented, members in ascending key order.
QByteArray writeServerSettings(ServerSettings const & settings);

/// Whether the document holds keys that a save would drop.
bool holdsKeysThatASaveDrops(QJsonDocument const & document);

/// Sets the values used if loading itself fails. The suffix flag, the suffix and the layer copy suffix do not
/// change.
void setFallbackDefaults(ServerSettings & settings);

} // namespace KVCAM::UIAPI
