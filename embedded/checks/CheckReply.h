#pragma once

#include <kvcam/Records.h>

#include <cstddef>
#include <utility>

/// The members of check_reply. The engine's library instantiates them for the items that it answers, so they
/// are not in the host's headers. Include this in one source only: elsewhere they would be instantiated with
/// hidden visibility, and the linker would use the hidden copies for both.
namespace KVCAM::API {

template <class Item, class Info>
void check_reply<Item, Info>::add(Item item, int level, Info info)
{
    if (level >= 0 && level < 3) {
        m_lists[item][static_cast<std::size_t>(level)].push_back(std::move(info));
    }
}

template <class Item, class Info>
std::vector<Info> const & check_reply<Item, Info>::list(Item item, int level) const
{
    static std::vector<Info> const none;
    auto const found = m_lists.find(item);
    return found == m_lists.end() || level < 0 || level >= 3 ? none
                                                             : found->second[static_cast<std::size_t>(level)];
}

} // namespace KVCAM::API
