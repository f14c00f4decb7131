#include "job/Session.h"

#include <glog/logging.h>

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <atomic>
#include <utility>

namespace Workbench {

namespace {

QString failure(QString const & path, std::string const & reason)
{
    return QString("cannot open the job \"%1\": ").arg(QDir::toNativeSeparators(path)) +
           QString::fromStdString(reason).simplified();
}

// The engine's error, which tells a failure from an empty list.
QString readingError()
{
    return QString::fromStdString(KVCAM::Embedded::lastError()).simplified();
}

} // namespace

bool Session::runHere(KVCAM::Embedded::Reading reading)
{
    std::atomic<bool> const never{false};
    reading.run(never);
    return true;
}

QString Session::open(QString const & path, Runner const & run)
{
    using KVCAM::Embedded::Reading;
    QFileInfo const entry(path);
    if (!entry.isFile() && !entry.isDir()) {
        return failure(path, entry.exists() ? "it is neither a directory nor an archive"
                                            : "there is no such directory or archive");
    }
    Reading reading = entry.isFile()
                          ? Reading::ofArchive(path.toStdString())
                          : Reading::ofJob(entry.path().toStdString(), entry.fileName().toStdString());
    if (!run(reading)) {
        return failure(path, "it was stopped");
    }
    if (!reading.adopt()) {
        return failure(path, KVCAM::Embedded::lastError());
    }
    std::string const job = reading.job();
    std::vector<std::string> names;
    std::vector<KVCAM::API::layer_info> layers;
    std::string const error = KVCAM::API::get_matrix(job, names, layers);
    if (!error.empty()) {
        return failure(path, error);
    }
    if (names.empty()) {
        return failure(path, "its matrix has no steps");
    }
    m_directory = path;
    m_isStopped = false;
    m_job = job;
    m_steps.clear();
    for (std::string const & name : names) {
        KVCAM::Embedded::Box box;
        bool const hasOutline = KVCAM::Embedded::profileBox(job, name, box);
        m_steps.push_back({name, hasOutline ? std::optional(box) : std::nullopt, {}});
        for (KVCAM::Embedded::StepRepeat const & repeat : KVCAM::Embedded::stepRepeats(job, name)) {
            m_steps.back().repeats[repeat.name] += static_cast<long long>(repeat.nx) * repeat.ny;
        }
    }
    m_layers.clear();
    for (KVCAM::API::layer_info const & info : layers) {
        m_layers.push_back({info, {}, {}});
    }
    return {};
}

bool Session::countFeatures(Layer & layer, Runner const & run) const
{
    layer.features.clear();
    layer.errors.clear();
    for (Step const & step : m_steps) {
        auto reading = KVCAM::Embedded::Reading::ofLayer(m_job, step.name, layer.info.name);
        if (!run(reading)) {
            layer.features.clear();
            layer.errors.clear();
            return false;
        }
        bool const isRead = reading.adopt();
        QStringList errors{readingError(), QString::fromStdString(reading.toolsError()).simplified()};
        errors.removeAll(QString());
        bool const isKnown = isRead && !KVCAM::Embedded::isCutToTables(m_job, step.name, layer.info.name);
        layer.features.push_back(
            isKnown ? std::optional(KVCAM::Embedded::featureCount(m_job, step.name, layer.info.name))
                    : std::nullopt);
        for (QString const & error : errors) {
            LOG(ERROR) << "workbench: cannot read layer " << layer.info.name << " of step " << step.name
                       << ": " << error.toStdString();
        }
        layer.errors.push_back(errors.join('\n'));
    }
    return true;
}

void Session::recount(std::size_t step)
{
    for (Layer & layer : m_layers) {
        if (step < layer.features.size() && layer.features[step]) {
            layer.features[step] =
                KVCAM::Embedded::featureCount(m_job, m_steps.at(step).name, layer.info.name);
        }
    }
}

bool Session::hasStep(QString const & name) const
{
    return std::any_of(m_steps.begin(), m_steps.end(), [&](Step const & step) {
        return QString::fromStdString(step.name).compare(name, Qt::CaseInsensitive) == 0;
    });
}

int Session::firstCopperLayer(std::string const & step) const
{
    for (std::size_t i = 0; i < m_layers.size(); ++i) {
        KVCAM::API::layer_info const & info = m_layers[i].info;
        bool const mayBeRead = !m_isStopped || !m_layers[i].features.empty();
        if (info.context != "board" || info.type != "signal" || !mayBeRead) {
            continue;
        }
        auto const features = KVCAM::Embedded::features(m_job, step, info.name);
        if (std::any_of(features.begin(), features.end(), [](auto const & f) { return f.kind == 'P'; })) {
            return static_cast<int>(i);
        }
    }
    return m_isStopped ? -1 : 0;
}

} // namespace Workbench
