#pragma once

#include "../../config/AutoMatrixTmp.h"
#include "UIAPICommonExport.h"

#include <QString>

#include <map>

/// \addtogroup templates
/// The auto-matrix templates: how the roles of layers are recognised from their names.
namespace KVCAM::UIAPI {

/// A copy of all templates, by index. Shipped ones count from 0, the user's from 2; a user template whose
/// index is taken is skipped.
UIAPICOMMON_EXPORT std::map<int, AutoMatrixTmp> getAutoMatrixTmpMap();
/// The selected template; at start a copy of the one with the smallest index, empty if there is none.
UIAPICOMMON_EXPORT AutoMatrixTmp getCurrentAutoMatrixTmp();
/// Replaces the selected template, in memory only.
UIAPICOMMON_EXPORT void setCurrentAutoMatrixTmp(AutoMatrixTmp const & tmpl);
/// Stores the template under the index, replacing one that is there, and writes it to the file "autoMatrix/"
/// + name + ".json" below the current directory, creating the folder. If the file cannot be written, for any
/// reason, or the name would leave the folder, an information box "File open failed" is shown;
/// Ext::diagnostics() says why. The selected template does not change.
UIAPICOMMON_EXPORT void saveCurrentAutoMatrixTmp(int index, QString name, AutoMatrixTmp const & tmpl);
/// Removes the template of this index and the user's file of this name; silent if there is none. The selected
/// template does not change.
UIAPICOMMON_EXPORT void deleteAutoMatrix(int index, QString name);
/// The smallest index of a template of this name, compared byte for byte as UTF-8; -1 if there is none.
UIAPICOMMON_EXPORT int getAutomatrixMatrixIndex(QString name);

} // namespace KVCAM::UIAPI
