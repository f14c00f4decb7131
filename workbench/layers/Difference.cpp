#include "layers/Difference.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace Workbench {

namespace {

// From the largest to the smallest; equal ones from the top.
bool isBefore(DifferingRegion const & a, DifferingRegion const & b)
{
    return std::make_tuple(-a.pixels, a.place.y(), a.place.x()) <
           std::make_tuple(-b.pixels, b.place.y(), b.place.x());
}

} // namespace

std::size_t Difference::root(std::size_t region)
{
    while (m_open[region].parent != region) {
        m_open[region].parent = m_open[m_open[region].parent].parent;
        region = m_open[region].parent;
    }
    return region;
}

void Difference::join(std::size_t one, std::size_t other)
{
    one = root(one);
    other = root(other);
    if (one == other) {
        return;
    }
    Open & kept = m_open[one];
    Open & joined = m_open[other];
    bool const isAbove = std::make_tuple(joined.region.place.y(), joined.region.place.x()) <
                         std::make_tuple(kept.region.place.y(), kept.region.place.x());
    if (joined.longest > kept.longest || (joined.longest == kept.longest && isAbove)) {
        kept.longest = joined.longest;
        kept.region.place = joined.region.place;
    }
    kept.region.pixels += joined.region.pixels;
    kept.region.box |= joined.region.box;
    joined.parent = one;
}

// `above` is the first run of the row before that may still touch a later one.
void Difference::addRun(int first, int last, Pixel kind, std::size_t & above)
{
    std::size_t const region = m_open.size();
    int const length = last - first + 1;
    m_open.push_back(
        {{kind, length, QRect(first, m_y, length, 1), {first + (length - 1) / 2, m_y}}, length, region});
    m_runs.push_back({first, last, kind, region});
    while (above < m_above.size() && m_above[above].last + 1 < first) {
        ++above;
    }
    for (std::size_t i = above; i < m_above.size() && m_above[i].first <= last + 1; ++i) {
        if (m_above[i].kind == kind) {
            join(m_above[i].region, region);
        }
    }
}

void Difference::addRow(std::vector<Pixel> const & row)
{
    std::size_t above = 0;
    int const width = static_cast<int>(row.size());
    for (int x = 0; x < width;) {
        Pixel const kind = row[static_cast<std::size_t>(x)];
        int end = x + 1;
        while (end < width && row[static_cast<std::size_t>(end)] == kind) {
            ++end;
        }
        m_pixels[static_cast<std::size_t>(kind)] += end - x;
        if (kind == Pixel::OnlyFirst || kind == Pixel::OnlySecond) {
            addRun(x, end - 1, kind, above);
        }
        x = end;
    }
    closeRegions();
    ++m_y;
}

void Difference::finish()
{
    m_runs.clear();
    closeRegions();
    std::sort(m_finished.begin(), m_finished.end(), isBefore);
    if (m_finished.size() > 2 * m_listed) {
        thinOut();
    }
}

// Regions without a run in this row are finished; the others are numbered anew.
void Difference::closeRegions()
{
    std::size_t const none = m_open.size();
    std::vector<std::size_t> numbers(m_open.size(), none);
    std::vector<Open> open;
    for (Run & run : m_runs) {
        std::size_t const old = root(run.region);
        if (numbers[old] == none) {
            numbers[old] = open.size();
            open.push_back(m_open[old]);
            open.back().parent = numbers[old];
        }
        run.region = numbers[old];
    }
    for (std::size_t i = 0; i < m_open.size(); ++i) {
        if (m_open[i].parent == i && numbers[i] == none) {
            ++m_count[static_cast<std::size_t>(m_open[i].region.kind)];
            m_finished.push_back(m_open[i].region);
        }
    }
    m_open = std::move(open);
    m_above = std::exchange(m_runs, {});
    if (m_finished.size() > 8 * m_listed) {
        std::sort(m_finished.begin(), m_finished.end(), isBefore);
        thinOut();
    }
}

// What is not at an end of a part of the regions is at no end of all.
void Difference::thinOut()
{
    auto const listed = static_cast<std::ptrdiff_t>(m_listed);
    m_finished.erase(m_finished.begin() + listed, m_finished.end() - listed);
}

} // namespace Workbench
