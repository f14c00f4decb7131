#include "window/Measuring.h"

#include "board/BoardTexts.h"
#include "board/BoardView.h"
#include "board/MeasureLine.h"
#include "board/SnapPoint.h"
#include "ui/Units.h"
#include "window/BoardPage.h"
#include "window/HotkeyCommands.h"

#include <UIAPICommon.h>

#include <QShortcut>

#include <optional>

namespace Workbench {

using namespace KVCAM::UIAPI;

namespace {

constexpr double reach = 12; // pixels within which a place snaps

} // namespace

Measuring::Measuring(BoardPage & board) : m_board(board), m_escape(new QShortcut(Qt::Key_Escape, &board))
{
    m_escape->setEnabled(false);
    connect(m_escape, &QShortcut::activated, this, [this] {
        end();
        emit status({});
    });
    connect(&board, &BoardPage::pointerMoved, this, &Measuring::follow);
    connect(&board, &BoardPage::stepChanged, this, &Measuring::end);
}

QString Measuring::press()
{
    BoardView & view = *m_board.currentView();
    if (getCoordinate(view.handle()) == nullptr) {
        return {};
    }
    QPointF const place = snappedPointer();
    if (m_isOpen && m_view == &view) {
        m_isOpen = false;
        view.setMeasure(QLineF(m_from, place));
        return measuredLineText(view.handle(), {m_from, place});
    }
    end();
    m_view = &view;
    m_escape->setEnabled(true);
    m_isOpen = true;
    m_from = place;
    view.setMeasure(QLineF(place, place));
    return HotkeyCommands::tr("from %1; press again at the other end, Escape ends")
        .arg(positionText(view.handle(), place.x(), place.y()));
}

void Measuring::end()
{
    if (m_view != nullptr) {
        m_view->setMeasure(std::nullopt);
    }
    m_view = nullptr;
    m_isOpen = false;
    m_escape->setEnabled(false);
}

void Measuring::follow()
{
    if (m_isOpen && m_view == m_board.currentView()) {
        QLineF const line(m_from, snappedPointer());
        m_view->setMeasure(line);
        emit status(HotkeyCommands::text(KVCAM::KP_Measure) + ": " +
                    measuredLineText(m_view->handle(), line));
    }
}

// The snap size counts in the view's small unit.
QPointF Measuring::snappedPointer() const
{
    BoardView const & view = *m_board.currentView();
    coordinate const & pointer = *getCoordinate(view.handle());
    double const grid = getSnapSize(view.handle()) * micrometresPer(Ext::unitOf(view.handle()));
    return snapped({pointer.x, pointer.y}, getSnapType(view.handle()),
                   {view.shapes(), view.profile(), grid, view.micrometresOf(reach)});
}

} // namespace Workbench
