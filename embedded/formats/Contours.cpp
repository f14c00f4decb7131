#include "formats/Contours.h"

#include <algorithm>

namespace KVCAM::Embedded {

Side Contours::Sides::operator[](std::size_t index) const
{
    Side side;
    std::size_t const wanted = m_first + index;
    side.to = m_data->ends[wanted];
    auto const & arcs = m_data->arcs;
    auto const arc = std::lower_bound(arcs.begin(), arcs.end(), wanted,
                                      [](Arc const & a, std::size_t number) { return a.side < number; });
    if (arc != arcs.end() && arc->side == wanted) {
        side.arc = true;
        side.clockwise = arc->clockwise;
        side.centre = arc->centre;
    }
    return side;
}

Contours::Contours(Contours const & other)
    : m_data(other.m_data ? std::make_unique<Data>(*other.m_data) : nullptr)
{}

Contours & Contours::operator=(Contours const & other)
{
    if (this != &other) {
        m_data = other.m_data ? std::make_unique<Data>(*other.m_data) : nullptr;
    }
    return *this;
}

Contour Contours::operator[](std::size_t index) const
{
    Head const & head = m_data->heads[index];
    std::size_t const end =
        index + 1 < m_data->heads.size() ? m_data->heads[index + 1].firstSide : m_data->ends.size();
    Contour contour;
    contour.island = head.island;
    contour.start = head.start;
    contour.sides.m_data = m_data.get();
    contour.sides.m_first = head.firstSide;
    contour.sides.m_size = end - head.firstSide;
    return contour;
}

void Contours::add(API::point start, bool island)
{
    if (!m_data) {
        m_data = std::make_unique<Data>();
    }
    m_data->heads.push_back({start, static_cast<std::uint32_t>(m_data->ends.size()), island});
}

void Contours::addSide(Side const & side)
{
    if (side.arc) {
        m_data->arcs.push_back(
            {side.centre, static_cast<std::uint32_t>(m_data->ends.size()), side.clockwise});
    }
    m_data->ends.push_back(side.to);
}

void Contours::shrink()
{
    if (m_data) {
        m_data->heads.shrink_to_fit();
        m_data->ends.shrink_to_fit();
        m_data->arcs.shrink_to_fit();
    }
}

} // namespace KVCAM::Embedded
