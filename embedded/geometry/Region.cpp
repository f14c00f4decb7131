#include "geometry/Region.h"

#include "geometry/EdgeIndex.h"
#include "geometry/SpatialGrid.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace KVCAM::Embedded {
namespace {

constexpr double farRight = 1e300;

bool isSimple(Region const & region)
{
    return region.pieces.size() == 1 && region.outlines.empty();
}

// The pieces of a region, then the sides of its outlines, so that distances are found without a look at all.
class Parts
{
public:
    explicit Parts(Region const & region)
        : m_region(region), m_shapes(region.pieces), m_pieces(region.pieces.size()), m_grid(addSides())
    {}

    std::vector<Shape> const & shapes() const { return m_shapes; }
    Box const & box(std::size_t part) const { return m_boxes[part]; }
    SpatialGrid const & grid() const { return m_grid; }

    // A point of each piece and of each outline.
    std::vector<API::point> samples() const
    {
        std::vector<API::point> points;
        for (Shape const & piece : m_region.pieces) {
            points.push_back(piece.corners.front());
        }
        for (std::vector<API::point> const & outline : m_region.outlines) {
            points.push_back(outline.front());
        }
        return points;
    }

    bool isInOutlines(API::point point) const
    {
        bool inside = false;
        m_grid.forEachTouching({point.x, point.y, farRight, point.y}, [&](std::size_t part) {
            std::vector<API::point> const & side = m_shapes[part].corners;
            inside = inside != (part >= m_pieces && isRightOf(side.front(), side.back(), point));
        });
        return inside;
    }

private:
    std::vector<Box> const & addSides()
    {
        for (std::vector<API::point> const & outline : m_region.outlines) {
            for (std::size_t i = 0; i < outline.size(); ++i) {
                API::point const & to = outline[(i + 1) % outline.size()];
                bool const isPoint = outline[i].x == to.x && outline[i].y == to.y;
                m_shapes.push_back(isPoint ? Shape{{to}, 0} : Shape{{outline[i], to}, 0});
            }
        }
        m_boxes.reserve(m_shapes.size());
        for (Shape const & shape : m_shapes) {
            m_boxes.push_back(extent(shape));
        }
        return m_boxes;
    }

    Region const & m_region;
    std::vector<Shape> m_shapes;
    std::vector<Box> m_boxes;
    std::size_t m_pieces;
    SpatialGrid m_grid;
};

} // namespace

Region placed(Region region, Placement const & where)
{
    for (Shape & piece : region.pieces) {
        piece = placed(std::move(piece), where);
    }
    for (std::vector<API::point> & outline : region.outlines) {
        for (API::point & corner : outline) {
            corner = placed(corner, where);
        }
    }
    return region;
}

std::size_t size(Region const & region)
{
    std::size_t sum = 0;
    for (Shape const & piece : region.pieces) {
        sum += piece.corners.size();
    }
    for (std::vector<API::point> const & outline : region.outlines) {
        sum += outline.size();
    }
    return sum;
}

Box extent(Region const & region)
{
    Box box = region.pieces.empty() ? boxOf(region.outlines.front().front()) : extent(region.pieces.front());
    for (Shape const & piece : region.pieces) {
        Box const each = extent(piece);
        include(box, {each.left, each.bottom});
        include(box, {each.right, each.top});
    }
    for (std::vector<API::point> const & outline : region.outlines) {
        for (API::point const & corner : outline) {
            include(box, corner);
        }
    }
    return box;
}

bool contains(Region const & region, API::point point)
{
    bool inside = false;
    for (std::vector<API::point> const & outline : region.outlines) {
        for (std::size_t i = 0; i < outline.size(); ++i) {
            inside = inside != isRightOf(outline[i], outline[(i + 1) % outline.size()], point);
        }
    }
    return inside || std::any_of(region.pieces.begin(), region.pieces.end(),
                                 [point](Shape const & piece) { return depth(piece, point) >= 0; });
}

Gap gapBetween(Region const & a, Region const & b)
{
    if (isSimple(a) && isSimple(b)) {
        return gapBetween(a.pieces.front(), b.pieces.front());
    }
    Parts const ours(a);
    Parts const theirs(b);
    Gap best{std::numeric_limits<double>::infinity(), {}, {}};
    for (std::size_t i = 0; i < ours.shapes().size() && best.distance > 0; ++i) {
        auto const nearest = theirs.grid().lowest(
            best.distance, [&](Box const & box) { return boxGap(box, ours.box(i)); },
            [&](std::size_t j) { return gapBetween(ours.shapes()[i], theirs.shapes()[j]).distance; });
        if (nearest) {
            best = gapBetween(ours.shapes()[i], theirs.shapes()[nearest->item]);
        }
    }
    // No sides cross: what has a point inside the other lies inside as a whole.
    auto const enclosed = [&best](Parts const & outer, Parts const & inner) {
        for (API::point const & point : inner.samples()) {
            if (best.distance > 0 && outer.isInOutlines(point)) {
                best = {0, point, point};
            }
        }
    };
    enclosed(ours, theirs);
    enclosed(theirs, ours);
    return best;
}

} // namespace KVCAM::Embedded
