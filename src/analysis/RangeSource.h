#pragma once

#include <QString>

#include <string>

/// \addtogroup ranges
namespace KVCAM::UIAPI::Ext {

/// The source of a range.
struct RangeSource
{
    std::string name; ///< of the range, UTF-8; the argument of getRanges()
    QString path;     ///< the file, absolute
};

} // namespace KVCAM::UIAPI::Ext
