#pragma once

#include <QString>

/// \addtogroup outcomes
namespace KVCAM::UIAPI::Ext {

/// Whether something succeeded, and if not, why.
/// \since 0.1
struct Result
{
    bool ok = true; ///< also when there was nothing to do
    QString reason; ///< one human-readable sentence; empty when ok

    explicit operator bool() const { return ok; } ///< the same as ok
};

} // namespace KVCAM::UIAPI::Ext
