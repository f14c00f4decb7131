#include "analysis/CheckOrder.h"

#include "analysis/BoundedMergeSort.h"
#include "analysis/CheckKinds.h"
#include "support/Compiler.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <numeric>

namespace KVCAM::UIAPI {
namespace {

constexpr std::size_t unordered = comparedPoints.size();

// Parameters of the radix sort. Below this many entries its tables cost more than merging.
constexpr unsigned digitBits = 11;
constexpr std::size_t fewest = 1000;

// Index of a kind's sort key in comparedPoints.
std::size_t slotOf(int kind)
{
    std::size_t const point = checkKind(kind).compared;
    std::size_t slot = 0;
    while (slot < unordered && comparedPoints[slot] != point) {
        ++slot;
    }
    return slot;
}

// The sort data of an entry, read once instead of once per comparison.
struct Key
{
    check_info const * entry = nullptr;
    std::array<int, comparedPoints.size()> points{};
    std::uint8_t slot = unordered;
    std::uint8_t held = 0; // how many of the compared points the entry has
};

Key keyOf(check_info const & entry)
{
    Key key;
    key.entry = &entry;
    key.slot = static_cast<std::uint8_t>(slotOf(entry.type));
    for (std::size_t i = 0; i < comparedPoints.size() && comparedPoints[i] < entry.points.size(); ++i) {
        key.points[i] = entry.points[comparedPoints[i]];
        key.held = static_cast<std::uint8_t>(i + 1);
    }
    return key;
}

bool isBefore(Key const & a, Key const & b)
{
    if (a.slot == unordered) {
        return true;
    }
    return a.slot < a.held && a.slot < b.held && a.points[a.slot] < b.points[a.slot];
}

// The usual case: all entries have the same sort-key point, so plain numbers are compared.
bool areAlike(std::vector<Key> const & keys)
{
    return std::all_of(keys.begin(), keys.end(), [&](Key const & key) {
        return key.slot != unordered && key.slot == keys.front().slot && key.slot < key.held;
    });
}

struct Number
{
    std::uint32_t value = 0;
    std::uint32_t index = 0;
};

// One pass of a radix sort: a stable sort by the bits from `shift` on.
void sortByDigit(std::vector<Number> & numbers, std::vector<Number> & buffer, unsigned shift)
{
    constexpr std::uint32_t digits = 1U << digitBits;
    auto const digitOf = [shift](Number const & number) { return (number.value >> shift) & (digits - 1); };
    std::array<std::size_t, digits> next{};
    for (Number const & number : numbers) {
        ++next[digitOf(number)];
    }
    std::exclusive_scan(next.begin(), next.end(), next.begin(), std::size_t{0});
    for (Number const & number : numbers) {
        buffer[next[digitOf(number)]++] = number;
    }
    numbers.swap(buffer);
}

// Same order as the merge sort, in time linear in the number of entries.
void sortAlike(std::vector<Key> & keys)
{
    std::vector<Number> numbers;
    numbers.reserve(keys.size());
    for (Key const & key : keys) {
        auto const value = static_cast<std::uint32_t>(key.points[key.slot]);
        numbers.push_back(
            {value ^ 0x80000000U, static_cast<std::uint32_t>(numbers.size())}); // negative numbers first
    }
    std::vector<Number> buffer(numbers.size());
    for (unsigned shift = 0; shift < 32; shift += digitBits) {
        sortByDigit(numbers, buffer, shift);
    }
    permute(keys, numbers);
}

} // namespace

bool goesBefore(check_info const & a, check_info const & b)
{
    return isBefore(keyOf(a), keyOf(b));
}

std::vector<check_info> sortedByMeasure(std::vector<std::vector<check_info> const *> const & lists)
{
    std::vector<Key> keys;
    for (std::vector<check_info> const * list : lists) {
        keys.reserve(keys.size() + list->size());
        for (check_info const & entry : *list) {
            keys.push_back(keyOf(entry));
        }
    }
    if (keys.size() >= fewest && areAlike(keys)) {
        sortAlike(keys);
    } else {
        boundedMergeSort(keys, isBefore);
    }
    // Copy in final order, so that entries read in sequence are also in sequence in memory. The sources are
    // scattered; prefetching some steps ahead hides most of the latency.
    constexpr std::size_t ahead = 8;
    std::vector<check_info> sorted;
    sorted.reserve(keys.size());
    for (std::size_t i = 0; i < keys.size(); ++i) {
        if (i + 2 * ahead < keys.size()) {
            prefetch(keys[i + 2 * ahead].entry);
        }
        if (i + ahead < keys.size()) {
            prefetch(keys[i + ahead].entry->points.data());
        }
        sorted.push_back(*keys[i].entry);
    }
    return sorted;
}

std::optional<int> layerValue(unified_check_result const & result)
{
    for (std::vector<check_info> const & group : result.groups) {
        if (!group.empty()) {
            return group.front().value;
        }
    }
    return std::nullopt;
}

} // namespace KVCAM::UIAPI
