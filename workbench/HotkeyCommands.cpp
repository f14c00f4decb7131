#include "HotkeyCommands.h"

#include "BoardView.h"
#include "MainWindow.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace Workbench {

using namespace KVCAM;
using namespace KVCAM::UIAPI;

/// What a code means here. Without a function the host has nothing for it.
struct HotkeyCommands::Command
{
    FuncCode code;
    char const * text; ///< "group: detail" for the commands of a group
    QString (HotkeyCommands::*function)(int) = nullptr;
    int argument = 0;

    static Command const table[];
};

HotkeyCommands::Command const HotkeyCommands::Command::table[] = {
    {KP_NoFunction, ""},
    {KP_AllSelect, QT_TR_NOOP("Select all")},
    {KP_ReverseSelect, QT_TR_NOOP("Reverse the selection")},
    {KP_ShowCAMGuide, QT_TR_NOOP("CAM guide")},
    {KP_Nequtive, QT_TR_NOOP("Negative"), &HotkeyCommands::changeNegative},
    {KP_Profile, QT_TR_NOOP("Profile"), &HotkeyCommands::changeProfile},
    {KP_WidthMode, QT_TR_NOOP("Width mode"), &HotkeyCommands::changeWidth},
    {KP_EditUndo, QT_TR_NOOP("Undo")},
    {KP_EditMoveSamelayer, QT_TR_NOOP("Move within the layer")},
    {KP_EditBuferCopy, QT_TR_NOOP("Copy to the edit buffer")},
    {KP_EditBuferPaste, QT_TR_NOOP("Paste from the edit buffer")},
    {KP_Unnamed11, QT_TR_NOOP("The function without a name")},
    {KP_ToolMoveSnap, QT_TR_NOOP("Move: snap")},
    {KP_ToolMoveHome, QT_TR_NOOP("Move: home")},
    {KP_ToolMoveUp, QT_TR_NOOP("Move: up")},
    {KP_ToolMoveDown, QT_TR_NOOP("Move: down")},
    {KP_ToolMoveRight, QT_TR_NOOP("Move: right")},
    {KP_ToolMoveLeft, QT_TR_NOOP("Move: left")},
    {KP_ToolRefersh, QT_TR_NOOP("Refresh"), &HotkeyCommands::refresh},
    {KP_EditContourize, QT_TR_NOOP("Contourize")},
    {KP_ToolMovePanUp, QT_TR_NOOP("Pan: up")},
    {KP_ToolMovePanDown, QT_TR_NOOP("Pan: down")},
    {KP_ToolMovePanRight, QT_TR_NOOP("Pan: right")},
    {KP_ToolMovePanLeft, QT_TR_NOOP("Pan: left")},
    {KP_Compare, QT_TR_NOOP("Compare")},
    {KP_MoveByMouseCenter, QT_TR_NOOP("Centre at the pointer")},
    {KP_CopyOrignal, QT_TR_NOOP("Copy the original")},
    {KP_Tranform, QT_TR_NOOP("Transform")},
    {KP_SelectSameFeature, QT_TR_NOOP("Select the same features")},
    {KP_ChangeUnit, QT_TR_NOOP("Unit"), &HotkeyCommands::changeUnit},
    {KP_Measure, QT_TR_NOOP("Measure"), &HotkeyCommands::measure},
    {KK_SnapSkeleton, QT_TR_NOOP("Snap: skeleton"), &HotkeyCommands::snap, SNAP_SKELETON},
    {KK_SnapOff, QT_TR_NOOP("Snap: off"), &HotkeyCommands::snap, SNAP_OFF},
    {KK_SnapGrid, QT_TR_NOOP("Snap: grid"), &HotkeyCommands::snap, SNAP_GRID},
    {KK_SnapCenter, QT_TR_NOOP("Snap: centre"), &HotkeyCommands::snap, SNAP_CENTER},
    {KK_SnapArc, QT_TR_NOOP("Snap: arc"), &HotkeyCommands::snap, SNAP_ARC},
    {KK_SnapEdge, QT_TR_NOOP("Snap: edge"), &HotkeyCommands::snap, SNAP_EDGE},
    {KK_SnapIntersect, QT_TR_NOOP("Snap: intersection"), &HotkeyCommands::snap, SNAP_INTERSECT},
    {KK_SnapMidpoint, QT_TR_NOOP("Snap: midpoint"), &HotkeyCommands::snap, SNAP_MIDPOINT},
    {KK_SnapProfile, QT_TR_NOOP("Snap: profile"), &HotkeyCommands::snap, SNAP_PROFILE},
    {KK_SnapAdv, QT_TR_NOOP("Snap: advanced"), &HotkeyCommands::snap, SNAP_ADVANCED},
    {KK_Hightlight, QT_TR_NOOP("Highlight")},
};

