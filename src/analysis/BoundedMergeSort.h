#pragma once

#include <cstddef>
#include <utility>
#include <vector>

namespace KVCAM::UIAPI {

/// What boundedMergeSort() does to items[start] up to items[end]. The buffer holds half of them.
template <class Item, class Before>
void mergeSortRange(std::vector<Item> & items, std::vector<Item> & buffer, std::size_t start, std::size_t end,
                    Before const & before)
{
    if (end - start < 2) {
        return;
    }
    std::size_t const middle = start + (end - start) / 2;
    mergeSortRange(items, buffer, start, middle, before);
    mergeSortRange(items, buffer, middle, end, before);
    std::size_t const count = middle - start;
    for (std::size_t i = 0; i < count; ++i) {
        buffer[i] = std::move(items[start + i]);
    }
    std::size_t right = middle;
    std::size_t to = start; // never overtakes `right`
    for (std::size_t left = 0; left < count; ++to) {
        bool const takesRight = right != end && before(items[right], buffer[left]);
        items[to] = std::move(takesRight ? items[right++] : buffer[left++]);
    }
}

/// Sorts by merging, the right element first when before(right, left), else the left one. A strict weak order
/// is thus kept stably. Whatever else `before` says, no element is lost and none outside the range is
/// touched, which std::sort does not promise: the orders of the check results hold for equal elements too.
template <class Item, class Before>
void boundedMergeSort(std::vector<Item> & items, Before before)
{
    std::vector<Item> buffer(items.size() / 2);
    mergeSortRange(items, buffer, 0, items.size(), before);
}

/// Puts the elements into the order of `indices`, which names each once, by moving them.
template <class Item, class Index>
void permute(std::vector<Item> & items, std::vector<Index> const & indices)
{
    std::vector<Item> ordered;
    ordered.reserve(items.size());
    for (Index const & index : indices) {
        ordered.push_back(std::move(items[index.index]));
    }
    items = std::move(ordered);
}

} // namespace KVCAM::UIAPI
