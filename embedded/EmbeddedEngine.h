#pragma once

#include "EmbeddedRecords.h"

#include <kvcam/Records.h>

#include <string>
#include <vector>

/// What the default engine offers beyond the host's interface: its switches, the state it was given, and the
/// parts of an open job that a host shows. Job, step and layer names are case-insensitive. Paths and texts
/// are UTF-8. No function throws. GUI thread only.
namespace KVCAM::Embedded {

/// Why the latest open_job(), closing or reading failed: "file:line: reason" (the line only if there is one);
/// empty after success. Every function below that reads from a job sets it.
KVCAM_API_EXPORT std::string lastError();

/// Turns the save flag on or off. While it is on, the database twins write to the database file. Returns
/// false, with lastError() set and the flag off, if the file has no name, cannot be opened or has no sequence
/// numbers left.
KVCAM_API_EXPORT bool setSaveFlag(bool on);
///@{
/// The SQLite file of the twins; "uiapi-engine.sqlite" in the current directory by default. Takes effect the
/// next time the flag is turned on.
KVCAM_API_EXPORT void setDatabaseFile(std::string const & path);
KVCAM_API_EXPORT std::string databaseFile();
///@}

/// Sets the host's configuration directory, which Common::getPath() and its relatives then return. Empty (the
/// default): the folder "config" in the current directory. Set it before the library's first call, which
/// reads the files there.
KVCAM_API_EXPORT void setConfigDirectory(std::string const & path);

/// The latest values given to the engine.
struct LiveState
{
    API::show_param show;             ///< set_show_para()
    API::Selection selection;         ///< set_selection()
    API::select_info select;          ///< set_select_param()
    int threadCount = 0;              ///< set_net_cal_thread()
    API::back_layer_name_info backup; ///< set_backup_layername_info()
    /// The sequence number of the latest of these changes. The rows of the database file share the counter,
    /// so a row written before a change has the lower number.
    long long sequence = 0;
};
/// The latest values given to the engine; defaults where none were given.
KVCAM_API_EXPORT LiveState liveState();

/// A command given to the host's plug-in manager.
struct PluginCommand
{
    std::string module; ///< as PluginMetaData's
    int command = 0;    ///< as PluginMetaData's
    std::string key;    ///< as PluginMetaData's
};
/// The latest 100 commands, oldest first. The default host has no plug-in modules to pass them to.
KVCAM_API_EXPORT std::vector<PluginCommand> pluginCommands();

/// The open jobs in order of opening, by folder name.
KVCAM_API_EXPORT std::vector<std::string> openJobs();
/// Closes a job and drops its deletions and undo history. False when it is not open.
KVCAM_API_EXPORT bool closeJob(std::string const & job);

/// The extent of a step's profile. False if the job or step is not open or has no profile.
KVCAM_API_EXPORT bool profileBox(std::string const & job, std::string const & step, Box & box);
/// The profile's outlines as closed polygons in micrometres (arcs as short chords); empty without a profile.
KVCAM_API_EXPORT std::vector<std::vector<API::point>> profileOutlines(std::string const & job,
                                                                      std::string const & step);

/// The features of a layer in file order, without the deleted ones; `index` counts all features of the file.
/// Symbol names have no unit suffix; FeatureDrawing gives the unit of their sizes. Empty, with lastError()
/// set, on failure; a layer without a features file has none.
KVCAM_API_EXPORT std::vector<API::feature_info> features(std::string const & job, std::string const & step,
                                                         std::string const & layer);
/// The number of features that features() returns, without building the list; -1, with lastError() set, on
/// failure.
KVCAM_API_EXPORT int featureCount(std::string const & job, std::string const & step,
                                  std::string const & layer);
/// What is needed to draw a feature, beyond its record.
struct FeatureDrawing
{
    double angle = 0;       ///< of a pad, degrees clockwise
    bool mirrored = false;  ///< of a pad, after it is turned
    bool clockwise = false; ///< of an arc
    /// Unit of the sizes in the feature's symbol name: 0 mil, 1 micrometre; 0 for a surface. One layer may
    /// use the same name in both units.
    int unit = 0;
    /// The islands and holes of a surface as closed polygons in micrometres (arcs as short chords), for
    /// odd-even filling.
    std::vector<std::vector<API::point>> outlines;
};
/// One entry for each feature of features(), in the same order.
KVCAM_API_EXPORT std::vector<FeatureDrawing>
featureDrawings(std::string const & job, std::string const & step, std::string const & layer);
/// Whether the job holds only the head and the tables of a layer's features (a file features.tables), so that
/// features() returns none although the layer is not empty.
KVCAM_API_EXPORT bool isCutToTables(std::string const & job, std::string const & step,
                                    std::string const & layer);
/// Deletes features by index: the engine's only operation, recorded for Undo(). Returns false, with
/// lastError() set and nothing changed, if the layer is unknown, an index is not a feature, the list is
/// empty, or the save flag is on and the database cannot be written. The files of the job are never changed.
KVCAM_API_EXPORT bool deleteFeatures(std::string const & job, std::string const & step,
                                     std::string const & layer, std::vector<int> const & indices);

/// A symbol name as used by a layer's files.
struct SymbolUse
{
    std::string name; ///< without a unit suffix
    int unit = 0;     ///< unit of its sizes: 0 mil, 1 micrometre
    int features = 0; ///< number of features that use it
};
/// The distinct symbol names of a layer in order of first definition, used or not.
KVCAM_API_EXPORT std::vector<SymbolUse> layerSymbols(std::string const & job, std::string const & step,
                                                     std::string const & layer);
/// The distinct symbol names of all steps and layers of a job, sorted by name and unit. Unreadable layers are
/// skipped; lastError() then gives the reason for the first one.
KVCAM_API_EXPORT std::vector<SymbolUse> jobSymbols(std::string const & job);

/// The tools of a layer in the order of its tools file. Empty, with lastError() set, on failure; a layer
/// without a tools file has none.
KVCAM_API_EXPORT std::vector<Tool> tools(std::string const & job, std::string const & step,
                                         std::string const & layer);

} // namespace KVCAM::Embedded
