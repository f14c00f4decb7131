#pragma once

#include <QString>

/// \addtogroup templates
namespace KVCAM::UIAPI::Ext {

/// Where a user template is stored: in the file "autoMatrix/" + name + ".json" below the current directory.
/// `name` is the argument of saveCurrentAutoMatrixTmp() and deleteAutoMatrix().
struct AutoMatrixFile
{
    QString name; ///< without ".json"
    /// The file holds no other template, so saving or deleting it loses none. A template skipped because its
    /// index was taken counts as another, and so does what a file in a new user directory holds.
    bool isAlone = true;
    /// The file holds the template as it is in memory. False after a failed save, once the file was
    /// overwritten with another template or deleted, and after setUserDirectory() of another directory.
    bool isStored = true;
};

} // namespace KVCAM::UIAPI::Ext
