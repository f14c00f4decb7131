#include "board/BoardSigns.h"

#include "ui/Colours.h"
#include "ui/Units.h"

#include <UIAPICommon.h>

#include <QFontMetricsF>
#include <QLineF>
#include <QPainter>

#include <cmath>

namespace Workbench {

namespace {

constexpr int scaleMargin = 28;      // pixels to the left of the scale bar
constexpr double longestScale = 160; // pixels
constexpr double markRadius = 9;     // pixels

} // namespace

void paintMarks(QPainter & painter, std::vector<Mark> const & marks, QTransform const & boardToWidget)
{
    QRectF const shown =
        QRectF(painter.viewport()).adjusted(-markRadius, -markRadius, markRadius, markRadius);
    painter.save();
    QFont font = painter.font();
    font.setBold(true);
    painter.setFont(font);
    for (Mark const & mark : marks) {
        QPointF const place = boardToWidget.map(QPointF(mark.x, mark.y));
        if (!shown.contains(place)) {
            continue;
        }
        QRectF const sign(place - QPointF(markRadius, markRadius), QSizeF(2 * markRadius, 2 * markRadius));
        painter.setOpacity(mark.isFaint ? 0.4 : 1);
        painter.setPen(QPen(Qt::white, 1.5));
        painter.setBrush(mark.colour);
        painter.drawEllipse(sign);
        painter.setPen(qGray(mark.colour.rgb()) < 150 ? Qt::white : Qt::black);
        painter.drawText(sign, Qt::AlignCenter, mark.letter);
    }
    painter.restore();
}

int markAt(QPointF pixel, std::vector<Mark> const & marks, QTransform const & boardToWidget)
{
    for (std::size_t i = marks.size(); i-- > 0;) {
        QPointF const place = boardToWidget.map(QPointF(marks[i].x, marks[i].y));
        if (QLineF(place, pixel).length() <= markRadius) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

void paintLengthScale(QPainter & painter, void const * view, double scale)
{
    using namespace KVCAM::UIAPI;
    double const perLargeUnit = 1000.0 / getUnitPointData(view, 1000.0); // micrometres
    double const available = longestScale / scale / perLargeUnit;
    if (!(available > 0) || !std::isfinite(available)) {
        return;
    }
    // Below a thousandth of the large unit the library's texts would show only zeros.
    bool const isSmall = available < 0.005;
    double const perUnit = isSmall ? perLargeUnit / 1000 : perLargeUnit;
    double const room = longestScale / scale / perUnit;
    double const decade = std::pow(10, std::floor(std::log10(room)));
    double const length = room >= 5 * decade ? 5 * decade : room >= 2 * decade ? 2 * decade : decade;
    double const pixels = length * perUnit * scale;
    QString const text = QString::number(length) + ' ' + unitName(view, isSmall ? 1 : 0);
    double const bottom = painter.viewport().height();
    QLineF const bar(scaleMargin, bottom - 10, scaleMargin + pixels, bottom - 10);
    double const textWidth = QFontMetricsF(painter.font()).horizontalAdvance(text);
    painter.fillRect(QRectF(scaleMargin - 8, bottom - 24, pixels + textWidth + 24, 24), Qt::white);
    painter.setPen(QPen(QColor(inkColour), 2));
    painter.drawLine(bar);
    painter.drawText(QPointF(bar.x2() + 8, bar.y2() + 4), text);
}

} // namespace Workbench
