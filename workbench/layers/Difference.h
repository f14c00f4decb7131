#pragma once

#include <QPoint>
#include <QRect>

#include <cstddef>
#include <vector>

namespace Workbench {

/// What a pixel of two compared layers shows.
enum class Pixel : char
{
    Nothing,
    Both,
    OnlyFirst,
    OnlySecond
};

/// The kind of a pixel by how much of it each layer covers (0 to 255). A difference of up to half a pixel is
/// an edge that the two draw alike.
constexpr Pixel pixelOf(int first, int second)
{
    return first - second > 127   ? Pixel::OnlyFirst
           : second - first > 127 ? Pixel::OnlySecond
           : first + second > 255 ? Pixel::Both
                                  : Pixel::Nothing;
}

/// Pixels of one kind that touch, also by their corners.
struct DifferingRegion
{
    Pixel kind = Pixel::OnlyFirst;
    long long pixels = 0;
    QRect box;
    QPoint place; ///< in the middle of the first of its longest rows
};

/// Finds the regions in which two layers differ, in one pass over the rows of a picture. Memory is needed for
/// two rows and for the listed regions, however large the picture.
class Difference
{
public:
    /// Lists the largest `listed` regions and as many of the smallest.
    explicit Difference(std::size_t listed) : m_listed(listed) {}

    /// Adds the next row; all rows have the same length.
    void addRow(std::vector<Pixel> const & row);
    /// Ends the picture.
    void finish();

    /// The number of regions.
    long long count(Pixel kind) const { return m_count[static_cast<std::size_t>(kind)]; }
    /// The number of pixels.
    long long pixels(Pixel kind) const { return m_pixels[static_cast<std::size_t>(kind)]; }
    /// The listed regions from the largest to the smallest: all, or those at both ends. Call after finish().
    std::vector<DifferingRegion> const & regions() const { return m_finished; }

private:
    struct Run
    {
        int first;
        int last;
        Pixel kind;
        std::size_t region; // in m_open
    };
    struct Open
    {
        DifferingRegion region;
        int longest = 0;
        std::size_t parent; // itself, unless it was joined to another
    };

    std::size_t root(std::size_t region);
    void join(std::size_t one, std::size_t other);
    void addRun(int first, int last, Pixel kind, std::size_t & above);
    void closeRegions();
    void thinOut();

    std::size_t m_listed;
    int m_y = 0;
    std::vector<Run> m_above; // of the row before
    std::vector<Run> m_runs;  // of this row
    std::vector<Open> m_open; // regions that may go on
    std::vector<DifferingRegion> m_finished;
    long long m_count[4] = {};
    long long m_pixels[4] = {};
};

} // namespace Workbench
