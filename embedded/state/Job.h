#pragma once

#include "EmbeddedRecords.h"
#include "formats/Budget.h"
#include "formats/FeaturesFile.h"
#include "formats/JobPaths.h"
#include "formats/MatrixFile.h"
#include "formats/NetsFile.h"
#include "formats/StepHeader.h"
#include "formats/StopFlag.h"
#include "geometry/Profile.h"
#include "state/StepFiles.h"

#include <QDateTime>
#include <QString>

#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

class QTemporaryDir;

namespace KVCAM::Embedded {

/// One operation on features of a layer: they were deleted or given another symbol.
struct Operation
{
    std::string layer;
    std::vector<int> features; ///< ascending
    SymbolEntry symbol;        ///< the new one; without a name: they were deleted
    std::vector<int> before;   ///< their symbols before
    int addedSymbol = -1;      ///< the entry of the table that was made for the new one; -1: it was there
    long long number = 0;      ///< counts the operations of the job, undone ones included

    bool isDeletion() const { return symbol.name.empty(); }
};

struct Step
{
    std::string name; ///< lower case
    QString folder;
    StepHeader header;
    std::optional<Profile> profile;
    std::optional<Box> repeatBox;                  ///< of the profiles that it repeats
    std::map<std::string, LayerGraphics> graphics; ///< by layer; those read so far
    std::map<std::string, std::string> unreadable; ///< by layer, why adopted features could not be read
    std::vector<Operation> history;                ///< what Undo() reverts, latest last
    long long saved = 0;                           ///< latest() when the job was saved
    std::optional<FolderList> layers;              ///< the folder of the layers; listed on first use
    LayerGraphics nothing;                         ///< of every layer without a file
    std::optional<NetsFile> nets;                  ///< read on first use; empty if there is no file
    std::string netsError;                         ///< why adopted nets could not be read

    /// Of its profile or else of those that it repeats; nothing if there are none.
    std::optional<Box> extent() const { return profile ? profile->box : repeatBox; }
    /// The number of the latest operation; 0 for none.
    long long latest() const { return history.empty() ? 0 : history.back().number; }
};

/// An open job. The matrix, the step headers, the profiles and the symbol names are read on opening, the
/// files of a layer on first use. Methods throw JobError. Names are lower case.
class Job
{
public:
    /// Reads the job in the subfolder `name` of `path`.
    Job(std::string const & path, std::string const & name, JobLimits const & limits = {},
        StopFlag stop = {});
    /// Unpacks an archive into a temporary folder that exists as long as the job, and reads the job there. It
    /// is named like the archive; messages give the archive's path in place of the folder's.
    static std::unique_ptr<Job> fromArchive(std::string const & archive, JobLimits const & limits,
                                            StopFlag stop = {});
    bool isFromArchive() const { return m_unpacked != nullptr; }
    /// Unpacks the whole archive into an empty folder and returns the job's folder there. Throws if the
    /// archive is not as it was when it was opened.
    QString unpackAgain(QString const & folder) const;

    std::string const & name() const { return m_name; }
    /// Another one for each job of the process, also if they have the same name.
    long long number() const { return m_number; }
    QString const & folder() const { return m_folder; }
    JobLimits const & limits() const { return m_budget.limits; }
    Matrix const & matrix() const { return m_matrix; }
    /// The names of its own symbols, sorted.
    std::vector<std::string> const & symbols() const { return m_symbols; }
    bool hasSymbol(std::string const & name) const;
    /// The drawing of one of its own symbols; nothing if the job does not contain it.
    std::optional<FeaturesFile> symbolDrawing(std::string const & name) const;

    std::vector<Step> const & steps() const { return m_steps; }
    /// Null when there is none.
    Step * findStep(std::string const & name);
    Step & step(std::string const & name);

    LayerGraphics & graphics(std::string const & step, std::string const & layer);
    /// The files of a layer, for reading them apart from the job.
    FilesSource layerSource(std::string const & step, std::string const & layer);
    /// Whether graphics() has no file to read.
    bool isRead(std::string const & step, std::string const & layer);
    /// Makes what was read apart what graphics() gives, and adds it to the budget; throws if it failed or no
    /// longer fits, and is not tried again. Dropped if the layer has been read meanwhile.
    LayerGraphics & adopt(std::string const & step, std::string const & layer, LayerContents contents);
    std::vector<Tool> tools(std::string const & step, std::string const & layer);
    /// The net of a feature as the step's nets file lists it; "" if it lists none or does not fit the layer.
    std::string net(std::string const & step, std::string const & layer, int feature);
    ///@{
    /// The same for a step's nets.
    FilesSource netsSource(std::string const & step);
    bool areNetsRead(std::string const & step);
    NetsFile const & adopt(std::string const & step, NetsContents contents);
    ///@}
    /// An error of reading; it names the job's archive in place of the folder that it is unpacked to.
    std::string named(std::string const & error) const;
    /// The attributes of a feature, read from the layer's file.
    std::vector<FeatureAttribute> attributes(std::string const & step, std::string const & layer,
                                             int feature);

    /// An operation with its indices sorted and unique: a deletion, or with a symbol, a change that leaves
    /// out the features that have it already. Throws if an index is not a feature, if nothing is left to do,
    /// or if the symbol is neither a standard one nor the job's own.
    Operation checked(std::string const & step, std::string const & layer, std::vector<int> const & indices,
                      SymbolEntry symbol = {});
    void apply(std::string const & step, Operation operation);
    /// Reverts the step's latest operation; false when there is none.
    bool undo(std::string const & step);

    /// Whether the operations that hold differ from those that were saved.
    bool isChanged() const;
    void setSaved();

private:
    // Runs what reads files and gives errors the archive's path.
    template <class Reading>
    auto named(Reading reading) const -> decltype(reading());
    Step readStep(FolderList const & steps, std::string const & name);
    void readSymbolNames();
    // The folder of one of its own symbols; "" when it has none.
    std::string symbolFolder(std::string const & name) const;
    // The folder of a layer of the matrix; empty when it has none.
    QString layerFolder(Step & step, std::string const & layer);
    void charge(LayerContents const & contents);
    // Throws what was read in place, if that failed, without keeping the error: it is tried again.
    template <class Contents>
    Contents succeeded(Contents contents) const;
    void checkChange(LayerGraphics const & target, Operation & change) const;
    void checkFeature(LayerGraphics const & target, std::string const & layer, int feature) const;

    std::string m_name;
    long long m_number = 0;
    QString m_folder;
    std::shared_ptr<QTemporaryDir> m_unpacked; // of a job from an archive
    QString m_archive;
    std::pair<qint64, QDateTime> m_archiveState; // size and time of the archive when it was opened
    long long m_operations = 0;
    Budget m_budget;
    QString m_symbolsFolder;
    std::map<std::string, std::string> m_symbolFolders; // by name in lower case
    Matrix m_matrix;
    std::vector<Step> m_steps;
    std::map<std::string, std::size_t> m_stepIndices; // by name
    std::vector<std::string> m_symbols;
};

} // namespace KVCAM::Embedded
