#pragma once

#include "EmbeddedRecords.h"

#include <kvcam/Records.h>

#include <atomic>
#include <memory>
#include <string>
#include <vector>

/// \addtogroup default_engine
/// What the default engine offers beyond the host's interface: its switches, the state it was given, and the
/// parts of an open job that a host shows. Job, step and layer names are case-insensitive. Paths and texts
/// are UTF-8. No function throws. GUI thread only, except Reading::run().
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

///@{
/// What jobs may hold that are opened from now on; open jobs keep the limits of their opening.
KVCAM_API_EXPORT void setJobLimits(JobLimits const & limits);
KVCAM_API_EXPORT JobLimits jobLimits();
///@}

/// Opens the job in an archive (.tar, .tgz, .tar.gz or .zip) like open_job() and returns its name, which is
/// the archive's without the extension; "", with lastError() set, on failure. The one top folder that holds
/// matrix/matrix is the job. What the engine reads is unpacked into a private temporary folder, which goes
/// away when the job is closed or the program ends; hidden files and all others are passed over.
///
/// Refused as a whole is an archive with a name that is absolute or contains "..", with anything but a file
/// or folder (a link, a device) where the engine expects one, with a file that stands twice (ignoring case),
/// that is cut short or fails its checksum, that holds encrypted files, or that exceeds jobLimits().
/// A build without libarchive and zlib reads no archives and no compressed files and says so.
KVCAM_API_EXPORT std::string openArchive(std::string const & path);

/// Reads files of a job in a thread of the host's, where every other function reads them in the GUI thread
/// when they are first needed. So a host's windows answer meanwhile, and can stop it:
///
/// 1. in the GUI thread, make one, which copies what reading needs;
/// 2. in any one thread, run() reads files and uses nothing else;
/// 3. in the GUI thread, after run() has returned, adopt() hands over what was read to the engine.
///
/// Meanwhile the GUI thread may call anything. Nothing has changed unless adopt() returns true, so a reading
/// that is stopped is simply dropped. A copy is the same reading.
class KVCAM_API_EXPORT Reading
{
public:
    /// What open_job() reads. The limits are those of now.
    static Reading ofJob(std::string const & path, std::string const & job);
    /// What openArchive() unpacks and reads. The temporary folder goes away with a reading that is dropped.
    static Reading ofArchive(std::string const & path);
    /// The features and tools of a layer. Features that have been read are not read again. What is read
    /// counts against the job's limits when it is adopted.
    static Reading ofLayer(std::string const & job, std::string const & step, std::string const & layer);
    /// What featureNet() reads of a step.
    static Reading ofNets(std::string const & job, std::string const & step);

    /// Reads, once. Ends soon after `stop` is set, which another thread may do.
    void run(std::atomic<bool> const & stop);
    /// Hands over what was read: the job is then open, or the functions that need the files no longer read
    /// them. False, with lastError() set to what those functions would set, if that failed; they do not try
    /// again to read features and nets. False also, with nothing changed, if reading was stopped, if the job
    /// was closed or opened anew meanwhile, or if this has been called before.
    bool adopt();
    /// The name of the job; of one to be opened, after it is adopted.
    std::string job() const;
    /// What tools() would set lastError() to, after a layer is read.
    std::string toolsError() const;

private:
    struct Task;
    Reading() = default;
    template <class Begin>
    static Reading begun(Begin begin);
    template <class Open>
    static Reading opening(Open open);

    std::shared_ptr<Task> m_task;
};

/// The open jobs in order of opening, by folder name.
KVCAM_API_EXPORT std::vector<std::string> openJobs();
/// Closes a job and drops its operations. False when it is not open.
KVCAM_API_EXPORT bool closeJob(std::string const & job);

/// The extent of a step's profile, or for a step without one, of the profiles that it repeats. False if the
/// job or step is not open or there is no profile.
KVCAM_API_EXPORT bool profileBox(std::string const & job, std::string const & step, Box & box);
/// The profile's outlines as closed polygons in micrometres (arcs as short chords); empty without a profile.
KVCAM_API_EXPORT std::vector<std::vector<API::point>> profileOutlines(std::string const & job,
                                                                      std::string const & step);
