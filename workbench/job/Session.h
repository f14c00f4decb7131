#pragma once

#include <KVCAM_API.h>

#include <EmbeddedEngine.h>

#include <QString>

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace Workbench {

/// The open job, as reported by the engine. Texts that go back to the engine are kept unchanged.
class Session
{
public:
    struct Layer
    {
        KVCAM::API::layer_info info;
        /// Number of features by step, without a value if unreadable. Empty until counted.
        std::vector<std::optional<int>> features;
        std::vector<QString> errors; ///< by step; empty texts where all was read
    };
    struct Step
    {
        std::string name;
        std::optional<KVCAM::Embedded::Box> outline; ///< of the profile, in micrometres
        std::map<std::string, long long> repeats;    ///< how often it repeats which other steps
    };

    /// Does a reading and returns true, or false if the user stopped it.
    using Runner = std::function<bool(KVCAM::Embedded::Reading)>;
    /// Does it on the spot.
    static bool runHere(KVCAM::Embedded::Reading reading);

    /// Opens the job in a folder or an archive. Returns one line that says what is wrong, empty on success.
    QString open(QString const & path, Runner const & run = runHere);
    /// Counts the features of a layer in every step, which is the slow part of opening. Reads the layer's
    /// tools as well. Failures are kept in the layer and logged at ERROR. False, with nothing counted, when
    /// it was stopped.
    bool countFeatures(Layer & layer, Runner const & run = runHere) const;

    /// Counts the features of a step again after an operation, in the layers where they have been counted.
    void recount(std::size_t step);

    std::string const & job() const { return m_job; }
    /// The folder or archive.
    QString directory() const { return m_directory; }
    std::vector<Step> const & steps() const { return m_steps; }
    std::vector<Layer> const & layers() const { return m_layers; }
    std::vector<Layer> & layers() { return m_layers; }
    /// Whether the job has a step of this name, ignoring case.
    bool hasStep(QString const & name) const;
    /// The index of the first board signal layer that has pads in a step, else 0. After reading was stopped,
    /// only among the layers that are counted, else -1: the user does not wait for the others here either.
    int firstCopperLayer(std::string const & step) const;
    /// Reading the layers was stopped.
    void setStopped() { m_isStopped = true; }

private:
    QString m_directory;
    std::string m_job;
    std::vector<Step> m_steps;
    std::vector<Layer> m_layers;
    bool m_isStopped = false;
};

} // namespace Workbench
