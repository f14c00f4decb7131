#pragma once

#include "hotkey/FuncCode.h"

#include <QtGlobal>
#include <qnamespace.h>

#include <cstddef>
#include <iterator>

/// Every function code, its name in the hot-key file and its default keys.
namespace KVCAM::UIAPI {

/// Stands for a missing key.
constexpr int noKey = -1;

struct HotkeyFunction
{
    char const * name; ///< null: has no name
    FuncCode code;
    Qt::KeyboardModifier modifier;
    int key;    ///< the key, or the first of a sequence
    int second; ///< the second key of a sequence, else noKey
};

namespace HotkeyFunctions {

constexpr auto none = Qt::NoModifier;
constexpr auto ctrl = Qt::ControlModifier;
constexpr auto shift = Qt::ShiftModifier;

// The E of KP_SelectSameFeature never fires: a plain key only works as part of a sequence.
constexpr HotkeyFunction table[] = {
    {"KP_AllSelect", KP_AllSelect, ctrl, Qt::Key_A, noKey},
    {"KP_ReverseSelect", KP_ReverseSelect, shift, Qt::Key_R, noKey},
    {"KP_ShowCAMGuide", KP_ShowCAMGuide, shift, Qt::Key_G, noKey},
    {"KP_Nequtive", KP_Nequtive, ctrl, Qt::Key_N, noKey},
    {"KP_Profile", KP_Profile, ctrl, Qt::Key_T, noKey},
    {"KP_WidthMode", KP_WidthMode, ctrl, Qt::Key_W, noKey},
    {"KP_EditUndo", KP_EditUndo, ctrl, Qt::Key_Z, noKey},
    {"KP_EditMoveSamelayer", KP_EditMoveSamelayer, ctrl, Qt::Key_X, noKey},
    {"KP_EditBuferCopy", KP_EditBuferCopy, ctrl, Qt::Key_C, noKey},
    {"KP_EditBuferPaste", KP_EditBuferPaste, ctrl, Qt::Key_V, noKey},
    {nullptr, KP_Unnamed11, ctrl, Qt::Key_B, noKey},
    {"KP_ToolMoveSnap", KP_ToolMoveSnap, ctrl, Qt::Key_S, noKey},
    {"KP_ToolMoveHome", KP_ToolMoveHome, ctrl, Qt::Key_H, noKey},
    {"KP_ToolMoveUp", KP_ToolMoveUp, ctrl, Qt::Key_U, noKey},
    {"KP_ToolMoveDown", KP_ToolMoveDown, ctrl, Qt::Key_D, noKey},
    {"KP_ToolMoveRight", KP_ToolMoveRight, ctrl, Qt::Key_R, noKey},
    {"KP_ToolMoveLeft", KP_ToolMoveLeft, ctrl, Qt::Key_L, noKey},
    {"KP_ToolRefersh", KP_ToolRefersh, ctrl, Qt::Key_F, noKey},
    {"KP_EditContourize", KP_EditContourize, shift, Qt::Key_Z, noKey},
    {"KP_ToolMovePanUp", KP_ToolMovePanUp, shift, Qt::Key_Up, noKey},
    {"KP_ToolMovePanDown", KP_ToolMovePanDown, shift, Qt::Key_Down, noKey},
    {"KP_ToolMovePanRight", KP_ToolMovePanRight, shift, Qt::Key_Right, noKey},
    {"KP_ToolMovePanLeft", KP_ToolMovePanLeft, shift, Qt::Key_Left, noKey},
    {"KP_Compare", KP_Compare, shift, Qt::Key_C, noKey},
    {"KP_MoveByMouseCenter", KP_MoveByMouseCenter, ctrl, Qt::Key_E, noKey},
    {"KP_CopyOrignal", KP_CopyOrignal, ctrl, Qt::Key_O, noKey},
    {"KP_Tranform", KP_Tranform, shift, Qt::Key_T, noKey},
    {"KP_SelectSameFeature", KP_SelectSameFeature, none, Qt::Key_E, noKey},
    {"KP_ChangeUnit", KP_ChangeUnit, shift, Qt::Key_U, noKey},
    {"KP_Measure", KP_Measure, shift, Qt::Key_V, noKey},
    {"KK_SnapSkeleton", KK_SnapSkeleton, none, Qt::Key_S, Qt::Key_S},
    {"KK_SnapOff", KK_SnapOff, none, Qt::Key_S, Qt::Key_O},
    {"KK_SnapGrid", KK_SnapGrid, none, Qt::Key_S, Qt::Key_G},
    {"KK_SnapCenter", KK_SnapCenter, none, Qt::Key_S, Qt::Key_C},
    {"KK_SnapArc", KK_SnapArc, none, Qt::Key_S, Qt::Key_R},
    {"KK_SnapEdge", KK_SnapEdge, none, Qt::Key_S, Qt::Key_E},
    {"KK_SnapIntersect", KK_SnapIntersect, none, Qt::Key_S, Qt::Key_I},
    {"KK_SnapMidpoint", KK_SnapMidpoint, none, Qt::Key_S, Qt::Key_M},
    {"KK_SnapProfile", KK_SnapProfile, none, Qt::Key_S, Qt::Key_P},
    {"KK_SnapAdv", KK_SnapAdv, none, Qt::Key_S, Qt::Key_A},
    {"KK_Hightlight", KK_Hightlight, none, Qt::Key_S, Qt::Key_N},
};

constexpr bool isComplete()
{
    for (std::size_t i = 0; i < std::size(table); ++i) {
        HotkeyFunction const & row = table[i];
        if (row.code != static_cast<FuncCode>(i + 1) || (row.name == nullptr) != (row.code == KP_Unnamed11) ||
            (row.second != noKey) != (row.code >= KK_SnapSkeleton)) {
            return false;
        }
    }
    return true;
}
static_assert(std::size(table) == 41);
static_assert(isComplete(), "codes count from 1, one is without a name, sequences come last");

} // namespace HotkeyFunctions
} // namespace KVCAM::UIAPI
