#pragma once

#include "EmbeddedRecords.h"

#include <kvcam/Records.h>

#include <cstddef>
#include <vector>

/// The geometry of the checks, in micrometres.
namespace KVCAM::Embedded {

inline constexpr double pi = 3.14159265358979323846;

/// A convex shape: every point within `radius` of the polygon `corners`. One corner makes a circle, two make
/// an oval, radius 0 makes the polygon itself. Corners may run in either direction; consecutive corners
/// differ.
struct Shape
{
    std::vector<API::point> corners;
    double radius = 0;
};

/// A convex piece that is stored elsewhere: every point within `radius` of the polygon of the corners, as in
/// Shape.
struct PieceView
{
    API::point const * corners = nullptr;
    std::size_t count = 0;
    double radius = 0;
};

PieceView viewOf(Shape const & shape);

/// Placement of a symbol: rotated clockwise first, then mirrored (left and right exchanged), then moved to
/// `place`.
struct Placement
{
    API::point place;
    double cosine = 1; ///< of the clockwise rotation
    double sine = 0;
    bool mirrored = false;
};

/// Exact for quarter turns.
Placement placement(API::point place, double degreesClockwise, bool mirrored);
API::point placed(API::point point, Placement const & where);
Shape placed(Shape shape, Placement const & where);
/// The point in the symbol's own coordinates; the inverse of placed().
API::point unplaced(API::point point, Placement const & where);

inline bool isSame(API::point a, API::point b)
{
    return a.x == b.x && a.y == b.y;
}
double distance(API::point a, API::point b);
/// The distance from a point to the side between two points, which may coincide.
API::point nearestOnSide(API::point p, API::point a, API::point b);
/// 0 where the boxes touch.
double boxGap(Box const & a, Box const & b);
void include(Box & box, API::point point);
Box boxOf(API::point point);
Box extent(Shape const & shape);
Box extent(PieceView const & piece);

/// Depth of a point in the shape: its distance to the edge, negative outside.
double depth(Shape const & shape, API::point point);
/// The distance from a point to the farthest point of the shape.
double reach(Shape const & shape, API::point point);
/// The width of the shape seen along a direction. The direction need not have length 1 but must not be zero.
double widthAcross(Shape const & shape, API::point direction);

/// The shortest path from one shape to another.
struct Gap
{
    double distance = 0; ///< 0 where they overlap; from and to are then the same point, in both shapes
    API::point from;
    API::point to;
};
Gap gapBetween(Shape const & a, Shape const & b);
Gap gapBetween(PieceView const & a, PieceView const & b);

/// The angle that an arc turns through, in radians; above 0, and 2 pi for equal ends.
double arcSweep(API::point start, API::point end, API::point centre, bool clockwise);
/// The midpoint of an arc. Equal ends make a full circle.
API::point arcMiddle(API::point start, API::point end, API::point centre, bool clockwise);

} // namespace KVCAM::Embedded
