#pragma once

#include "UIAPICommonExport.h"

#include <QString>

#include <string>
#include <vector>

/// \addtogroup layer_filters
namespace KVCAM::UIAPI {

/// The names of a job's layers that analysis and DFM checks read, in matrix order: context "board" and type
/// signal, power_ground, mixed, solder_mask, silk_screen, solder_paste, drill or rout. The same for every
/// step. Empty for an unknown job and for an empty job name, for which the engine is not asked.
UIAPICOMMON_EXPORT std::vector<std::string> getAnalyzeAndDFMLayers(QString const & job, QString const & step);

} // namespace KVCAM::UIAPI
