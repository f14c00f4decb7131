#pragma once

// Everything that UIAPICommon exports.

#include "UIAPICommonVersion.h"

#include "config/AutoMatrixTmp.h"
#include "config/Diagnostics.h"
#include "config/UIAPIGlobalVar.h"
#include "support/MessagePresenter.h"
#include "uiapi/Notifier.h"
#include "uiapi/UIAPICommonPara.h"
#include "uiapi/ViewRecords.h"
#include "uiapi/flat/Arithmetic.h"
#include "uiapi/flat/Attributes.h"
#include "uiapi/flat/AutoMatrix.h"
#include "uiapi/flat/Files.h"
#include "uiapi/flat/GlobalConfig.h"
#include "uiapi/flat/ModifierKeys.h"
#include "uiapi/flat/Selections.h"
#include "uiapi/flat/ShowParameters.h"
#include "uiapi/flat/Snap.h"
#include "uiapi/flat/SymbolNames.h"
#include "uiapi/flat/UiState.h"
#include "uiapi/flat/Units.h"
#include "uiapi/flat/ViewAccess.h"
#include "units/SymbolDescription.h"
#include "units/ValueCheck.h"
