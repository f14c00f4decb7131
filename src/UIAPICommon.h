#pragma once

// Everything that UIAPICommon exports: the fixed interface and, in UIAPICommonExt.h, the additions to it.
//
// Unless a comment says otherwise:
//   - Calls belong to the GUI thread; nothing is locked.
//   - Nothing throws. An exception from the engine, a slot or the allocator is logged, and the function
//   returns
//     0, false, null, nothing or an empty result.
//   - The library takes ownership of nothing that it is given.
//   - A std::string is UTF-8.
//   - A view handle is any address that identifies a view. It is compared, never dereferenced.
//   - A unit code is 0 for inch and 1 for millimetre. The large unit is then inch or millimetre, the small
//   one
//     mil or micrometre ("my").

#include "UIAPICommonExt.h"
#include "UIAPICommonVersion.h"

#include "analysis/AnalysisRecords.h"
#include "analysis/Unified_AnalysisResult.h"
#include "config/AutoMatrixTmp.h"
#include "config/UIAPIGlobalVar.h"
#include "hotkey/FuncCode.h"
#include "hotkey/KVHotKey.h"
#include "layers/ReferenceLayerInfo.h"
#include "links/ConnectEDA.h"
#include "uiapi/UIAPICommonPara.h"
#include "uiapi/ViewRecords.h"
#include "uiapi/flat/Arithmetic.h"
#include "uiapi/flat/Attributes.h"
#include "uiapi/flat/AutoMatrix.h"
#include "uiapi/flat/EdaLink.h"
#include "uiapi/flat/Files.h"
#include "uiapi/flat/Forms.h"
#include "uiapi/flat/GlobalConfig.h"
#include "uiapi/flat/HostAddress.h"
#include "uiapi/flat/LayerFilters.h"
#include "uiapi/flat/ModifierKeys.h"
#include "uiapi/flat/PluginCommands.h"
#include "uiapi/flat/Ranges.h"
#include "uiapi/flat/References.h"
#include "uiapi/flat/Selections.h"
#include "uiapi/flat/ShowParameters.h"
#include "uiapi/flat/Snap.h"
#include "uiapi/flat/SymbolNames.h"
#include "uiapi/flat/UiState.h"
#include "uiapi/flat/Undo.h"
#include "uiapi/flat/Units.h"
#include "uiapi/flat/ViewAccess.h"
#include "widgets/KVFileDialog.h"
#include "widgets/KVLabel.h"
#include "widgets/KVLengthEdit.h"
#include "widgets/KVLineEdit.h"
#include "widgets/KVListWidget.h"
#include "widgets/KVListWidgetItem.h"
#include "widgets/KVProgressDialog.h"
#include "widgets/KVTextEdit.h"
