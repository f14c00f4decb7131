#pragma once

#include <cstddef>
#include <utility>
#include <vector>

namespace KVCAM::UIAPI {

/// boundedMergeSort() on the range items[start] up to items[end]. The buffer holds half of it.
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

/// Merge sort: takes the right element first if before(right, left), else the left one. Stable for a strict
/// weak order. For any other `before`, no element is lost and nothing outside the range is accessed.
/// std::sort does not guarantee that, and the comparisons of check results also return true for equal
/// elements.
template <class Item, class Before>
void boundedMergeSort(std::vector<Item> & items, Before before)
{
    std::vector<Item> buffer(items.size() / 2);
    mergeSortRange(items, buffer, 0, items.size(), before);
}

/// Moves the elements into the order of `indices`, which lists each index once.
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
