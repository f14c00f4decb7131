#pragma once

#include <KVCAM_API.h>

#include <EmbeddedEngine.h>

#include <QString>

#include <optional>
#include <string>
#include <vector>

namespace Workbench {

/// The opened job, as the engine tells it. Texts that go back to the engine are kept as the engine gave them.
class Session
{
public:
    struct Layer
    {
        KVCAM::API::layer_info info;
        /// How many, by step; without a value where they cannot be read. Empty until they are counted.
        std::vector<std::optional<int>> features;
        std::vector<QString> errors; ///< what could not be read, by step; empty texts where all was
    };
    struct Step
    {
        std::string name;
        std::optional<KVCAM::Embedded::Box> outline; ///< extent of the profile in micrometres, if it has one
    };

    /// Opens the job in a folder. The result is one line that says what is wrong, empty on success.
    QString open(QString const & directory);
    /// Counts the features of a layer in every step; the slow part of opening, for which a progress dialog
    /// may be shown. Reads the layer's tools as well. What fails is kept in the layer and logged at ERROR.
    void countFeatures(Layer & layer) const;

    /// Asks again how many features the layers have in a step, those that were counted before: an operation
    /// has changed them.
    void recount(std::size_t step);

    std::string const & job() const { return m_job; }
    QString directory() const { return m_directory; }
    std::vector<Step> const & steps() const { return m_steps; }
    std::vector<Layer> const & layers() const { return m_layers; }
    std::vector<Layer> & layers() { return m_layers; }
    /// Whether the job has a step of this name, in whatever case.
    bool hasStep(QString const & name) const;
    /// The index of the first board signal layer that has pads in a step, else 0.
    int firstCopperLayer(std::string const & step) const;

private:
    QString m_directory;
    std::string m_job;
    std::vector<Step> m_steps;
    std::vector<Layer> m_layers;
};

} // namespace Workbench
