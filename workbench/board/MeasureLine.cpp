#include "board/MeasureLine.h"

#include "ui/Colours.h"
#include "ui/Units.h"

#include <QPainter>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace Workbench {

namespace {

using KVCAM::UIAPI::Ext::Length;
using KVCAM::UIAPI::Ext::LengthScale;

// With so many decimals that a tenth of a micrometre shows.
QString numberText(double micrometres, Unit unit, LengthScale scale)
{
    bool const isLarge = scale == LengthScale::Large;
    int const decimals = unit == Unit::Inch ? (isLarge ? 6 : 3) : (isLarge ? 4 : 1);
    return Length::fromMicrometres(micrometres).text(unit, scale, decimals);
}

QString suffix(Unit unit, LengthScale scale)
{
    return unitSuffix(unit, scale, KVCAM::UIAPI::Ext::MicrometreSign::Mu);
}

QString lengthText(double length, Unit unit)
{
    return QString("%1 %2 (%3 %4)")
        .arg(numberText(length, unit, LengthScale::Large), suffix(unit, LengthScale::Large),
             numberText(length, unit, LengthScale::Small), suffix(unit, LengthScale::Small));
}

} // namespace

QString measuredLineText(void const * view, QLineF const & line)
{
    Unit const unit = KVCAM::UIAPI::Ext::unitOf(view);
    auto const part = [unit](double length) {
        return numberText(std::abs(length), unit, LengthScale::Large);
    };
    double const length = std::hypot(line.dx(), line.dy());
    return QString("%1 = %2, x %3 y %4 %5")
        .arg(lengthText(length, unit), lengthText(length, otherUnit(unit)), part(line.dx()), part(line.dy()),
             suffix(unit, LengthScale::Large));
}

void paintMeasuredLine(QPainter & painter, void const * view, QLineF const & line,
                       QTransform const & boardToWidget)
{
    QLineF const shown = boardToWidget.map(line);
    painter.save();
    painter.setPen(QPen(Qt::white, 4));
    painter.drawLine(shown);
    painter.setPen(QPen(QColor(inkColour), 1.5, Qt::DashLine));
    painter.drawLine(shown);
    painter.setPen(QPen(QColor(inkColour), 1.5));
    painter.setBrush(Qt::white);
    for (QPointF const & end : {shown.p1(), shown.p2()}) {
        painter.drawEllipse(end, 4, 4);
    }
    Unit const unit = KVCAM::UIAPI::Ext::unitOf(view);
    double const length = std::hypot(line.dx(), line.dy());
    QString const text = lengthText(length, unit) + '\n' + lengthText(length, otherUnit(unit));
    QRectF box = painter.fontMetrics().boundingRect(QRect(0, 0, 2000, 200), Qt::AlignLeft, text);
    box.adjust(-5, -3, 5, 3);
    box.moveTopLeft(shown.p2() + QPointF(12, 12));
    QRectF const room = painter.viewport();
    box.moveLeft(std::max(room.left(), std::min(box.left(), room.right() - box.width())));
    box.moveTop(std::max(room.top(), std::min(box.top(), room.bottom() - box.height())));
    painter.setPen(QColor(inkColour));
    painter.drawRect(box);
    painter.drawText(box, Qt::AlignCenter, text);
    painter.restore();
}

} // namespace Workbench
