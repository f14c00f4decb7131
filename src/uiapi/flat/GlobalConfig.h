#pragma once

#include "UIAPICommonExport.h"

#include <kvcam/Records.h>

#include <string>
#include <vector>

/// \addtogroup global_settings
/// The global settings of "server.json", the real box and the list of open jobs. A setting missing from the
/// file is empty, 0 or false; failures at start are only logged.
namespace KVCAM::UIAPI {

///@{
/// A setting of "server.json"; empty, 0 or false if missing. Its consumers define its unit or code;
/// deletGeneJob() takes the timeout as milliseconds.
UIAPICOMMON_EXPORT std::string getServerIP();
UIAPICOMMON_EXPORT int getServerPort();
UIAPICOMMON_EXPORT std::string getClientIP();
UIAPICOMMON_EXPORT int getTimeout();
UIAPICOMMON_EXPORT int getThreadCount();
///@}
/// Saves the settings and then pushes the count to the engine, even if nothing could be written. A file that
/// cannot be written stays unchanged, unless the disk is full and the directory does not accept a new file;
/// Ext::lastSettingsSave() reports it. A missing configuration directory is logged at WARNING and created,
/// and nothing is written.
UIAPICOMMON_EXPORT void setThreadCount(int count);
///@{
/// More settings of "server.json", as above.
UIAPICOMMON_EXPORT std::string getDBPath();
UIAPICOMMON_EXPORT std::string getSharePath();
UIAPICOMMON_EXPORT int getOS();
UIAPICOMMON_EXPORT std::string getLayerCopySuffix();
UIAPICOMMON_EXPORT int getContourAccuracy();
UIAPICOMMON_EXPORT double getMovementFactor();
UIAPICOMMON_EXPORT bool getModifyHotKey();
UIAPICOMMON_EXPORT double getShiftConfict();
///@}
/// A switch, despite its name.
UIAPICOMMON_EXPORT bool getPythonHome();

///@{
/// The real box, a polygon in micrometres, as set; initially empty. Not persisted.
UIAPICOMMON_EXPORT std::vector<KVCAM::API::point> getRealBox();
UIAPICOMMON_EXPORT void setRealBox(std::vector<KVCAM::API::point> const & box);
///@}

/// The names of the open jobs in the order of opening, duplicates included. Not persisted.
UIAPICOMMON_EXPORT std::vector<std::string> getAllToVar();
/// Appends a name.
UIAPICOMMON_EXPORT void setJobToVar(std::string const & name);
/// Removes the entries of this name, compared byte for byte, except one that directly follows a removed one:
/// a, a, b without a is a, b.
UIAPICOMMON_EXPORT void delJobToVar(std::string const & name);
/// Empties the list.
UIAPICOMMON_EXPORT void delAllToVar();

} // namespace KVCAM::UIAPI
