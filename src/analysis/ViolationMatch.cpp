#include "analysis/ViolationMatch.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <numeric>
#include <string_view>
#include <tuple>
#include <unordered_map>
#include <utility>

namespace KVCAM::UIAPI::Ext {
namespace {

using Violations = std::vector<MatchedViolation>;
using Indices = std::vector<std::size_t>;
using Matches = std::vector<std::optional<std::size_t>>;

// How many of three squares above each other are compared with each, and how many of all these are kept to
// choose from. Around a violation of one check between the same nets there are one or two on real boards.
constexpr std::size_t mostCompared = 64;
constexpr std::size_t mostKept = 8;

// The middle of the places: it moves no farther than they do, and their order does not matter.
KVCAM::API::point middleOf(ViolationName const & name)
{
    KVCAM::API::point sum{0, 0};
    for (KVCAM::API::point const & place : name.places) {
        sum.x += place.x;
        sum.y += place.y;
    }
    auto const count = static_cast<double>(std::max<std::size_t>(name.places.size(), 1));
    return {sum.x / count, sum.y / count};
}

double distance(ViolationName const & a, ViolationName const & b, bool isCrossed)
{
    double sum = 0;
    for (std::size_t i = 0; i < a.places.size(); ++i) {
        KVCAM::API::point const & from = a.places[i];
        KVCAM::API::point const & to = b.places[isCrossed ? a.places.size() - 1 - i : i];
        sum += std::hypot(from.x - to.x, from.y - to.y);
    }
    return sum;
}

// Items of one net may stand in either order.
double distance(ViolationName const & a, ViolationName const & b)
{
    double const straight = distance(a, b, false);
    return a.nets[0] == a.nets[1] ? std::min(straight, distance(a, b, true)) : straight;
}

std::int64_t difference(std::optional<Length> a, std::optional<Length> b)
{
    if (!a || !b) {
        return a || b ? std::numeric_limits<std::int64_t>::max() : 0;
    }
    Length const rest = *a - *b;
    return std::max(rest, -rest).nanometres();
}

// One text for all violations that can be the same but for their places.
std::string kindOf(ViolationName const & name)
{
    auto const & [first, second] = std::minmax(name.nets[0], name.nets[1]);
    std::string text = std::to_string(name.number) + ' ' + std::to_string(name.places.size());
    for (std::string_view const part :
         {std::string_view(name.table), std::string_view(name.layer), std::string_view(first)}) {
        text += ' ' + std::to_string(part.size()) + ' ';
        text += part;
    }
    return text + second;
}

struct Cell
{
    std::size_t kind = 0;
    std::int64_t column = 0;
    std::int64_t row = 0;

    friend bool operator<(Cell const & a, Cell const & b)
    {
        return std::tie(a.kind, a.column, a.row) < std::tie(b.kind, b.column, b.row);
    }
};

// What is left of `before`, in squares of the tolerance.
class Squares
{
public:
    Squares(Violations const & violations, Indices const & left, Length tolerance)
        : m_violations(violations), m_side(std::max(tolerance.toMicrometres(), 1.0)), m_tolerance(tolerance)
    {
        m_spots.reserve(left.size());
        for (std::size_t const index : left) {
            ViolationName const & name = violations[index].name;
            std::size_t const kind = m_kinds.try_emplace(kindOf(name), m_kinds.size()).first->second;
            m_spots.emplace_back(cellOf(kind, name), index);
        }
        std::stable_sort(m_spots.begin(), m_spots.end(),
                         [](Spot const & a, Spot const & b) { return a.first < b.first; });
        m_next.resize(m_spots.size() + 1);
        std::iota(m_next.begin(), m_next.end(), std::size_t(0));
    }

    struct Candidate
    {
        double distance = 0;         ///< of all places, micrometres
        std::int64_t difference = 0; ///< of the measured values
        std::size_t spot = 0;

        friend bool operator<(Candidate const & a, Candidate const & b)
        {
            return std::tie(a.distance, a.difference, a.spot) < std::tie(b.distance, b.difference, b.spot);
        }
    };

    // The nearest ones that are not taken, at most `count`, ascending.
    std::vector<Candidate> nearest(MatchedViolation const & wanted, std::size_t count)
    {
        std::vector<Candidate> found;
        auto const kind = m_kinds.find(kindOf(wanted.name));
        if (kind == m_kinds.end()) {
            return found;
        }
        Cell const middle = cellOf(kind->second, wanted.name);
        for (std::int64_t column = middle.column - 1; column <= middle.column + 1; ++column) {
            Cell const lowest{middle.kind, column, middle.row - 1};
            Cell const highest{middle.kind, column, middle.row + 1};
            auto const first =
                std::lower_bound(m_spots.begin(), m_spots.end(), lowest,
                                 [](Spot const & spot, Cell const & cell) { return spot.first < cell; });
            std::size_t compared = 0;
            for (std::size_t i = freeFrom(static_cast<std::size_t>(first - m_spots.begin()));
                 i < m_spots.size() && !(highest < m_spots[i].first) && compared < mostCompared;
                 i = freeFrom(i + 1), ++compared) {
                MatchedViolation const & other = violation(i);
                if (isSameViolation(other.name, wanted.name, m_tolerance)) {
                    found.push_back(
                        {distance(other.name, wanted.name), difference(other.measured, wanted.measured), i});
                }
            }
        }
        std::sort(found.begin(), found.end());
        found.resize(std::min(found.size(), count));
        return found;
    }

