#pragma once

#include "formats/FeaturesFile.h"
#include "geometry/EdgeIndex.h"
#include "geometry/Pieces.h"
#include "geometry/Region.h"
#include "geometry/SpatialGrid.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace KVCAM::Embedded {

/// The areas of items: convex pieces, and regions filled odd-even whose edges are pieces too. Arcs become
/// chords. A piece of an arc is wider by the distance between the arc and its chord, so no area is smaller
/// than what it stands for.
class ItemShapes
{
public:
    /// `tolerance`: the distance between an arc and its chords, see Pieces.h.
    explicit ItemShapes(double tolerance) : m_tolerance(tolerance) {}
    ItemShapes() = default;

    /// Begins the next item; the calls below add to it.
    void begin();
    void addPieces(Region const & region);
    void addWay(Shape const & pen, API::point from, API::point to);
    /// What a pen covers on an arc.
    void addArc(Shape const & pen, Feature const & arc);
    void addContours(Contours const & contours);
    /// A copy of an item of other shapes; regions are not copied.
    void addPieces(ItemShapes const & from, std::uint32_t item);
    /// Drops the latest item.
    void drop();
    /// To be called once, after the last item.
    void index();

    std::uint32_t size() const { return static_cast<std::uint32_t>(m_first.size()); }
    std::size_t firstPiece(std::uint32_t item) const { return m_first[item]; }
    std::size_t endPiece(std::uint32_t item) const
    {
        return item + 1 < m_first.size() ? m_first[item + 1] : m_pieces.size();
    }
    Pieces const & pieces() const { return m_pieces; }
    /// Of the pieces; valid after index().
    SpatialGrid const & grid() const { return m_grid; }
    /// Of the regions; valid after index().
    SpatialGrid const & regionGrid() const { return m_regionGrid; }
    std::size_t regionCount() const { return m_regions.size(); }
    std::uint32_t itemOfRegion(std::size_t region) const { return m_regions[region].item; }
    /// Whether a point is inside a region; valid after index().
    bool holds(std::size_t region, API::point point) const;
    /// Negative, 0 or positive, by an order in which items of one piece that cover the same are equal.
    int compare(std::uint32_t a, std::uint32_t b) const;
    /// The items of one piece.
    std::vector<std::uint32_t> singles() const;
    /// Whether a point is in an item, within `margin` of its pieces; valid after index().
    bool covers(std::uint32_t item, API::point point, double margin) const;
    /// Whether a point is inside the latest item's region; before index().
    bool latestHolds(API::point point) const;

private:
    struct Filled
    {
        std::uint32_t item;
        std::size_t first; // pieces
        std::size_t end;
        std::unique_ptr<EdgeIndex> edges; // of a large one
    };

    void addEdge(API::point from, API::point to, double radius, bool starts);
    void addOutline(Contour const & contour);
    bool scan(Filled const & region, API::point point) const;

    double m_tolerance = 0;
    Pieces m_pieces;
    std::vector<std::uint32_t> m_first; // piece by item; a file holds less than 2^32
    std::vector<Filled> m_regions;
    SpatialGrid m_grid{std::vector<Box>()};
    SpatialGrid m_regionGrid{std::vector<Box>()};
};

/// The tolerance for the arcs of some features: a tenth of a micrometre, or as much more as it takes to stay
/// within four million chords.
double chordTolerance(std::vector<Feature> const & features);

} // namespace KVCAM::Embedded