namespace {

// A read-only text is one, too: its keys select and copy.
bool hasText(QWidget const & widget)
{
    return qobject_cast<QLineEdit const *>(&widget) != nullptr ||
           qobject_cast<QTextEdit const *>(&widget) != nullptr ||
           qobject_cast<QPlainTextEdit const *>(&widget) != nullptr ||
           qobject_cast<QAbstractSpinBox const *>(&widget) != nullptr ||
           qobject_cast<QComboBox const *>(&widget) != nullptr ||
           qobject_cast<QLabel const *>(&widget) != nullptr;
}

// "S ... G grid, O off": what is left of the sequences that the pending key begins; empty if there are none.
QString pendingText()
{
    QStringList following;
    for (Ext::HotkeyContinuation const & next : Ext::continuations()) {
        following.append(next.key + ' ' + HotkeyCommands::text(next.code).section(": ", -1));
    }
    return following.isEmpty() ? QString() : Ext::pendingKey() + " ... " + following.join(", ");
}

QString onOff(bool on)
{
    return on ? HotkeyCommands::tr("on") : HotkeyCommands::tr("off");
}

} // namespace

HotkeyCommands::HotkeyCommands(MainWindow & window, QWidget & board, QObject * parent)
    : QObject(parent), m_window(window), m_board(board)
{
    for (BoardView * each : window.views()) {
        each->setFocusPolicy(Qt::StrongFocus);
    }
    window.currentView()->setFocus();
    qApp->installEventFilter(this);
}

HotkeyCommands::Command const & HotkeyCommands::command(FuncCode code)
{
    auto const found = std::find_if(std::begin(Command::table), std::end(Command::table),
                                    [code](Command const & each) { return each.code == code; });
    return found == std::end(Command::table) ? Command::table[0] : *found;
}

QString HotkeyCommands::text(FuncCode code)
{
    return tr(command(code).text);
}

bool HotkeyCommands::isAvailable(FuncCode code)
{
    return command(code).function != nullptr;
}

QString HotkeyCommands::run(FuncCode code)
{
    Command const & chosen = command(code);
    QString const result = chosen.function != nullptr ? (this->*chosen.function)(chosen.argument)
                                                      : tr("not available in this host");
    return result.isEmpty() ? text(code) : tr("%1: %2").arg(text(code), result);
}

// A key that its receiver ignores is sent to the parents as well: only the first receiver counts.
bool HotkeyCommands::isOurs(QObject * receiver) const
{
    QWidget const * const focus = m_window.focusWidget();
    QWidget const * const first = focus != nullptr ? focus : &m_window;
    return receiver == first && m_board.isVisible() && !hasText(*first);
}

bool HotkeyCommands::eventFilter(QObject * receiver, QEvent * event)
{
    return event->type() == QEvent::KeyPress && isOurs(receiver) && press(static_cast<QKeyEvent &>(*event));
}

bool HotkeyCommands::press(QKeyEvent & event)
{
    if (event.isAutoRepeat()) { // a key held down is no second one, and switches nothing back
        return false;
    }
    FuncCode const code = KVHotKey::getInstance()->getFunctionCode(&event);
    QStringList lines;
    if (code != KP_NoFunction) {
        lines.append(run(code));
    }
    QString const pending = pendingText();
    if (!pending.isEmpty()) {
        lines.append(pending);
    }
    emit told(lines.join("   |   "));
    return !lines.isEmpty();
}

void const * HotkeyCommands::view() const
{
    return m_window.currentView()->handle();
}

QString HotkeyCommands::changeUnit(int /*argument*/)
{
    setUnit(view(), getUnit(view()) == 0 ? 1 : 0);
    return QString::fromStdString(getUnitString(view()));
}

QString HotkeyCommands::changeNegative(int /*argument*/)
{
    setNegative(view(), !getNegative(view()));
    return onOff(getNegative(view()));
}

QString HotkeyCommands::changeProfile(int /*argument*/)
{
    setProfile(view(), !getProfile(view()));
    return onOff(getProfile(view()));
}

QString HotkeyCommands::changeWidth(int /*argument*/)
{
    setWidth(view(), getWidth(view()) == 0 ? 1 : 0);
    return onOff(getWidth(view()) != 0);
}

QString HotkeyCommands::refresh(int /*argument*/)
{
    m_window.refresh();
    return {};
}

// The first press takes the pointer's place, the second tells how far the pointer is from there.
QString HotkeyCommands::measure(int /*argument*/)
{
    BoardView const & shown = *m_window.currentView();
    coordinate const * const pointer = getCoordinate(view());
    if (pointer == nullptr) {
        return {};
    }
    QPointF const place(pointer->x, pointer->y);
    if (m_measured != &shown) {
        m_measured = &shown;
        m_measuredFrom = place;
        return tr("from %1; once more at the other end").arg(shown.positionText(place.x(), place.y()));
    }
    m_measured = nullptr;
    QPointF const way = place - m_measuredFrom;
    return tr("%1 %2 (%3)")
        .arg(getUnitJudgeStringMetric(view(), std::hypot(way.x(), way.y())),
             QString::fromStdString(getUnitStringType(view(), 0)),
             shown.sizeText(std::abs(way.x()), std::abs(way.y())));
}

QString HotkeyCommands::snap(int mode)
{
    setSnapType(view(), static_cast<SNAP_TYPE_MODE>(mode));
    return {};
}

} // namespace Workbench
