#include "board/BoardTexts.h"

#include "board/LayerShapes.h"
#include "ui/Units.h"

#include <UIAPICommon.h>

#include <QCoreApplication>

namespace Workbench {

using namespace KVCAM::UIAPI;

namespace {

// The texts were a board view's own, and have kept its context in the catalogue.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Workbench::BoardView)
};

} // namespace

QString positionText(void const * view, double x, double y)
{
    return QString("x %1 y %2 %3")
        .arg(getUnitJudgeStringMetric(view, x), getUnitJudgeStringMetric(view, y), unitName(view, 0));
}

QString finePositionText(void const * view, double x, double y)
{
    auto const text = [view](double value) { // the small unit is a thousandth of the large one
        return QString::number(getUnitPointData(view, value) * 1000, 'f', 2);
    };
    return QString("(x %1 y %2 %3)").arg(text(x), text(y), unitName(view, 1));
}

QString sizeText(void const * view, double width, double height)
{
    return QString("%1 x %2 %3")
        .arg(getUnitJudgeStringMetric(view, width), getUnitJudgeStringMetric(view, height),
             unitName(view, 0));
}

QString emptyLayerText(LayerShapes const & layer)
{
    QString const name = QString::fromStdString(layer.info().name);
    if (name.isEmpty()) {
        return Texts::tr("No layer is shown");
    }
    switch (layer.state()) {
    case LayerShapes::State::CutToTables:
        return Texts::tr("The job holds only the tables of the layer %1").arg(name);
    case LayerShapes::State::Unreadable:
        return Texts::tr("The layer %1 cannot be read: see the log").arg(name);
    case LayerShapes::State::Read:
        break;
    }
    return Texts::tr("The layer %1 has no features in this step").arg(name);
}

} // namespace Workbench