    bool isTaken(std::size_t spot) const { return m_next[spot] != spot; }
    void take(std::size_t spot) { m_next[spot] = spot + 1; }
    std::size_t indexOf(std::size_t spot) const { return m_spots[spot].second; }

private:
    using Spot = std::pair<Cell, std::size_t>; // where, and the index of the violation

    Cell cellOf(std::size_t kind, ViolationName const & name) const
    {
        KVCAM::API::point const middle = middleOf(name);
        return {kind, static_cast<std::int64_t>(std::floor(middle.x / m_side)),
                static_cast<std::int64_t>(std::floor(middle.y / m_side))};
    }

    MatchedViolation const & violation(std::size_t spot) const { return m_violations[indexOf(spot)]; }

    // The first spot from here on that is not taken. Shortens the way for the next call.
    std::size_t freeFrom(std::size_t spot)
    {
        std::size_t end = spot;
        while (m_next[end] != end) {
            end = m_next[end];
        }
        while (m_next[spot] != end) {
            spot = std::exchange(m_next[spot], end);
        }
        return end;
    }

    Violations const & m_violations;
    double m_side; // micrometres
    Length m_tolerance;
    std::unordered_map<std::string, std::size_t> m_kinds;
    std::vector<Spot> m_spots;
    Indices m_next; // by spot: itself, or where to look if it is taken
};

void matchEqualIds(Violations const & before, Violations const & after, Matches & matches)
{
    std::unordered_map<std::string_view, std::size_t> ids;
    ids.reserve(before.size());
    for (std::size_t i = 0; i < before.size(); ++i) {
        ids.try_emplace(before[i].id, i);
    }
    for (std::size_t i = 0; i < after.size(); ++i) {
        if (auto const found = ids.find(after[i].id); found != ids.end()) {
            matches[i] = found->second;
            ids.erase(found);
        }
    }
}

// The indices that are not paired, by id, so that the order of the entries does not matter.
template <class IsPaired>
Indices unpaired(Violations const & violations, IsPaired isPaired)
{
    Indices left;
    for (std::size_t i = 0; i < violations.size(); ++i) {
        if (!isPaired(i)) {
            left.push_back(i);
        }
    }
    std::stable_sort(left.begin(), left.end(),
                     [&](std::size_t a, std::size_t b) { return violations[a].id < violations[b].id; });
    return left;
}

void matchNearby(Squares & squares, Violations const & after, Indices const & wanted, Matches & matches)
{
    using Pair = std::pair<Squares::Candidate, std::size_t>; // and the index of what is wanted
    std::vector<Pair> pairs;
    for (std::size_t const index : wanted) {
        for (Squares::Candidate const & candidate : squares.nearest(after[index], mostKept)) {
            pairs.emplace_back(candidate, index);
        }
    }
    std::stable_sort(pairs.begin(), pairs.end(),
                     [](Pair const & a, Pair const & b) { return a.first < b.first; });
    for (auto const & [candidate, index] : pairs) {
        if (!matches[index] && !squares.isTaken(candidate.spot)) {
            matches[index] = squares.indexOf(candidate.spot);
            squares.take(candidate.spot);
        }
    }
    // Those whose candidates all went to others, in a crowd.
    for (std::size_t const index : wanted) {
        if (!matches[index]) {
            for (Squares::Candidate const & candidate : squares.nearest(after[index], 1)) {
                matches[index] = squares.indexOf(candidate.spot);
                squares.take(candidate.spot);
            }
        }
    }
}

} // namespace

std::vector<std::optional<std::size_t>> matchViolations(std::vector<MatchedViolation> const & before,
                                                        std::vector<MatchedViolation> const & after,
                                                        Length tolerance)
{
    Matches matches(after.size());
    matchEqualIds(before, after, matches);
    std::vector<bool> isPaired(before.size());
    for (auto const & match : matches) {
        if (match) {
            isPaired[*match] = true;
        }
    }
    Squares squares(before, unpaired(before, [&](std::size_t i) { return isPaired[i]; }), tolerance);
    Indices const wanted = unpaired(after, [&](std::size_t i) { return matches[i].has_value(); });
    matchNearby(squares, after, wanted, matches);
    return matches;
}

} // namespace KVCAM::UIAPI::Ext
