#include "checks/NetJoin.h"

#include "checks/CopperItems.h"

#include <numeric>
#include <utility>

namespace KVCAM::Embedded {

NetSets::NetSets(std::size_t count) : m_parent(count), m_listed(count, nothing)
{
    std::iota(m_parent.begin(), m_parent.end(), 0U);
}

std::uint32_t NetSets::find(std::uint32_t item)
{
    while (m_parent[item] != item) {
        m_parent[item] = m_parent[m_parent[item]];
        item = m_parent[item];
    }
    return item;
}

bool NetSets::isListed(std::uint32_t item)
{
    return listedNet(item) != nothing;
}

bool NetSets::isSettled(std::uint32_t a, std::uint32_t b)
{
    return find(a) == find(b) || (isListed(a) && isListed(b));
}

void NetSets::unite(std::uint32_t a, std::uint32_t b)
{
    if (!isSettled(a, b)) {
        // The listed one stands for both, else the smaller.
        std::uint32_t first = find(a);
        std::uint32_t second = find(b);
        bool const swap = m_listed[second] != nothing || (m_listed[first] == nothing && second < first);
        if (swap) {
            std::swap(first, second);
        }
        m_parent[second] = first;
    }
}

NetJoin::NetJoin(SpatialGrid const & grid, std::vector<std::uint32_t> items, NetSets & sets)
    : m_grid(grid)
    , m_items(std::move(items))
    , m_sets(sets)
    , m_nodes(grid.nodeCount(), Known{nothing, false, false})
{}

bool NetJoin::isOpen(Known const & known, std::uint32_t item)
{
    bool const same = known.together && m_sets.find(known.one) == m_sets.find(item);
    return !same && !(known.listed && m_sets.isListed(item));
}

void NetJoin::include(Known const & below)
{
    if (m_open.empty()) {
        return;
    }
    Known & node = m_open.back();
    node.listed = node.listed && below.listed;
    node.together = node.together && below.together &&
                    (node.one == nothing || m_sets.find(node.one) == m_sets.find(below.one));
    node.one = below.one == nothing ? node.one : below.one;
}

} // namespace KVCAM::Embedded
