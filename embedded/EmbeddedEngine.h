#pragma once

#include "EmbeddedRecords.h"

#include <kvcam/Records.h>

#include <string>
#include <vector>

/// What the default engine offers beyond the host's interface: its switches, what it was told, and the parts
/// of an opened job that a host shows. Job, step and layer names compare without case. Paths and texts are
/// UTF-8. No function throws; GUI thread only.
namespace KVCAM::Embedded {

/// Why the latest open_job(), closing or reading failed: "file:line: reason" (the line only where there is
/// one); empty after a success. Every function below that reads from a job sets it.
KVCAM_API_EXPORT std::string lastError();

/// Turns the save flag on or off. While it is on, the database twins write to the database file. False, with
/// lastError() set, when the file has no name, cannot be opened or leaves no sequence numbers to count on
/// with; the flag is then off.
KVCAM_API_EXPORT bool setSaveFlag(bool on);
///@{
/// The SQLite file of the twins, "uiapi-engine.sqlite" in the current directory unless set. Takes effect the
/// next time that the flag is turned on.
KVCAM_API_EXPORT void setDatabaseFile(std::string const & path);
KVCAM_API_EXPORT std::string databaseFile();
///@}

/// Makes a directory the host's configuration directory, which Common::getPath() and its relatives then name.
/// Empty, as at the start: the folder "config" of the current directory. Set it before the library's first
/// call, which reads the files there.
KVCAM_API_EXPORT void setConfigDirectory(std::string const & path);

/// What the engine was told last.
struct LiveState
{
    API::show_param show;             ///< set_show_para()
    API::Selection selection;         ///< set_selection()
    API::select_info select;          ///< set_select_param()
    int threadCount = 0;              ///< set_net_cal_thread()
    API::back_layer_name_info backup; ///< set_backup_layername_info()
    /// The number of the latest of these changes. It is counted together with the rows of the database file,
    /// so that a row written before a change has the lower number.
    long long sequence = 0;
};
/// What the engine was told last; the records' defaults where it was told nothing.
KVCAM_API_EXPORT LiveState liveState();

/// A command that the host's plug-in manager was given.
struct PluginCommand
{
    std::string module; ///< as PluginMetaData's
    int command = 0;    ///< as PluginMetaData's
    std::string key;    ///< as PluginMetaData's
};
/// The latest 100 of them, oldest first; the default host has no plug-in modules to hand them to.
KVCAM_API_EXPORT std::vector<PluginCommand> pluginCommands();

/// The jobs that are open, in order of opening, by the names of their folders.
KVCAM_API_EXPORT std::vector<std::string> openJobs();
/// Forgets a job, its deletions and what could be undone; false when it is not open.
KVCAM_API_EXPORT bool closeJob(std::string const & job);

/// The extent of a step's profile. False when the job or step is not open or has no profile.
KVCAM_API_EXPORT bool profileBox(std::string const & job, std::string const & step, Box & box);
/// The profile's outlines as closed polygons in micrometres (arcs as short chords); empty when there is none.
KVCAM_API_EXPORT std::vector<std::vector<API::point>> profileOutlines(std::string const & job,
                                                                      std::string const & step);

/// The features of a layer in file order, without the deleted ones; `index` counts over the file. Symbol
/// names carry no unit mark; FeatureDrawing says what their sizes are in. Empty, with lastError() set, on
/// failure; a layer without a features file has none.
KVCAM_API_EXPORT std::vector<API::feature_info> features(std::string const & job, std::string const & step,
                                                         std::string const & layer);
/// How many features() gives, without making the list; -1, with lastError() set, on failure.
KVCAM_API_EXPORT int featureCount(std::string const & job, std::string const & step,
                                  std::string const & layer);
/// What a picture of a feature needs beyond its record.
struct FeatureDrawing
{
    double angle = 0;       ///< of a pad, degrees clockwise
    bool mirrored = false;  ///< of a pad
    bool clockwise = false; ///< of an arc
    /// What the sizes in the feature's symbol name are in: 0 mil, 1 micrometre; 0 for a surface. One layer
    /// may use the same name in both units.
    int unit = 0;
    /// Of a surface: its islands and holes as closed polygons in micrometres (arcs as short chords), to be
    /// filled by the odd-even rule.
    std::vector<std::vector<API::point>> outlines;
};
/// One entry for each feature that features() gives, in the same order.
KVCAM_API_EXPORT std::vector<FeatureDrawing>
featureDrawings(std::string const & job, std::string const & step, std::string const & layer);
/// Whether all that the job holds of a layer's features is their head and tables (a file features.tables), so
/// that features() gives none although the layer is not empty.
KVCAM_API_EXPORT bool isCutToTables(std::string const & job, std::string const & step,
                                    std::string const & layer);
/// Deletes features by index: the engine's one operation, recorded for Undo(). False, and nothing changed,
/// and lastError() set, when the layer is not known, an index does not stand for a feature, the list is
/// empty, or the save flag is on and the database cannot be written. The files of the job are never changed.
KVCAM_API_EXPORT bool deleteFeatures(std::string const & job, std::string const & step,
                                     std::string const & layer, std::vector<int> const & indices);

/// One symbol name as a layer's files use it.
struct SymbolUse
{
    std::string name; ///< without a unit mark
    int unit = 0;     ///< what its sizes are in: 0 mil, 1 micrometre
    int features = 0; ///< how many features use it
};
/// The distinct symbol names of a layer in order of first definition, used or not.
KVCAM_API_EXPORT std::vector<SymbolUse> layerSymbols(std::string const & job, std::string const & step,
                                                     std::string const & layer);
/// The distinct symbol names of all steps and layers of a job, sorted by name and unit. A layer that cannot
/// be read is left out; lastError() then says why the first one could not.
KVCAM_API_EXPORT std::vector<SymbolUse> jobSymbols(std::string const & job);

/// The tools of a layer in the order of its tools file. Empty, with lastError() set, on failure; a layer
/// without that file has none.
KVCAM_API_EXPORT std::vector<Tool> tools(std::string const & job, std::string const & step,
                                         std::string const & layer);

} // namespace KVCAM::Embedded
