#include "job/JobLoading.h"

#include <UIAPICommon.h>

#include <glog/logging.h>

#include <QCoreApplication>

namespace Workbench {

bool readLayers(Session & session)
{
    // Texts and range are set afterwards: the library's constructor uses the parent only.
    KVProgressDialog progress;
    progress.setMinimumDuration(300); // milliseconds
    progress.setWindowTitle(
        QCoreApplication::translate("Workbench", "Opening %1").arg(QString::fromStdString(session.job())));
    progress.setRange(0, static_cast<int>(session.layers().size()));
    progress.setCancelButtonText(QCoreApplication::translate("Workbench", "Stop"));
    progress.setWindowModality(Qt::ApplicationModal);
    int done = 0;
    for (Session::Layer & layer : session.layers()) {
        progress.setLabelText(QCoreApplication::translate("Workbench", "Reading layer %1 (F1 stops)")
                                  .arg(QString::fromStdString(layer.info.name)));
        progress.setValue(done++);
        if (progress.isDialogStop() || progress.wasCanceled()) {
            return false;
        }
        session.countFeatures(layer);
    }
    progress.setValue(done);
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
