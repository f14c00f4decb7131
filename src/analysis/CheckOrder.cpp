#include "analysis/CheckOrder.h"

#include "analysis/BoundedMergeSort.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace KVCAM::UIAPI {
namespace {

constexpr std::array<std::size_t, 3> comparedPoints = {2, 4, 6};
constexpr int unordered = -1;

// Which of the compared points counts for a kind.
int slotOf(int kind)
{
    switch (kind) {
    case 0:
    case 5: // although the measured value is the smaller of the third and the fourth point
        return 0;
    case 1:
    case 2:
        return 1;
    case 3:
        return 2;
    default:
        return unordered;
    }
}

// What the comparison reads of an entry, so that it is looked up once and not once per comparison.
struct Key
{
    std::array<int, comparedPoints.size()> points{};
    std::int8_t slot = unordered;
    std::int8_t held = 0; // how many of the compared points there are
    std::uint32_t index = 0;
};

Key keyOf(check_info const & entry, std::size_t index)
{
    Key key;
    key.slot = static_cast<std::int8_t>(slotOf(entry.type));
    key.index = static_cast<std::uint32_t>(index);
    for (std::size_t i = 0; i < comparedPoints.size() && comparedPoints[i] < entry.points.size(); ++i) {
        key.points[i] = entry.points[comparedPoints[i]];
        key.held = static_cast<std::int8_t>(i + 1);
    }
    return key;
}

bool isBefore(Key const & a, Key const & b)
{
    if (a.slot == unordered) {
        return true;
    }
    auto const slot = static_cast<std::size_t>(a.slot);
    return a.slot < a.held && a.slot < b.held && a.points[slot] < b.points[slot];
}

} // namespace

bool goesBefore(check_info const & a, check_info const & b)
{
    return isBefore(keyOf(a, 0), keyOf(b, 0));
}

void sortByMeasure(std::vector<check_info> & entries)
{
    std::vector<Key> keys;
    keys.reserve(entries.size());
    for (check_info const & entry : entries) {
        keys.push_back(keyOf(entry, keys.size()));
    }
    boundedMergeSort(keys, isBefore);
    permute(entries, keys);
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
