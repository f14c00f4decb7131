#pragma once

#include "BoardArea.h"
#include "EmbeddedChecks.h"
#include "Job.h"
#include "SymbolShapes.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace KVCAM::Embedded {

/// What the checks of one run share: the step that they measure, and how far they are. Whoever is told of the
/// progress may change or close the job, so the job is looked up anew each time and nothing of it is held on
/// to while progress is told. Throws JobError.
class CheckContext
{
public:
    CheckContext(std::string const & job, std::string const & step, CheckProgress const & progress);

    Job & job() const;
    std::string const & step() const { return m_step; }
    BoardArea const & area() const { return m_area; }

    using Visit = std::function<void(Feature const & feature, SymbolShape const & shape)>;
    /// Visits the pads, lines and arcs of a layer that are there to be measured, in file order, and notes
    /// what the layer keeps from being measured. The shape stays valid as long as this.
    void forEachMeasurable(API::layer_info const & layer, char const * table, Visit const & visit);

    void note(NotChecked entry) { m_notChecked.push_back(std::move(entry)); }
    std::vector<NotChecked> takeNotes() { return std::move(m_notChecked); }

    /// A stage for each layer, all of the same length.
    void setStages(std::size_t count) { m_stages = count; }
    void endStage();
    /// Tells that `done` of `total` parts of the stage are done; throws when the run is cancelled.
    void tell(std::size_t done, std::size_t total) const;

private:
    std::string m_job;
    std::string m_step;
    CheckProgress const & m_progress;
    BoardArea m_area;
    SymbolShapes m_shapes;
    std::vector<NotChecked> m_notChecked;
    std::size_t m_stages = 1;
    std::size_t m_stage = 0; // how many are over
};

} // namespace KVCAM::Embedded
