#pragma once

#include "AutoMatrixFile.h"
#include "AutoMatrixTmp.h"
#include "UIAPICommonExport.h"

#include <kvcam/Records.h>

#include <QString>

#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

/// \addtogroup global_settings
namespace KVCAM::UIAPI {

/// The global settings of the process, the list of open jobs, the auto-matrix templates and the attribute
/// catalogue: one object, created by the first call that needs it and never destroyed. GUI thread only;
/// nothing is locked.
///
/// At creation it loads, from the host's configuration directory, "server.json", "automatrix.json" and the
/// user's templates, "attributes.json" and "cammatenodes.json", and then pushes the thread count and the
/// backup-layer suffix to the engine. Failures are logged at ERROR under the name "UIAPIGlobalVar"; nothing
/// is reported to the caller. All text is UTF-8.
///
/// No method throws: an exception is logged as the two lines of a caught exception, and the method returns 0,
/// false or nothing. Only instance(), which has no neutral result, lets std::bad_alloc through.
class UIAPICOMMON_EXPORT UIAPIGlobalVar
{
public:
    /// The object, created at the first call. Creating it asks the host for paths; a host that calls back
    /// meanwhile gets the same object, whose parts not yet loaded are empty. Values set then are replaced by
    /// the loaded ones.
    static UIAPIGlobalVar * instance();
    /// Null until the first call of instance(). Do not assign to it.
    static UIAPIGlobalVar * m_pUIAPIGlobalVarInstance;

    UIAPIGlobalVar(UIAPIGlobalVar const &) = delete;
    UIAPIGlobalVar & operator=(UIAPIGlobalVar const &) = delete;

    // --- Settings -----------------------------------------------------------------------------------------

    ///@{
    /// Empty, 0 or false if missing from "server.json". Their consumers define codes and units;
    /// deletGeneJob() takes the timeout as milliseconds.
    std::string getServerIP() const;
    std::string getClientIP() const;
    int getServerPort() const;
    std::string getDBPath() const;
    std::string getSharePath() const;
    int getOS() const;
    int getTimeout() const;
    bool getSelectionOutsideHint() const;
    int getThreadCount() const;
    std::string getLayerCopySuffix() const;
    double getMovementFactor() const;
    double getShiftConfict() const;
    int getContourAccuracy() const;
    bool getModifyHotKey() const;
    ///@}
    /// A switch, despite its name.
    bool getPythonHome() const;

    ///@{
    /// Each assigns its setting and rewrites "server.json" whole. A file that cannot be written stays
    /// unchanged, without a log line; Ext::lastSettingsSave() reports it. If the configuration directory is
    /// missing, a WARNING line is logged, the directory is created and nothing is written: the value reaches
    /// the file with the next save. The layer copy suffix, the movement factor, the shift confict and the
    /// contour accuracy are written under keys that are not read at the next start, unless
    /// Ext::setReadSavedSettingKeys() was called before it.
    void setServerIP(std::string const & ip);
    void setClientIP(std::string const & ip);
    void setServerPort(int port);
    void setDBPath(std::string const & path);
    void setSharePath(std::string const & path);
    void setOS(int code);
    void setTimeout(int timeout);
    void setSelectionOutsideHint(bool hint);
    ///@}
    /// Like the setters above. Also pushes the count to the engine after saving, even if nothing could be
    /// written.
    void setThreadCount(int count);

    // --- In memory only -----------------------------------------------------------------------------------

    ///@{
    /// A polygon in micrometres, returned as set; initially empty.
    std::vector<KVCAM::API::point> getRealBox() const;
    void setRealBox(std::vector<KVCAM::API::point> const & box);
    ///@}

    /// The names of the open jobs in the order of opening, duplicates included.
    std::vector<std::string> getAll() const;
    /// Appends a name.
    void setJob(std::string const & name);
    /// Removes the entries of this name, compared byte for byte, except one that directly follows a removed
    /// one: a, a, b without a is a, b.
    void delJob(std::string const & name);
    /// Empties the list.
    void delAll();

    // --- Auto-matrix templates ----------------------------------------------------------------------------

    /// A copy of all templates, by index. Shipped ones count from 0, the user's from 2; a user template whose
    /// index is taken is skipped.
    std::map<int, AutoMatrixTmp> getAutoMatrixTmpMap() const;
    /// The selected template; at start a copy of the one with the smallest index, empty if there is none.
    AutoMatrixTmp getCurrentAutoMatrixTmp() const;
    /// Replaces the selected template, in memory only.
    void setCurrentAutoMatrixTmp(AutoMatrixTmp const & tmpl);
    /// Stores the template under the index, replacing one that is there, and writes it to the file
    /// "autoMatrix/" + name + ".json" below the current directory, creating the folder. If the file cannot be
    /// written, for any reason, or the name would leave the folder, an information box "File open failed" is
    /// shown; Ext::diagnostics() says why. The selected template does not change.
    void saveCurrentAutoMatrixTmp(int index, QString name, AutoMatrixTmp const & tmpl);
    /// Removes the template of this index and the user's file of this name; silent if there is none. The
    /// selected template does not change.
    void deleteAutoMatrix(int index, QString name);
    /// The smallest index of a template of this name, compared byte for byte as UTF-8; -1 if there is none.
    int getAutomatrixMatrixIndex(QString name) const;
    /// The user's file that holds a template; nothing for a shipped template, an index without a template,
    /// and a template that was never saved.
    std::optional<Ext::AutoMatrixFile> autoMatrixFile(int index) const;

    // --- Attributes and CAM-mate nodes --------------------------------------------------------------------

    /// By name: whether the attribute takes a parameter, its unit, the values it offers.
    std::map<std::string, std::tuple<int, int, std::vector<std::string>>> getTotalAttributes() const;
    /// Appends the names of getTotalAttributes() in ascending order; `out` is not cleared.
    void getParentAttribute(std::vector<std::string> & out) const;
    /// The flow names in the file's order.
    std::vector<std::string> getCamMateNodes() const;

private:
    UIAPIGlobalVar();
    ~UIAPIGlobalVar();

    struct Private;
    Private * d; // owned
};

} // namespace KVCAM::UIAPI
