#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace KVCAM::UIAPI {

/// Sorts by merging, the right element first when before(right, left), else the left one. A strict weak order
/// is thus kept stably. Whatever else `before` says, no element is lost and none outside the range is
/// touched, which std::sort does not promise: the orders of the check results hold for equal elements too.
template <class Item, class Before>
void boundedMergeSort(std::vector<Item> & items, Before before)
{
    std::size_t const count = items.size();
    std::vector<Item> merged(count);
    for (std::size_t width = 1; width < count; width *= 2) {
        for (std::size_t start = 0; start < count; start += 2 * width) {
            std::size_t const middle = std::min(start + width, count);
            std::size_t const end = std::min(middle + width, count);
            std::size_t left = start;
            std::size_t right = middle;
            for (std::size_t to = start; to < end; ++to) {
                bool const takesRight = left == middle || (right != end && before(items[right], items[left]));
                merged[to] = std::move(items[takesRight ? right++ : left++]);
            }
        }
        items.swap(merged);
    }
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
