#pragma once

#include "geometry/CheckGeometry.h"

#include <kvcam/Records.h>

#include <cstddef>
#include <vector>

/// What a pen draws along lines and arcs.
namespace KVCAM::Embedded {

/// How far, in micrometres, copper drawn with arcs may be taken for larger than it is. It is never taken for
/// smaller.
inline constexpr double arcTolerance = 0.25;

/// Drops repeated neighbours, as Shape wants it.
Shape convexShape(std::vector<API::point> corners, double radius = 0);
/// The smallest convex polygon around the points, of which there is at least one.
std::vector<API::point> convexHull(std::vector<API::point> points);
Shape moved(Shape shape, API::point by);

/// The area that a pen covers on its way from one point to another.
Shape swept(Shape const & pen, API::point from, API::point to);

/// An arc; equal ends make a full circle.
struct Arc
{
    API::point start;
    API::point end;
    API::point centre;
    bool clockwise = false;
};

Arc placed(Arc arc, Placement const & where);
/// The number of straight pieces that follow an arc to arcTolerance. Infinite or not a number for an arc
/// beyond all measure.
double arcPieces(Arc const & arc);
/// The ends of `count` straight pieces that follow the arc, from its start to its end, moved away from its
/// centre by `outwards`. If the ends are not equally far from the centre, the distance changes evenly.
std::vector<API::point> arcPoints(Arc const & arc, std::size_t count, double outwards = 0);

/// The area that a pen covers along an arc of arcPieces() pieces.
std::vector<Shape> swept(Shape const & pen, Arc const & arc, std::size_t pieces);
/// Triangles over the `points` of an arc that cover what lies between the straight pieces and the arc.
std::vector<Shape> arcCovers(Arc const & arc, std::vector<API::point> const & points);

/// How far a shape or an arc reaches in a direction of length 1, from the origin.
double support(Shape const & shape, API::point direction);
double support(Arc const & arc, API::point direction);

} // namespace KVCAM::Embedded
