#pragma once

#include "EmbeddedRecords.h"
#include "formats/FeaturesFile.h"
#include "geometry/Region.h"
#include "geometry/Stroke.h"
#include "state/Job.h"

#include <kvcam/Records.h>

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace KVCAM::Embedded {

/// A part of a drawing as it is, for its extent: a shape, or a pen on an arc. The pen lies about the origin.
struct DrawnPart
{
    Shape shape;
    std::optional<Arc> arc;
};

/// The drawing of a symbol of the job's own.
struct SymbolDrawing
{
    /// What the drawing draws, following arcs to arcTolerance; negative graphics are ignored. Empty if it
    /// draws nothing.
    Region copper;
    std::vector<DrawnPart> parts;
    std::string problem;     ///< why it cannot be measured, as the end of a sentence; empty if it can
    std::size_t corners = 0; ///< of `copper`, about
    Box outlines;            ///< around the outlines of `copper`, if there are any
};

/// The drawings of a job's own symbols, each read once. Symbols within symbols are followed 16 deep. The
/// corners of one symbol, and of all together, are limited.
class SymbolDrawings
{
public:
    /// Valid as long as this object. Throws JobError if a drawing is damaged.
    SymbolDrawing const & find(Job const & job, std::string const & name);

private:
    SymbolDrawing const & find(Job const & job, std::string const & name, int depth);
    SymbolDrawing drawing(Job const & job, FeaturesFile const & file, int depth);
    void draw(Job const & job, FeaturesFile const & file, Feature const & feature, int depth,
              SymbolDrawing & to);

    std::map<std::string, SymbolDrawing> m_drawings;
    std::size_t m_corners = 0; // of all
};

} // namespace KVCAM::Embedded
