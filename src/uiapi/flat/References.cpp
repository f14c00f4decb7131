#include "uiapi/flat/References.h"

#include "uiapi/flat/Forward.h"

namespace KVCAM::UIAPI {

using Flat::onCommonPara;

void setReferenceLayerInfo(std::string const & job, std::string const & step,
                           std::vector<ReferenceLayerInfo> const & layers)
{
    onCommonPara([&](auto & para) { para.setReferenceLayerInfo(job, step, layers); });
}

std::vector<ReferenceLayerInfo> getReferenceLayerInfo(std::string const & job, std::string const & step)
{
    return onCommonPara([&](auto & para) { return para.getReferenceLayerInfo(job, step); });
}

void resetReferenceLayerInfo(std::string const & job)
{
    onCommonPara([&](auto & para) { para.resetReferenceLayerInfo(job); });
}

void renameReferenceJob(std::string const & job, std::string const & oldJob, std::string const & newJob)
{
    onCommonPara([&](auto & para) { para.renameReferenceJob(job, oldJob, newJob); });
}

void renameReferenceStep(std::string const & job, std::string const & refJob, std::string const & oldStep,
                         std::string const & newStep)
{
    onCommonPara([&](auto & para) { para.renameReferenceStep(job, refJob, oldStep, newStep); });
}

void renameReferenceLayer(std::string const & job, std::string const & refJob, std::string const & refStep,
                          std::string const & oldLayer, std::string const & newLayer)
{
    onCommonPara([&](auto & para) { para.renameReferenceLayer(job, refJob, refStep, oldLayer, newLayer); });
}

void deleteReferenceJob(std::string const & job, std::string const & step, std::string const & refJob)
{
    onCommonPara([&](auto & para) { para.deleteReferenceJob(job, step, refJob); });
}

void deleteReferenceStep(std::string const & job, std::string const & step, std::string const & refJob,
                         std::string const & refStep)
{
    onCommonPara([&](auto & para) { para.deleteReferenceStep(job, step, refJob, refStep); });
}

void deleteReferenceLayer(std::string const & job, std::string const & step, std::string const & refJob,
                          std::string const & refStep, std::string const & refLayer)
{
    onCommonPara([&](auto & para) { para.deleteReferenceLayer(job, step, refJob, refStep, refLayer); });
}

void renameCompareJob(std::string const & oldJob, std::string const & newJob)
{
    onCommonPara([&](auto & para) { para.renameCompareJob(oldJob, newJob); });
}

void renameCompareStep(std::string const & job, std::string const & oldStep, std::string const & newStep)
{
    onCommonPara([&](auto & para) { para.renameCompareStep(job, oldStep, newStep); });
}

void deleteCompareStep(std::string const & job, std::string const & step)
{
    onCommonPara([&](auto & para) { para.deleteCompareStep(job, step); });
}

std::vector<std::pair<std::string, int>> getDrawingLayer(std::string const & job, std::string const & step)
{
    return onCommonPara([&](auto & para) { return para.getDrawingLayer(job, step); });
}

void setDrawingLayer(std::string const & job, std::string const & step,
                     std::vector<std::pair<std::string, int>> const & layers)
{
    onCommonPara([&](auto & para) { para.setDrawingLayer(job, step, layers); });
}

void resetDrawingLayer(std::string const & job)
{
    onCommonPara([&](auto & para) { para.resetDrawingLayer(job); });
}

} // namespace KVCAM::UIAPI
