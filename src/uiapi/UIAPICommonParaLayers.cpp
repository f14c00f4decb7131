// Layers, references and files of jobs. The rules are in layers/.

#include "config/UIAPIGlobalVar.h"
#include "layers/JobFiles.h"
#include "layers/LayerFilter.h"
#include "links/JobServer.h"
#include "support/Log.h"
#include "uiapi/UIAPICommonParaPrivate.h"

#include <kvcam/Engine.h>

namespace KVCAM::UIAPI {
namespace {

LayerFilter::Layers matrixOf(QString const & job)
{
    std::vector<std::string> steps;
    LayerFilter::Layers layers;
    KVCAM::API::get_matrix(job.toStdString(), steps, layers);
    return layers;
}

} // namespace

void UIAPICommonPara::selectLayersByType(QString const & job, std::vector<std::string> & out,
                                         QMap<QString, QString> filters) const
{
    guardedPara([&] {
        auto const names = LayerFilter::select(matrixOf(job), filters);
        out.insert(out.end(), names.begin(), names.end());
    });
}

void UIAPICommonPara::fillLayerTypeFilters(QMap<QString, QString>::iterator & entry,
                                           QVector<QString> & filterWords, QString const & key) const
{
    guardedPara([&] {
        if (entry.key() == key) {
            LayerFilter::appendWords(entry.value(), filterWords);
        }
    });
}

bool UIAPICommonPara::TypeLayersFilter(layer_info & layer, QVector<QString> & words) const
{
    return guardedPara([&] { return LayerFilter::accepts(LayerFilter::Key::Type, layer, words); });
}

bool UIAPICommonPara::ContextLayersFilter(layer_info & layer, QVector<QString> & words) const
{
    return guardedPara([&] { return LayerFilter::accepts(LayerFilter::Key::Context, layer, words); });
}

bool UIAPICommonPara::SideLayersFilter(layer_info & layer, QVector<QString> & words,
                                       std::vector<std::string> & boardSignalLayers) const
{
    return guardedPara(
        [&] { return LayerFilter::accepts(LayerFilter::Key::Side, layer, words, boardSignalLayers); });
}

bool UIAPICommonPara::PosLayersFilter(layer_info & layer, QVector<QString> & words) const
{
    return guardedPara([&] { return LayerFilter::accepts(LayerFilter::Key::Pos, layer, words); });
}

void UIAPICommonPara::getAffectLayers(std::vector<std::string> & out) const
{
    guardedPara([&] { out = d->layers.affect.all(); });
}

void UIAPICommonPara::setAffectLayers(std::vector<std::string> const & layers)
{
    guardedPara([&] { d->layers.affect.layers = layers; });
}

void UIAPICommonPara::setWorkLayer(std::string const & layer)
{
    guardedPara([&] { d->layers.affect.workLayer = layer; });
}

// All steps share the layers of the matrix.
std::vector<std::string> UIAPICommonPara::getAnalyzeAndDFMLayers(QString const & job,
                                                                 QString const & /*step*/) const
{
    return guardedPara(
        [&] { return job.isEmpty() ? std::vector<std::string>() : LayerFilter::analysable(matrixOf(job)); });
}

void UIAPICommonPara::setReferenceLayerInfo(std::string const & job, std::string const & step,
                                            std::vector<ReferenceLayerInfo> const & layers)
{
    guardedPara([&] { d->layers.references.set(job, step, layers); });
}

std::vector<ReferenceLayerInfo> UIAPICommonPara::getReferenceLayerInfo(std::string const & job,
                                                                       std::string const & step) const
{
    return guardedPara([&] { return d->layers.references.get(job, step); });
}

void UIAPICommonPara::resetReferenceLayerInfo(std::string const & job)
{
    guardedPara([&] { d->layers.references.reset(job); });
}

void UIAPICommonPara::renameReferenceJob(std::string const & job, std::string const & oldJob,
                                         std::string const & newJob)
{
    guardedPara([&] { d->layers.references.renameReferenceJob(job, oldJob, newJob); });
}

void UIAPICommonPara::renameReferenceStep(std::string const & job, std::string const & refJob,
                                          std::string const & oldStep, std::string const & newStep)
{
    guardedPara([&] { d->layers.references.renameReferenceStep(job, refJob, oldStep, newStep); });
}

void UIAPICommonPara::renameReferenceLayer(std::string const & job, std::string const & refJob,
                                           std::string const & refStep, std::string const & oldLayer,
                                           std::string const & newLayer)
{
    guardedPara([&] { d->layers.references.renameReferenceLayer(job, refJob, refStep, oldLayer, newLayer); });
}

void UIAPICommonPara::deleteReferenceJob(std::string const & job, std::string const & step,
                                         std::string const & refJob)
{
    guardedPara([&] { d->layers.references.deleteReferenceJob(job, step, refJob); });
}

void UIAPICommonPara::deleteReferenceStep(std::string const & job, std::string const & step,
                                          std::string const & refJob, std::string const & refStep)
{
    guardedPara([&] { d->layers.references.deleteReferenceStep(job, step, refJob, refStep); });
}

void UIAPICommonPara::deleteReferenceLayer(std::string const & job, std::string const & step,
                                           std::string const & refJob, std::string const & refStep,
                                           std::string const & refLayer)
{
    guardedPara([&] { d->layers.references.deleteReferenceLayer(job, step, refJob, refStep, refLayer); });
}

void UIAPICommonPara::renameCompareJob(std::string const & oldJob, std::string const & newJob)
{
    guardedPara([&] { d->layers.references.renameCompareJob(oldJob, newJob); });
}

void UIAPICommonPara::renameCompareStep(std::string const & job, std::string const & oldStep,
                                        std::string const & newStep)
{
    guardedPara([&] { d->layers.references.renameCompareStep(job, oldStep, newStep); });
}

void UIAPICommonPara::deleteCompareStep(std::string const & job, std::string const & step)
{
    guardedPara([&] { d->layers.references.deleteCompareStep(job, step); });
}

std::vector<std::pair<std::string, int>> UIAPICommonPara::getDrawingLayer(std::string const & job,
                                                                          std::string const & step) const
{
    return guardedPara([&] { return d->layers.drawings.get(job, step); });
}

void UIAPICommonPara::setDrawingLayer(std::string const & job, std::string const & step,
                                      std::vector<std::pair<std::string, int>> const & layers)
{
    guardedPara([&] { d->layers.drawings.set(job, step, layers); });
}

void UIAPICommonPara::resetDrawingLayer(std::string const & job)
{
    guardedPara([&] { d->layers.drawings.reset(job); });
}

// One text for all jobs; callers rely on getting it for any job name.
std::string UIAPICommonPara::getJobJsonPara(std::string /*job*/) const
{
    return guardedPara([&] { return d->layers.jobJson; });
}

void UIAPICommonPara::setJobJsonPara(std::string const & /*job*/, std::string const & text)
{
    guardedPara([&] { d->layers.jobJson = text; });
}

bool UIAPICommonPara::saveTextByIODevice(QString const & path, QString const & text) const
{
    return guardedPara([&] { return JobFiles::saveTextByIODevice(path, text); });
}

bool UIAPICommonPara::checkDir(QString const & path) const
{
    return guardedPara([&] { return JobFiles::checkDir(path); });
}

bool UIAPICommonPara::delDir(std::string const & path, bool removeSelf) const
{
    return guardedPara([&] { return JobFiles::delDir(path, removeSelf); });
}

bool UIAPICommonPara::copyDirectoryFile(QString const & from, QString const & to, bool overwrite) const
{
    return guardedPara([&] { return JobFiles::copyDirectoryFile(from, to, overwrite); });
}

QString UIAPICommonPara::formatTime(qint64 milliseconds) const
{
    return guardedPara([&] { return JobFiles::formatTime(milliseconds); });
}

bool UIAPICommonPara::deletGeneJob(std::string const & job) const
{
    return guardedPara([&] {
        UIAPIGlobalVar const & global = *UIAPIGlobalVar::instance();
        bool const isDeleted =
            JobServer::deleteJob(global.getServerIP(), global.getServerPort(), global.getTimeout(), job);
        if (!isDeleted) {
            Log::operationError("deletGeneJob");
        }
        return isDeleted;
    });
}

} // namespace KVCAM::UIAPI
