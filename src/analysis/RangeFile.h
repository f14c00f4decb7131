#pragma once

#include "analysis/AnalysisRecords.h"

#include <QByteArray>
#include <QJsonDocument>

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

/// The content of a range file: {"rangesList": [{"name": "Lines", "RedLv": "3", "YellowLv": "4", "GreenLv":
/// "5"}]}. Levels are deliberately strings that hold a number: a JSON number reads as 0.
namespace KVCAM::UIAPI::RangeFile {

struct Level
{
    char const * key;
    double Analysis_Ranges_Record::*value;
};

inline constexpr std::array<Level, 3> levels = {{
    {"RedLv", &Analysis_Ranges_Record::redLv},
    {"YellowLv", &Analysis_Ranges_Record::yellowLv},
    {"GreenLv", &Analysis_Ranges_Record::greenLv},
}};

using Records = std::vector<Analysis_Ranges_Record>;

/// One record per element, in order; an element that is not an object gives an empty one. None for a document
/// without the list.
std::optional<Records> readRecords(QJsonDocument const & document);

/// The same from the file's bytes, several times faster, for the plain form that nearly every file has: only
/// the list, only texts in it, printable ASCII without escapes. Nothing for any other content, valid or not.
std::optional<Records> readPlainRecords(QByteArray const & bytes);

/// Result of writing levels into a document.
enum class Change
{
    Nothing, ///< no level differs
    Changed, ///< the document was changed
    Stale,   ///< the document no longer holds the records read from it
    NoRecord ///< a level differs for an element that cannot hold one
};

/// Writes those levels of `records` into the document that differ from `loaded`, which was read from an
/// earlier state of the document. All other levels keep the document's current values.
Change writeLevels(QJsonDocument & document, Records const & loaded, Records const & records);

} // namespace KVCAM::UIAPI::RangeFile
