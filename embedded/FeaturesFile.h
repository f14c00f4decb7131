#pragma once

#include <kvcam/Records.h>

#include <QString>

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace KVCAM::Embedded {

/// A symbol of a file's table: its name without the unit mark, and what its sizes are in (0 mil,
/// 1 micrometre), by the mark or else by the file's unit.
struct SymbolEntry
{
    std::string name;
    int unit = 0;
};

/// One side of a contour: straight, or an arc about `centre`. Micrometres.
struct Side
{
    API::point to;
    bool arc = false;
    bool clockwise = false;
    API::point centre;
};

struct Contour
{
    bool island = true; ///< false: a hole in the islands before it
    API::point start;
    std::vector<Side> sides;
};

/// The attributes of a feature that the checks ask for, as bits.
enum Mark : std::uint8_t
{
    markSmd = 1,
    markNomenclature = 2,
    markString = 4
};

/// A graphic of a layer, in micrometres. A surface has contours, every other kind has a symbol and points:
/// a pad its place, a line its start and end, an arc its start, end and centre. A file may hold millions of
/// them, so they keep no list of their own for the few points; attributes are checked, but few are kept.
struct Feature
{
    char kind = 'P';
    bool positive = true;
    bool clockwise = false; ///< of an arc
    bool mirrored = false;  ///< of a pad
    std::uint8_t marks = 0; ///< which Mark attributes it has
    std::int8_t drill = -1; ///< the option of its .drill: 0 plated, 1 non-plated, 2 via; -1 for none
    double angle = 0;       ///< of a pad, degrees clockwise
    int symbol = -1;        ///< index of the symbol table
    int code = 0;           ///< on a drill layer the number of its tool
    std::array<API::point, 3> points{};
    std::vector<Contour> contours;

    /// How many of `points` are in use.
    std::size_t pointCount() const { return kind == 'P' ? 1 : kind == 'L' ? 2 : kind == 'A' ? 3 : 0; }
};

struct FeaturesFile
{
    QString path; ///< for messages
    int unit = 0; ///< 0 inch, 1 millimetre
    std::map<int, SymbolEntry> symbols;
    std::vector<Feature> features;
};

/// Reads a features file whole or throws JobError. With `tablesOnly` the file is one that holds the head and
/// the tables alone, and its announced number of features is not held against it.
FeaturesFile readFeatures(QString const & path, bool tablesOnly = false);

/// The points of a feature in the order of its record; those of an arc's centre follow its end.
std::vector<API::point> recordPoints(Feature const & feature);

} // namespace KVCAM::Embedded
