#pragma once

#include <UIAPICommon.h>

#include <QStringList>

#include <map>
#include <set>
#include <string>
#include <vector>

namespace Workbench {

/// The host's side of the library's reference layers. The library tells the references of a step but not
/// which steps have any, so the book keeps their names, and when a job, step or layer is renamed or deleted
/// it tells the library for every one of them.
class ReferenceBook
{
public:
    using Records = std::vector<KVCAM::UIAPI::ReferenceLayerInfo>;
    using Owners = std::map<std::string, std::set<std::string>>; ///< steps by job

    Owners const & owners() const { return m_owners; }
    Records records(std::string const & job, std::string const & step) const;
    void setRecords(std::string const & job, std::string const & step, Records const & records);

    // What a host does after one of its jobs, steps or layers got another name or is gone: the references to
    // it follow, and so do its own. The result is each call of the library, in order.

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
