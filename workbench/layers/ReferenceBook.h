#pragma once

#include <UIAPICommon.h>

#include <QStringList>

#include <map>
#include <set>
#include <string>
#include <vector>

namespace Workbench {

/// The host's side of the library's reference layers. The library returns the references of a given step but
/// not the steps that have any. The book keeps their names, and passes on the renaming or deletion of a job,
/// step or layer for each of them.
class ReferenceBook
{
public:
    using Records = std::vector<KVCAM::UIAPI::ReferenceLayerInfo>;
    using Owners = std::map<std::string, std::set<std::string>>; ///< steps by job

    Owners const & owners() const { return m_owners; }
    Records records(std::string const & job, std::string const & step) const;
    void setRecords(std::string const & job, std::string const & step, Records const & records);

    // To be called when the host has renamed or deleted a job, step or layer: references to it and its own
    // references follow. Returns the calls to the library in order.

    QStringList renameJob(std::string const & oldJob, std::string const & newJob);
    QStringList renameStep(std::string const & job, std::string const & oldStep, std::string const & newStep);
    QStringList renameLayer(std::string const & job, std::string const & step, std::string const & oldLayer,
                            std::string const & newLayer);
    QStringList deleteJob(std::string const & job);
    QStringList deleteStep(std::string const & job, std::string const & step);
    QStringList deleteLayer(std::string const & job, std::string const & step, std::string const & layer);

private:
    Owners m_owners;
};

} // namespace Workbench
