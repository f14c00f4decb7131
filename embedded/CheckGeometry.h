#pragma once

#include "EmbeddedRecords.h"

#include <kvcam/Records.h>

#include <vector>

/// The geometry of the checks, in micrometres.
namespace KVCAM::Embedded {

/// A convex shape: every point within `radius` of the polygon of `corners`. One corner makes a circle, two
/// make an oval; a radius of 0 makes the polygon itself. Corners run either way round, none twice in
/// succession.
struct Shape
{
    std::vector<API::point> corners;
    double radius = 0;
};

/// Where a symbol is drawn: mirrored (left and right exchanged) first, then turned, then moved to `place`.
struct Placement
{
    API::point place;
    double cosine = 1; ///< of the clockwise turn
    double sine = 0;
    bool mirrored = false;
};

/// Quarter turns are exact.
Placement placement(API::point place, double degreesClockwise, bool mirrored);
API::point placed(API::point point, Placement const & where);
Shape placed(Shape shape, Placement const & where);
/// The point as the symbol's drawing sees it; undoes placed().
API::point unplaced(API::point point, Placement const & where);

double distance(API::point a, API::point b);
/// From a point to the nearest one of the side between two points, which may be one and the same.
API::point nearestOnSide(API::point p, API::point a, API::point b);
/// 0 where the boxes touch.
double boxGap(Box const & a, Box const & b);
void include(Box & box, API::point point);
Box boxOf(API::point point);
Box extent(Shape const & shape);

/// How far inside the shape a point lies: its distance to the edge, negative outside.
double depth(Shape const & shape, API::point point);
/// The distance from a point to the farthest one of the shape.
double reach(Shape const & shape, API::point point);
/// How wide the shape is for one who looks along a direction, which need not have the length 1 but must have
/// some.
double widthAcross(Shape const & shape, API::point direction);

/// The shortest way from one shape to another.
struct Gap
{
    double distance = 0; ///< 0 where they overlap; from and to are then one point of both
    API::point from;
    API::point to;
};
Gap gapBetween(Shape const & a, Shape const & b);

/// The point half way along an arc. Equal ends make a full circle.
API::point arcMiddle(API::point start, API::point end, API::point centre, bool clockwise);

} // namespace KVCAM::Embedded
