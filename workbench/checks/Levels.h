#pragma once

#include <UIAPICommon.h>

#include <QtGlobal>

#include <array>

namespace Workbench {

/// One of the three levels of a category.
struct Level
{
    KVCAM::UIAPI::Ext::Severity severity;
    char const * name;  ///< in the range files, and of its field
    char const * title; ///< in LevelsEditor's translation context, with the mnemonic of its field
    double KVCAM::UIAPI::Analysis_Ranges_Record::*value; ///< mil
};

inline constexpr std::array<Level, 3> allLevels = {{
    {KVCAM::UIAPI::Ext::Severity::Red, "RedLv", QT_TRANSLATE_NOOP("Workbench::LevelsEditor", "Re&d"),
     &KVCAM::UIAPI::Analysis_Ranges_Record::redLv},
    {KVCAM::UIAPI::Ext::Severity::Yellow, "YellowLv", QT_TRANSLATE_NOOP("Workbench::LevelsEditor", "Yell&ow"),
     &KVCAM::UIAPI::Analysis_Ranges_Record::yellowLv},
    {KVCAM::UIAPI::Ext::Severity::Green, "GreenLv", QT_TRANSLATE_NOOP("Workbench::LevelsEditor", "&Green"),
     &KVCAM::UIAPI::Analysis_Ranges_Record::greenLv},
}};

} // namespace Workbench
