// What a board view says: places and sizes in its unit, and why nothing is drawn.
#include "board/BoardView.h"

#include <UIAPICommon.h>

namespace Workbench {

using namespace KVCAM::UIAPI;

QString BoardView::emptyText() const
{
    if (!features().empty() || !m_beside.empty()) {
        return {};
    }
    QString const name = QString::fromStdString(layer());
    if (name.isEmpty()) {
        return tr("No layer is shown");
    }
    switch (m_shown->state()) {
    case LayerPicture::State::CutToTables:
        return tr("The job holds only the tables of the layer %1").arg(name);
    case LayerPicture::State::Unreadable:
        return tr("The layer %1 cannot be read: see the log").arg(name);
    case LayerPicture::State::Read:
        break;
    }
    return tr("The layer %1 has no features in this step").arg(name);
}

QString BoardView::positionText(double x, double y) const
{
    return QString("x %1 y %2 %3")
        .arg(getUnitJudgeStringMetric(handle(), x), getUnitJudgeStringMetric(handle(), y),
             QString::fromStdString(getUnitStringType(handle(), 0)));
}

QString BoardView::finePositionText(double x, double y) const
{
    auto const text = [this](double value) { // a thousandth of the large unit, whichever it is
        return QString::number(getUnitPointData(handle(), value) * 1000, 'f', 2);
    };
    return QString("(x %1 y %2 %3)")
        .arg(text(x), text(y), QString::fromStdString(getUnitStringType(handle(), 1)));
}

QString BoardView::sizeText(double width, double height) const
{
    return QString("%1 x %2 %3")
        .arg(getUnitJudgeStringMetric(handle(), width), getUnitJudgeStringMetric(handle(), height),
             QString::fromStdString(getUnitStringType(handle(), 0)));
}

} // namespace Workbench
