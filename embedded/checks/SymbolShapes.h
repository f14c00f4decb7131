#pragma once

#include "checks/SymbolDrawing.h"
#include "formats/FeaturesFile.h"
#include "geometry/CheckGeometry.h"
#include "geometry/Region.h"
#include "geometry/StandardSymbol.h"
#include "state/Job.h"

#include <map>
#include <string>
#include <utility>

namespace KVCAM::Embedded {

/// The area of a symbol about its origin, in micrometres. Where the two shapes differ, the symbol lies
/// between them.
struct SymbolShape
{
    enum class Kind
    {
        Unknown,
        Empty, ///< a side is 0: nothing is drawn
        Drawn
    };

    Kind kind = Kind::Unknown;
    Shape outer;
    Region copper; ///< for spacings: contains the symbol, and follows one of the job's own by its drawing
    bool isLarge = false; ///< `copper` has so many corners that it is not for every use
    Shape inner;          ///< no corners: the symbol is not solid
    double narrower = 0;
    double wider = 0;
    API::point along{1, 0}; ///< the direction of `wider`, of length 1
    API::point middle;      ///< of both widths
    double opening = 0;     ///< radius of a circle about the origin that contains a donut's opening
    std::string problem;    ///< of an unknown or empty symbol of the job's own, as the end of a sentence
};

SymbolShape standardShape(StandardSymbol const & symbol, int unit);

/// The shapes of a job's symbols, each computed once.
class SymbolShapes
{
public:
    /// Valid as long as this object. Throws JobError if the drawing of a symbol of the job's own is damaged.
    SymbolShape const & find(Job const & job, SymbolEntry const & symbol);

private:
    std::map<std::pair<std::string, int>, SymbolShape> m_shapes;
    SymbolDrawings m_drawings;
};

} // namespace KVCAM::Embedded
