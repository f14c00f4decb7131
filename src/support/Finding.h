#pragma once

#include <QString>

/// \addtogroup outcomes
namespace KVCAM::UIAPI::Ext {

/// One finding of a check. Derived types add the facts of their kind of check.
/// \since 0.1
template <class Kind>
struct Finding
{
    QString where; ///< the place in the checked object; empty for the whole
    Kind kind{};   ///< what it is
    QString text;  ///< one human-readable English sentence
};

} // namespace KVCAM::UIAPI::Ext
