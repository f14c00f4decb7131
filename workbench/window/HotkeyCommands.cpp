#include "window/HotkeyCommands.h"

#include "board/BoardView.h"
#include "feature/FeaturePane.h"
#include "ui/Units.h"
#include "window/BoardPage.h"
#include "window/Measuring.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

namespace Workbench {

using namespace KVCAM;
using namespace KVCAM::UIAPI;

namespace {

enum Direction
{
    Up,
    Down,
    Right,
    Left
};

/// The direction of a move, in sizes of the view.
QPointF way(int direction, double part)
{
    switch (direction) {
    case Up:
        return {0, part};
    case Down:
        return {0, -part};
    case Right:
        return {part, 0};
    default:
        return {-part, 0};
    }
}

} // namespace

/// What a code does here. Without a function it is not available in this host.
struct HotkeyCommands::Command
{
    FuncCode code;
    char const * text; ///< "group: detail" for the commands of a group, in every language
    QString (HotkeyCommands::*function)(int) = nullptr;
    int argument = 0;
    bool repeats = false; ///< a key that is held down repeats it

    static Command const table[];
};

HotkeyCommands::Command const HotkeyCommands::Command::table[] = {
    {KP_NoFunction, ""},
    {KP_AllSelect, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Select all"), &HotkeyCommands::selectAll},
    {KP_ReverseSelect, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Reverse the selection"),
     &HotkeyCommands::reverseSelection},
    {KP_ShowCAMGuide, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "CAM guide")},
    {KP_Nequtive, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Negative"),
     &HotkeyCommands::changeNegative},
    {KP_Profile, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Profile"), &HotkeyCommands::changeProfile},
    {KP_WidthMode, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Width mode"),
     &HotkeyCommands::changeWidth},
    {KP_EditUndo, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Undo"), &HotkeyCommands::undo},
    {KP_EditMoveSamelayer, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Move within the layer")},
    {KP_EditBuferCopy, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Copy to the edit buffer")},
    {KP_EditBuferPaste, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Paste from the edit buffer")},
    {KP_Unnamed11, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "The function without a name")},
    {KP_ToolMoveSnap, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Move: snap")},
    {KP_ToolMoveHome, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Move: home"), &HotkeyCommands::home},
    {KP_ToolMoveUp, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Move: up"), &HotkeyCommands::move, Up,
     true},
    {KP_ToolMoveDown, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Move: down"), &HotkeyCommands::move,
     Down, true},
    {KP_ToolMoveRight, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Move: right"), &HotkeyCommands::move,
     Right, true},
    {KP_ToolMoveLeft, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Move: left"), &HotkeyCommands::move,
     Left, true},
    {KP_ToolRefersh, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Refresh"), &HotkeyCommands::refresh},
    {KP_EditContourize, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Contourize")},
    {KP_ToolMovePanUp, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Pan: up"), &HotkeyCommands::pan, Up,
     true},
    {KP_ToolMovePanDown, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Pan: down"), &HotkeyCommands::pan,
     Down, true},
    {KP_ToolMovePanRight, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Pan: right"), &HotkeyCommands::pan,
     Right, true},
    {KP_ToolMovePanLeft, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Pan: left"), &HotkeyCommands::pan,
     Left, true},
    {KP_Compare, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Compare"), &HotkeyCommands::compare},
    {KP_MoveByMouseCenter, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Centre at the pointer"),
     &HotkeyCommands::centre},
    {KP_CopyOrignal, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Copy the original")},
    {KP_Tranform, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Transform")},
    {KP_SelectSameFeature, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Select the same features"),
     &HotkeyCommands::selectSame},
    {KP_ChangeUnit, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Unit"), &HotkeyCommands::changeUnit},
    {KP_Measure, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Measure"), &HotkeyCommands::measure},
    {KK_SnapSkeleton, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Snap: skeleton"), &HotkeyCommands::snap,
     SNAP_SKELETON},
    {KK_SnapOff, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Snap: off"), &HotkeyCommands::snap,
     SNAP_OFF},
    {KK_SnapGrid, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Snap: grid"), &HotkeyCommands::snap,
     SNAP_GRID},
    {KK_SnapCenter, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Snap: centre"), &HotkeyCommands::snap,
     SNAP_CENTER},
    {KK_SnapArc, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Snap: arc"), &HotkeyCommands::snap,
     SNAP_ARC},
    {KK_SnapEdge, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Snap: edge"), &HotkeyCommands::snap,
     SNAP_EDGE},
    {KK_SnapIntersect, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Snap: crossing"),
     &HotkeyCommands::snap, SNAP_INTERSECT},
    {KK_SnapMidpoint, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Snap: middle"), &HotkeyCommands::snap,
     SNAP_MIDPOINT},
    {KK_SnapProfile, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Snap: profile"), &HotkeyCommands::snap,
     SNAP_PROFILE},
    {KK_SnapAdv, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Snap: advanced"), &HotkeyCommands::snap,
     SNAP_ADVANCED},
    {KK_Hightlight, QT_TRANSLATE_NOOP("Workbench::HotkeyCommands", "Highlight")},
};

namespace {

// "S ... G grid, O off": the continuations of the pending key; empty if there are none.
QString pendingText()
{
    QStringList following;
    for (Ext::HotkeyContinuation const & next : Ext::hotkeyContinuations()) {
        following.append(next.key + ' ' + HotkeyCommands::text(next.code).section(": ", -1));
    }
    return following.isEmpty() ? QString() : Ext::pendingHotkey() + " ... " + following.join(", ");
}

QString onOff(bool on)
{
    return on ? HotkeyCommands::tr("on") : HotkeyCommands::tr("off");
}

} // namespace

HotkeyCommands::HotkeyCommands(BoardPage & board, QObject * parent)
    : QObject(parent), m_board(board), m_measuring(std::make_unique<Measuring>(board))
{
    connect(m_measuring.get(), &Measuring::status, this, &HotkeyCommands::status);
    connect(&board, &BoardPage::selectionChanged, this, [this] { emit status(selectionText()); });
    std::vector<FuncCode> repeating;
    for (Command const & each : Command::table) {
        if (each.repeats) {
            repeating.push_back(each.code);
        }
    }
    m_keys = Ext::attachHotkeys(*board.window());
    m_keys->setRepeating(std::move(repeating));
    m_keys->setCondition([&board] { return board.isVisible(); });
    connect(m_keys, &Ext::HotkeyAttachment::triggered, this, [this](FuncCode code) {
        QPointer<HotkeyCommands> const alive(this); // the window may be deleted while a command asks
        QString const done = run(code);
        if (alive) {
            m_done = done;
        }
    });
    connect(m_keys, &Ext::HotkeyAttachment::keySeen, this, &HotkeyCommands::showKeySeen);
    board.currentView()->setFocus();
}

HotkeyCommands::~HotkeyCommands()
{
    delete m_keys;
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
    return result.isEmpty() ? text(code) : text(code) + ": " + result;
}

void HotkeyCommands::perform(FuncCode code)
{
    QPointer<HotkeyCommands> const alive(this); // the window may be deleted while a command asks
    QString const text = run(code);
    if (alive) {
        emit status(text);
    }
}

void HotkeyCommands::showKeySeen()
{
    QStringList lines = {std::exchange(m_done, {}), pendingText()};
    lines.removeAll({});
    emit status(lines.join("   |   "));
}

void const * HotkeyCommands::view() const
{
    return m_board.currentView()->handle();
}

QString HotkeyCommands::changeUnit(int /*argument*/)
{
    switchUnit(view());
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

QString HotkeyCommands::undo(int /*argument*/)
{
    QPointer<HotkeyCommands> const alive(this);
    m_board.undoLast();
    if (!alive) {
        return {};
    }
    BoardView const & shown = *m_board.currentView();
    return tr("operations left: %1")
        .arg(Ext::undoCount(QString::fromStdString(shown.job()), QString::fromStdString(shown.step())));
}

QString HotkeyCommands::selectionText() const
{
    QString const count = tr("selected features: %1").arg(m_board.currentView()->selected().size());
    QString const summary = m_board.feature().summary();
    return summary.isEmpty() ? count : count + "   |   " + summary;
}

QString HotkeyCommands::selectAll(int /*argument*/)
{
    BoardView & shown = *m_board.currentView();
    shown.select(FeatureSelection::all(shown.features()));
    return selectionText();
}

QString HotkeyCommands::reverseSelection(int /*argument*/)
{
    BoardView & shown = *m_board.currentView();
    shown.select(FeatureSelection::reversed(shown.selected(), shown.features()));
    return selectionText();
}

QString HotkeyCommands::selectSame(int /*argument*/)
{
    BoardView & shown = *m_board.currentView();
    shown.select(FeatureSelection::withSame(shown.selected(), shown.features()));
    return selectionText();
}

QString HotkeyCommands::refresh(int /*argument*/)
{
    m_board.refresh();
    return {};
}

QString HotkeyCommands::compare(int /*argument*/)
{
    emit m_board.compareWanted(QString::fromStdString(m_board.currentView()->layer()));
    return {};
}

QString HotkeyCommands::home(int /*argument*/)
{
    m_board.currentView()->zoomHome();
    return {};
}

QString HotkeyCommands::move(int direction)
{
    m_board.currentView()->pan(way(direction, 0.5));
    return {};
}

QString HotkeyCommands::pan(int direction)
{
    m_board.currentView()->pan(way(direction, 0.1));
    return {};
}

QString HotkeyCommands::centre(int /*argument*/)
{
    if (coordinate const * const pointer = getCoordinate(view())) {
        m_board.currentView()->centreOn(pointer->x, pointer->y);
    }
    return {};
}

QString HotkeyCommands::measure(int /*argument*/)
{
    return m_measuring->press();
}

QString HotkeyCommands::snap(int mode)
{
    setSnapType(view(), static_cast<SNAP_TYPE_MODE>(mode));
    return {};
}

} // namespace Workbench
