#pragma once

/// \addtogroup hot_keys
namespace KVCAM {

/// The function requested by a key press. Each enumerator has the function's name in the hot-key file, odd
/// spellings included.
enum FuncCode : int
{
    KP_NoFunction = 0,
    KP_AllSelect = 1,
    KP_ReverseSelect = 2,
    KP_ShowCAMGuide = 3,
    KP_Nequtive = 4,
    KP_Profile = 5,
    KP_WidthMode = 6,
    KP_EditUndo = 7,
    KP_EditMoveSamelayer = 8,
    KP_EditBuferCopy = 9,
    KP_EditBuferPaste = 10,
    KP_Unnamed11 = 11, ///< has no name, so no file can bind it
    KP_ToolMoveSnap = 12,
    KP_ToolMoveHome = 13,
    KP_ToolMoveUp = 14,
    KP_ToolMoveDown = 15,
    KP_ToolMoveRight = 16,
    KP_ToolMoveLeft = 17,
    KP_ToolRefersh = 18,
    KP_EditContourize = 19,
    KP_ToolMovePanUp = 20,
    KP_ToolMovePanDown = 21,
    KP_ToolMovePanRight = 22,
    KP_ToolMovePanLeft = 23,
    KP_Compare = 24,
    KP_MoveByMouseCenter = 25,
    KP_CopyOrignal = 26,
    KP_Tranform = 27,
    KP_SelectSameFeature = 28,
    KP_ChangeUnit = 29,
    KP_Measure = 30,
    KK_SnapSkeleton = 31,
    KK_SnapOff = 32,
    KK_SnapGrid = 33,
    KK_SnapCenter = 34,
    KK_SnapArc = 35,
    KK_SnapEdge = 36,
    KK_SnapIntersect = 37,
    KK_SnapMidpoint = 38,
    KK_SnapProfile = 39,
    KK_SnapAdv = 40,
    KK_Hightlight = 41
};

} // namespace KVCAM
