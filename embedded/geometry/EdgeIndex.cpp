#include "geometry/EdgeIndex.h"

#include "geometry/CheckGeometry.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace KVCAM::Embedded {
namespace {

std::vector<Box> boxesOf(std::vector<Edge> const & edges)
{
    std::vector<Box> boxes;
    boxes.reserve(edges.size());
    for (auto const & [from, to] : edges) {
        boxes.push_back(boxOf(from));
        include(boxes.back(), to);
    }
    return boxes;
}

// Sorts the heights and drops equal ones in pairs: what changes twice does not change.
void cancelPairs(std::vector<double> & heights)
{
    std::sort(heights.begin(), heights.end());
    std::size_t kept = 0;
    for (double const height : heights) {
        if (kept > 0 && heights[kept - 1] == height) {
            --kept;
        } else {
            heights[kept++] = height;
        }
    }
    heights.resize(kept);
}

} // namespace

EdgeIndex::EdgeIndex(std::vector<Edge> edges)
    : m_edges(std::move(edges)), m_grid(boxesOf(m_edges)), m_nodes(m_grid.nodeCount())
{
    collectHeights();
}

void EdgeIndex::collectHeights()
{
    std::vector<std::vector<double>> open; // of the nodes from the root to the current one
    m_grid.walk(
        [&](std::size_t /*node*/, Box const & /*box*/) {
            open.emplace_back();
            return true;
        },
        [&](std::size_t edge) {
            open.back().push_back(m_edges[edge][0].y);
            open.back().push_back(m_edges[edge][1].y);
        },
        [&](std::size_t node) {
            std::vector<double> heights = std::move(open.back());
            open.pop_back();
            cancelPairs(heights);
            m_nodes[node] = {m_heights.size(), heights.size()};
            m_heights.insert(m_heights.end(), heights.begin(), heights.end());
            if (!open.empty()) {
                open.back().insert(open.back().end(), heights.begin(), heights.end());
            }
        });
}

bool EdgeIndex::holds(API::point point) const
{
    bool inside = false;
    m_grid.walk(
        [&](std::size_t node, Box const & box) {
            if (point.y < box.bottom || point.y > box.top || point.x > box.right) {
                return false;
            }
            if (point.x >= box.left) {
                return true;
            }
            // All of the node is to the right: only the heights of its edges matter.
            auto const first = m_heights.begin() + static_cast<std::ptrdiff_t>(m_nodes[node].first);
            auto const end = first + static_cast<std::ptrdiff_t>(m_nodes[node].count);
            inside = inside != ((std::upper_bound(first, end, point.y) - first) % 2 == 1);
            return false;
        },
        [&](std::size_t edge) { inside = inside != isRightOf(m_edges[edge][0], m_edges[edge][1], point); },
        [](std::size_t /*node*/) {});
    return inside;
}

bool EdgeIndex::isNear(API::point point, double within) const
{
    return m_grid
        .lowest(
            within, [&](Box const & box) { return boxGap(box, boxOf(point)); },
            [&](std::size_t edge) {
                return distance(point, nearestOnSide(point, m_edges[edge][0], m_edges[edge][1]));
            })
        .has_value();
}

} // namespace KVCAM::Embedded
