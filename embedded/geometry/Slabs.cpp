#include "geometry/Slabs.h"

#include "geometry/Stroke.h"

#include <algorithm>
#include <utility>

namespace KVCAM::Embedded {
namespace {

struct Edge
{
    API::point low;
    API::point high;

    double at(double y) const
    {
        return y <= low.y    ? low.x
               : y >= high.y ? high.x
                             : low.x + (y - low.y) / (high.y - low.y) * (high.x - low.x);
    }
};

std::vector<Edge> edgesOf(Outlines const & outlines)
{
    std::vector<Edge> edges;
    for (std::vector<API::point> const & outline : outlines) {
        for (std::size_t i = 0; i < outline.size(); ++i) {
            API::point const & a = outline[i];
            API::point const & b = outline[(i + 1) % outline.size()];
            if (a.y != b.y) {
                edges.push_back(a.y < b.y ? Edge{a, b} : Edge{b, a});
            }
        }
    }
    return edges;
}

// The heights of the corners, and those at which edges cross.
std::vector<double> heightsOf(std::vector<Edge> const & edges)
{
    std::vector<double> heights;
    for (std::size_t i = 0; i < edges.size(); ++i) {
        heights.push_back(edges[i].low.y);
        heights.push_back(edges[i].high.y);
        for (std::size_t j = 0; j < i; ++j) {
            double const low = std::max(edges[i].low.y, edges[j].low.y);
            double const high = std::min(edges[i].high.y, edges[j].high.y);
            double const before = edges[i].at(low) - edges[j].at(low);
            double const after = edges[i].at(high) - edges[j].at(high);
            if (low < high && (before < 0) != (after < 0)) {
                heights.push_back(low + (high - low) * before / (before - after));
            }
        }
    }
    std::sort(heights.begin(), heights.end());
    heights.erase(std::unique(heights.begin(), heights.end()), heights.end());
    return heights;
}

} // namespace

void forEachSlab(Outlines const & outlines, std::function<void(Shape)> const & take)
{
    std::vector<Edge> const edges = edgesOf(outlines);
    std::vector<double> const heights = heightsOf(edges);
    for (std::size_t i = 0; i + 1 < heights.size(); ++i) {
        double const low = heights[i];
        double const high = heights[i + 1];
        std::vector<std::pair<double, double>> through; // at the lower and the upper end
        for (Edge const & edge : edges) {
            if (edge.low.y <= low && edge.high.y >= high) {
                through.emplace_back(edge.at(low), edge.at(high));
            }
        }
        std::sort(through.begin(), through.end(), [](auto const & a, auto const & b) {
            return a.first / 2 + a.second / 2 < b.first / 2 + b.second / 2;
        });
        for (std::size_t j = 0; j + 1 < through.size(); j += 2) {
            take(convexShape({{through[j].first, low},
                              {through[j + 1].first, low},
                              {through[j + 1].second, high},
                              {through[j].second, high}}));
        }
    }
}

} // namespace KVCAM::Embedded
