#pragma once

#include <QString>

namespace KVCAM::UIAPI::Ext {

/// One thing that a check found. What derives from it adds the facts of its kind of check.
/// \since 0.1
template <class Kind>
struct Finding
{
    QString where; ///< the place in what was checked; empty for the whole
    Kind kind{};   ///< what it is
    QString text;  ///< one English sentence for people
};

} // namespace KVCAM::UIAPI::Ext