/// What a step repeats, in the order of its file; empty for most steps.
KVCAM_API_EXPORT std::vector<StepRepeat> stepRepeats(std::string const & job, std::string const & step);
/// The place of every step that a step repeats, and of those that they repeat in turn; each is followed by
/// its own. The first `limit` of them: a small file can repeat steps without number.
KVCAM_API_EXPORT std::vector<StepPlacement> stepPlacements(std::string const & job, std::string const & step,
                                                           int limit);

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
/// The drawing of one of a job's own symbols: what features() and featureDrawings() give of a layer.
struct SymbolGraphics
{
    std::vector<API::feature_info> features; ///< about the symbol's origin
    std::vector<FeatureDrawing> drawings;    ///< one for each feature
};
/// The drawing of one of a job's own symbols, read anew by each call. It is as untrusted as any file: the
/// symbols in it may be the job's own again, or itself. Empty, with lastError() set, if the job has no
/// drawing of that name or it cannot be read.
KVCAM_API_EXPORT SymbolGraphics symbolGraphics(std::string const & job, std::string const & name);
/// Whether the job holds only the head and the tables of a layer's features (a file features.tables), so that
/// features() returns none although the layer is not empty.
KVCAM_API_EXPORT bool isCutToTables(std::string const & job, std::string const & step,
                                    std::string const & layer);
/// The net of a feature as the step's eda/data lists it. Empty if it lists none, if its numbers do not fit
/// the layer, or, with lastError() set, on failure. What only touches a net is not asked.
KVCAM_API_EXPORT std::string featureNet(std::string const & job, std::string const & step,
                                        std::string const & layer, int index);
/// The attributes of a feature in the order of its record, read from the file by each call. Empty, with
/// lastError() set, on failure.
KVCAM_API_EXPORT std::vector<FeatureAttribute>
featureAttributes(std::string const & job, std::string const & step, std::string const & layer, int index);

/// Deletes features by index, an operation recorded for Undo(). Returns false, with lastError() set and
/// nothing changed, if the layer is unknown, an index is not a feature, the list is empty, or the save flag
/// is on and the database cannot be written. The files of the job are never changed.
KVCAM_API_EXPORT bool deleteFeatures(std::string const & job, std::string const & step,
                                     std::string const & layer, std::vector<int> const & indices);
/// Gives features another symbol, an operation like deleteFeatures(): a well-formed standard symbol with
/// sizes in a unit (0 mil, 1 micrometre), or one of the job's own. Features that have it already are left
/// out. Returns false also if none is left, for any other name, and if a feature is a surface.
KVCAM_API_EXPORT bool changeSymbol(std::string const & job, std::string const & step,
                                   std::string const & layer, std::vector<int> const & indices,
                                   std::string const & symbol, int unit);

/// Whether the operations that hold differ from those in the job's files or in what saveJobAs() wrote last.
/// False, with lastError() set, if the job is not open.
KVCAM_API_EXPORT bool isJobChanged(std::string const & job);
/// Writes a job with its operations to a new folder, whose name is the copy's. The open job stays the one it
/// was, and its operations can still be undone.
///
/// A changed layer's features file keeps its lines, numbers as they are written, except those of deleted
/// features; changed features refer to entries added to the symbol table. The step's eda/data then counts the
/// features that are left, and hidden checksums (".features.sum") beside rewritten files are left out. All
/// other files, also those that the engine does not read, are copied byte for byte; a compressed file that is
/// rewritten is not compressed again. What is written is read back and compared before it gets its name.
///
/// Returns false, with lastError() set and nothing left behind, if the target is anything but a new or empty
/// folder, is in the job itself, cannot be written, or if the job holds a link, a device or files that have
/// changed since they were read. A job from an archive is unpacked once more; the archive must be unchanged.
KVCAM_API_EXPORT bool saveJobAs(std::string const & job, std::string const & folder);

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
