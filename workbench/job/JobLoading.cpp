#include "job/JobLoading.h"

#include <UIAPICommon.h>

#include <QCoreApplication>

namespace Workbench {

bool readLayers(Session & session)
{
    // Texts and range are set afterwards: the library's constructor uses the parent only.
    KVProgressDialog progress;
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

} // namespace Workbench
