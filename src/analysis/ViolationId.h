#pragma once

#include "../units/Length.h"
#include "ReportRecords.h"
#include "UIAPICommonExport.h"

#include <optional>
#include <string>
#include <vector>

/// Additions to the fixed interface. They are opt-in and change none of its results.
namespace KVCAM::UIAPI::Ext {

/// What tells one violation from another: the check, the layer, and both items by place and net. Neither the
/// measured value nor the order of a report counts.
struct ViolationName
{
    std::string table;                     ///< as in ReportCategory
    int number = 0;                        ///< as in ReportCategory
    std::string layer;                     ///< UTF-8
    std::vector<KVCAM::API::point> places; ///< whole micrometres
    EntryNets nets;                        ///< UTF-8; of two different ones in the order of `places`
    int copy = 1;                          ///< from 2 for what is named alike; see violationIds()
};

/// How far a place may move while the violation stays the same, see isSameViolation().
inline constexpr Length sameViolationTolerance = Length::fromMicrometres(50);

/// The name of an entry. Of two items the one with the smaller net comes first, byte by byte. If they are of
/// one net or only one net is known, the known one comes first, and the place further left, then the lower
/// one. So it does not matter which the engine met first. Invalid UTF-8 becomes replacement characters, as in
/// a written report.
/// \since 0.2
[[nodiscard]] UIAPICOMMON_EXPORT ViolationName violationName(ReportCategory const & category,
                                                             ReportEntry const & entry);

/// The name as one text: table, number, layer, places, nets, and the copy if it is not the first.
///
///     SignalLayerRanges/3/top/1200,3400~1250,3400/GND~VCC
///     SignalLayerRanges/46/top/1200,3400/-#2
///
/// Only ASCII letters, digits and -_.,~/%# are in it. Everything else in a text is percent-encoded by bytes,
/// and an empty text or list is "-". Names that differ in the order of their items only give the same text.
[[nodiscard]] UIAPICOMMON_EXPORT std::string violationId(ViolationName const & name);
/// That of an entry's name.
[[nodiscard]] UIAPICOMMON_EXPORT std::string violationId(ReportCategory const & category,
                                                         ReportEntry const & entry);

/// The ids of all entries, in their order. Of entries that are named alike, the second is "#2" and so on, by
/// measured length, the engine's value and level; entries that agree in these too are interchangeable.
[[nodiscard]] UIAPICOMMON_EXPORT std::vector<std::string> violationIds(ReportCategory const & category);

/// The name that an id stands for. Nothing if the text is not exactly what violationId() makes of a name.
[[nodiscard]] UIAPICOMMON_EXPORT std::optional<ViolationName> parseViolationId(std::string const & id);

/// Whether two names may stand for the same violation: the same check, layer and nets, and each place within
/// the tolerance of its counterpart, in a straight line and inclusive. Which place comes first
/// matters only between two known nets, and neither does the copy: several violations of a report may fit, so
/// each should be matched once, equal ids first.
[[nodiscard]] UIAPICOMMON_EXPORT bool isSameViolation(ViolationName const & a, ViolationName const & b,
                                                      Length tolerance = sameViolationTolerance);

} // namespace KVCAM::UIAPI::Ext
