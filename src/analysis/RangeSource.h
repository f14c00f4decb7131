#pragma once

#include <QString>

#include <string>

namespace KVCAM::UIAPI::Ext {

/// Where a range comes from.
struct RangeSource
{
    std::string name; ///< of the range, UTF-8: what getRanges() takes
    QString path;     ///< the file, absolute
};

} // namespace KVCAM::UIAPI::Ext
