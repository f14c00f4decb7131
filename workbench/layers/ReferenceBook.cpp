#include "layers/ReferenceBook.h"

#include <utility>

namespace Workbench {

using namespace KVCAM::UIAPI;

namespace {

// Calls a function of the library and records the call as source text.
template <class... Names>
void call(QStringList & calls, char const * name, void (*function)(std::string const &, Names const &...),
          std::string const & first, Names const &... others)
{
    function(first, others...);
    QStringList arguments{QString::fromStdString(first)};
    (arguments.append(QString::fromStdString(others)), ...);
    calls.append(QString("%1(\"%2\")").arg(name, arguments.join("\", \"")));
}

} // namespace

ReferenceBook::Records ReferenceBook::records(std::string const & job, std::string const & step) const
{
    return getReferenceLayerInfo(job, step);
}

void ReferenceBook::setRecords(std::string const & job, std::string const & step, Records const & records)
{
    setReferenceLayerInfo(job, step, records);
    m_owners[job].insert(step);
}

QStringList ReferenceBook::renameJob(std::string const & oldJob, std::string const & newJob)
{
    QStringList calls;
    for (auto const & owner : m_owners) {
        call(calls, "renameReferenceJob", &renameReferenceJob, owner.first, oldJob, newJob);
    }
    call(calls, "renameCompareJob", &renameCompareJob, oldJob, newJob);
    if (auto entry = m_owners.extract(oldJob); !entry.empty()) {
        m_owners.erase(newJob); // replaced, as in the library
        entry.key() = newJob;
        m_owners.insert(std::move(entry));
    }
    return calls;
}

QStringList ReferenceBook::renameStep(std::string const & job, std::string const & oldStep,
                                      std::string const & newStep)
{
    QStringList calls;
    for (auto const & owner : m_owners) {
        call(calls, "renameReferenceStep", &renameReferenceStep, owner.first, job, oldStep, newStep);
    }
    call(calls, "renameCompareStep", &renameCompareStep, job, oldStep, newStep);
    auto const own = m_owners.find(job);
    if (own != m_owners.end() && own->second.erase(oldStep) != 0) {
        own->second.insert(newStep);
    }
    return calls;
}

QStringList ReferenceBook::renameLayer(std::string const & job, std::string const & step,
                                       std::string const & oldLayer, std::string const & newLayer)
{
    QStringList calls;
    for (auto const & owner : m_owners) {
        call(calls, "renameReferenceLayer", &renameReferenceLayer, owner.first, job, step, oldLayer,
             newLayer);
    }
    return calls;
}

QStringList ReferenceBook::deleteJob(std::string const & job)
{
    QStringList calls;
    for (auto const & [owner, steps] : m_owners) {
        for (std::string const & step : steps) {
            call(calls, "deleteReferenceJob", &deleteReferenceJob, owner, step, job);
        }
    }
    call(calls, "resetReferenceLayerInfo", &resetReferenceLayerInfo, job);
    m_owners.erase(job);
    return calls;
}

QStringList ReferenceBook::deleteStep(std::string const & job, std::string const & step)
{
    QStringList calls;
    for (auto const & [owner, steps] : m_owners) {
        for (std::string const & own : steps) {
            call(calls, "deleteReferenceStep", &deleteReferenceStep, owner, own, job, step);
        }
    }
    call(calls, "deleteCompareStep", &deleteCompareStep, job, step);
    if (auto const own = m_owners.find(job); own != m_owners.end()) {
        own->second.erase(step);
        if (own->second.empty()) {
            m_owners.erase(own);
        }
    }
    return calls;
}

QStringList ReferenceBook::deleteLayer(std::string const & job, std::string const & step,
                                       std::string const & layer)
{
    QStringList calls;
    for (auto const & [owner, steps] : m_owners) {
        for (std::string const & own : steps) {
            call(calls, "deleteReferenceLayer", &deleteReferenceLayer, owner, own, job, step, layer);
        }
    }
    return calls;
}

} // namespace Workbench
