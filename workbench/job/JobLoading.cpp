#include "job/JobLoading.h"

#include <EmbeddedEngine.h>

#include <glog/logging.h>

#include <QCoreApplication>

namespace Workbench {

bool readLayers(Session & session)
{
    ReadingProgress progress(
        QCoreApplication::translate("Workbench", "Opening %1").arg(QString::fromStdString(session.job())));
    return readLayers(session, progress);
}

bool readLayers(Session & session, ReadingProgress & progress)
{
    progress.setCount(static_cast<int>((session.layers().size() + 1) * session.steps().size()));
    for (Session::Layer & layer : session.layers()) {
        progress.setText(QCoreApplication::translate("Workbench", "Reading layer %1 (F1 stops)")
                             .arg(QString::fromStdString(layer.info.name)));
        if (!session.countFeatures(layer,
                                   [&progress](auto const & reading) { return progress.run(reading); })) {
            session.setStopped();
            return false;
        }
    }
    // Otherwise, the first feature that is selected would wait for them.
    progress.setText(QCoreApplication::translate("Workbench", "Reading the nets (F1 stops)"));
    for (Session::Step const & step : session.steps()) {
        auto nets = KVCAM::Embedded::Reading::ofNets(session.job(), step.name);
        if (!progress.run(nets)) {
            return false;
        }
        nets.adopt(); // what is wrong with them is told when they are used
    }
    return true;
}

QStringList repeatLines(Session const & session)
{
    QStringList lines;
    for (Session::Step const & step : session.steps()) {
        for (auto const & [name, count] : step.repeats) {
            lines.append(QString("Step %1 repeats %2 %3 times")
                             .arg(QString::fromStdString(step.name), QString::fromStdString(name))
                             .arg(count));
        }
    }
    return lines;
}

void logOpened(Session const & session)
{
    LOG(INFO) << "workbench: opened the job " << session.job() << " with " << session.steps().size()
              << " step(s) and " << session.layers().size() << " layers";
    QStringList const lines = repeatLines(session);
    for (QString const & line : lines) {
        LOG(INFO) << "workbench: " << line.toStdString();
    }
}

} // namespace Workbench
