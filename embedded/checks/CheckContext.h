#pragma once

#include "EmbeddedChecks.h"
#include "checks/SymbolShapes.h"
#include "geometry/BoardArea.h"
#include "state/Job.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace KVCAM::Embedded {

/// State shared by the checks of one run: the step being measured and the progress. The progress callback may
/// change or close the job, so the job is looked up each time and nothing in it is held across a callback.
/// Throws JobError.
class CheckContext
{
public:
    CheckContext(std::string const & job, std::string const & step, CheckProgress const & progress);

    Job & job() const;
    std::string const & step() const { return m_step; }
    BoardArea const & area() const { return m_area; }

    using Visit =
        std::function<void(std::uint32_t index, Feature const & feature, SymbolShape const & shape)>;
    /// Visits the measurable pads, lines and arcs of a layer in file order, with their place in it, and notes
    /// what cannot be measured on the layer. The shape stays valid as long as this object.
    void forEachMeasurable(API::layer_info const & layer, char const * table, Visit const & visit);

    SymbolShapes & shapes() { return m_shapes; }

    void note(NotChecked entry) { m_notChecked.push_back(std::move(entry)); }
    std::vector<NotChecked> takeNotes() { return std::move(m_notChecked); }

    /// One stage per layer, all of the same length.
    void setStages(std::size_t count) { m_stages = count; }
    void endStage();
    /// Reports that `done` of `total` parts of the stage are done. Throws when the run is cancelled.
    void reportProgress(std::size_t done, std::size_t total) const;

private:
    std::string m_job;
    std::string m_step;
    CheckProgress const & m_progress;
    BoardArea m_area;
    SymbolShapes m_shapes;
    std::vector<NotChecked> m_notChecked;
    std::size_t m_stages = 1;
    std::size_t m_stage = 0; // stages completed
};

} // namespace KVCAM::Embedded
