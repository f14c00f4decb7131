#pragma once

#include "formats/Budget.h"
#include "formats/Contours.h"

#include <kvcam/Records.h>

#include <QString>

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace KVCAM::Embedded {

/// A symbol of a file's table: its name without the unit suffix, and the unit of its sizes (0 mil, 1
/// micrometre), from the suffix or else from the file's unit.
struct SymbolEntry
{
    std::string name;
    int unit = 0;
};

/// The feature attributes that the checks use, as bits.
enum Mark : std::uint8_t
{
    markSmd = 1,
    markNomenclature = 2,
    markString = 4
};

/// A graphic of a layer, in micrometres. A surface has contours. Every other kind has a symbol and points: a
/// pad its place, a line its start and end, an arc its start, end and centre. A file may hold millions of
/// features, so the few points are stored inline instead of in a list. All attributes are validated, few are
/// kept.
struct Feature
{
    char kind = 'P';
    bool positive = true;
    bool clockwise = false; ///< of an arc
    bool mirrored = false;  ///< of a pad, after it is turned
    std::uint8_t marks = 0; ///< which Mark attributes it has
    std::int8_t drill = -1; ///< the option of its .drill: 0 plated, 1 non-plated, 2 via; -1 for none
    double angle = 0;       ///< of a pad, degrees clockwise
    int symbol = -1;        ///< index into the symbol table
    int code = 0;           ///< on a drill layer, the number of its tool
    std::array<API::point, 3> points{};
    Contours contours;

    /// The number of `points` in use.
    std::size_t pointCount() const { return kind == 'P' ? 1 : kind == 'L' ? 2 : kind == 'A' ? 3 : 0; }
};

struct FeaturesFile
{
    QString path; ///< for messages
    int unit = 0; ///< 0 inch, 1 millimetre
    std::map<int, SymbolEntry> symbols;
    std::vector<Feature> features;
};

/// Reads a whole features file or throws JobError. With `tablesOnly` the file holds only the head and the
/// tables, and its announced number of features is not enforced.
FeaturesFile readFeatures(QString const & path, bool tablesOnly = false);
/// The same for a file that adds to the budget of its job.
FeaturesFile readFeatures(QString const & path, Budget & budget, bool tablesOnly = false);

/// The points of a feature in the order of its record; an arc's centre follows its end.
std::vector<API::point> recordPoints(Feature const & feature);

} // namespace KVCAM::Embedded
