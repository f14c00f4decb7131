#pragma once

#include "EmbeddedRecords.h"
#include "formats/FeaturesFile.h"
#include "formats/MatrixFile.h"
#include "geometry/Profile.h"

#include <QString>

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace KVCAM::Embedded {

/// The current graphics of a layer: the contents of its file, and which features are deleted.
struct LayerGraphics
{
    FeaturesFile file;
    std::vector<bool> deleted; ///< as many as features
    bool cutToTables = false;  ///< the file holds only the head and the tables
    bool missing = false;      ///< there is no file
};

/// One deletion: the layer and the ascending indices of the deleted features.
struct Deletion
{
    std::string layer;
    std::vector<int> features;
};

struct Step
{
    std::string name; ///< lower case
    QString folder;
    std::optional<Profile> profile;
    std::map<std::string, LayerGraphics> graphics; ///< by layer; those read so far
    std::vector<Deletion> history;                 ///< what Undo() reverts, latest last
};

/// An open job. The matrix, the step headers, the profiles and the symbol names are read on opening, the
/// files of a layer on first use. Methods throw JobError. Names are lower case.
class Job
{
public:
    /// Reads the job in the subfolder `name` of `path`.
    Job(std::string const & path, std::string const & name);

    std::string const & name() const { return m_name; }
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
    std::vector<Tool> tools(std::string const & step, std::string const & layer);

    /// A deletion with its indices sorted and unique. Throws if an index is not a feature.
    Deletion checkedDeletion(std::string const & step, std::string const & layer,
                             std::vector<int> const & indices);
    void apply(std::string const & step, Deletion deletion);
    /// Reverts the step's latest deletion; false when there is none.
    bool undo(std::string const & step);

private:
    Step readStep(std::string const & name) const;
    // The folder of a layer of the matrix; "" when it has none.
    QString layerFolder(Step const & step, std::string const & layer) const;

    std::string m_name;
    QString m_folder;
    Matrix m_matrix;
    std::vector<Step> m_steps;
    std::vector<std::string> m_symbols;
};

} // namespace KVCAM::Embedded
