#pragma once

#include <QString>

namespace KVCAM::UIAPI::Ext {

/// Where a template of the user's stands: in the file "autoMatrix/" + name + ".json" below the current
/// directory, `name` being what saveCurrentAutoMatrixTmp() and deleteAutoMatrix() take.
struct AutoMatrixFile
{
    QString name; ///< without ".json"
    /// The file holds no other template, so that saving or deleting it loses none. One that was left out
    /// because its index was taken counts.
    bool isAlone = true;
    /// The file holds the template as it is in memory: false after a save that failed, or once another
    /// template was saved over the file or the file was deleted.
    bool isStored = true;
};

} // namespace KVCAM::UIAPI::Ext
