#include "geometry/SpatialGrid.h"

#include "geometry/CheckGeometry.h"

#include <cmath>
#include <iterator>
#include <limits>
#include <numeric>
#include <utility>

namespace KVCAM::Embedded {
namespace {

constexpr std::uint32_t mostItems = 0x7FFFFFFF; // a file holds less

API::point centre(Box const & box)
{
    return {box.left / 2 + box.right / 2, box.bottom / 2 + box.top / 2};
}

double size(Box const & box)
{
    return std::min(box.right - box.left, box.top - box.bottom);
}

float below(double value)
{
    auto const near = static_cast<float>(value);
    return static_cast<double>(near) > value ? std::nextafter(near, -std::numeric_limits<float>::max())
                                             : near;
}

float above(double value)
{
    return -below(-value);
}

} // namespace

SpatialGrid::NarrowBox SpatialGrid::around(Box const & box)
{
    return {below(box.left), below(box.bottom), above(box.right), above(box.top)};
}

SpatialGrid::SpatialGrid(std::vector<Box> const & boxes) : m_order(boxes.size())
{
    m_boxes.reserve(boxes.size());
    std::transform(boxes.begin(), boxes.end(), std::back_inserter(m_boxes), around);
    std::iota(m_order.begin(), m_order.end(), 0U);
    if (!m_boxes.empty()) {
        m_nodes.resize(1);
        build(0, 0, m_boxes.size());
    }
}

// Makes the node of a range of m_order.
void SpatialGrid::build(std::size_t index, std::size_t first, std::size_t count)
{
    Box box = this->box(m_order[first]);
    Box centres = boxOf(centre(box));
    for (std::size_t i = first; i < first + count; ++i) {
        Box const item = this->box(m_order[i]);
        include(box, {item.left, item.bottom});
        include(box, {item.right, item.top});
        include(centres, centre(item));
    }
    m_nodes[index].box = around(box);
    m_nodes[index].cell = count <= most ? 1 : 0;
    if (count <= most) {
        m_nodes[index].first = static_cast<std::uint32_t>(first);
        m_nodes[index].count = static_cast<std::uint32_t>(count) & mostItems;
        return;
    }
    bool const spread = centres.right > centres.left || centres.top > centres.bottom;
    Starts const starts = spread ? splitByPlace(first, count, centres) : splitBySize(first, count);

    std::size_t const children = m_nodes.size();
    std::vector<std::pair<std::size_t, std::size_t>> runs;
    for (std::size_t cell = 0; cell + 1 < starts.size(); ++cell) {
        if (starts[cell + 1] > starts[cell]) {
            runs.emplace_back(starts[cell], starts[cell + 1] - starts[cell]);
        }
    }
    m_nodes.resize(children + runs.size());
    m_nodes[index].first = static_cast<std::uint32_t>(children);
    m_nodes[index].count = static_cast<std::uint32_t>(runs.size()) & mostItems;
    for (std::size_t i = 0; i < runs.size(); ++i) {
        build(children + i, runs[i].first, runs[i].second);
    }
}

// Sorts a range by the cells of the centres. At least two cells are used, since the outermost centres fall in
// different cells.
SpatialGrid::Starts SpatialGrid::splitByPlace(std::size_t first, std::size_t count, Box const & centres)
{
    auto const step = [](double value, double low, double high) {
        auto const cells = static_cast<double>(across);
        double const part = high > low ? (value - low) / (high - low) * cells : 0;
        return std::min(static_cast<std::size_t>(part), across - 1);
    };
    auto const cellOf = [&](std::uint32_t item) {
        API::point const at = centre(box(item));
        return step(at.y, centres.bottom, centres.top) * across + step(at.x, centres.left, centres.right);
    };
    Starts starts{};
    for (std::size_t i = first; i < first + count; ++i) {
        ++starts[cellOf(m_order[i]) + 1];
    }
    starts[0] = first;
    std::partial_sum(starts.begin(), starts.end(), starts.begin());
    Starts ends = starts;
    std::vector<std::uint32_t> const run(m_order.begin() + static_cast<std::ptrdiff_t>(first),
                                         m_order.begin() + static_cast<std::ptrdiff_t>(first + count));
    for (std::uint32_t const item : run) {
        m_order[ends[cellOf(item)]++] = item;
    }
    return starts;
}

// Boxes with a common centre cannot be separated by place: largest first, in parts of equal count.
SpatialGrid::Starts SpatialGrid::splitBySize(std::size_t first, std::size_t count)
{
    auto const begin = m_order.begin() + static_cast<std::ptrdiff_t>(first);
    std::stable_sort(begin, begin + static_cast<std::ptrdiff_t>(count),
                     [this](std::uint32_t a, std::uint32_t b) { return size(box(a)) > size(box(b)); });
    Starts starts{};
    for (std::size_t cell = 0; cell < starts.size(); ++cell) {
        starts[cell] = first + count * cell / (starts.size() - 1);
    }
    return starts;
}

} // namespace KVCAM::Embedded
