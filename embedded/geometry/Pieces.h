#pragma once

#include "EmbeddedRecords.h"
#include "geometry/CheckGeometry.h"

#include <kvcam/Records.h>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace KVCAM::Embedded {

/// The convex pieces of a layer's features, with all their corners in one list: a layer may have millions.
class Pieces
{
public:
    /// A piece of an item. `starts`: it is the first of pieces that are joined to each other, or of the edges
    /// of a closed outline.
    void add(std::uint32_t item, PieceView const & piece, bool starts);
    /// Drops the pieces from this one on.
    void cut(std::size_t first);
    /// Gives memory back that was set aside for more pieces.
    void shrink();

    std::size_t size() const { return m_pieces.size(); }
    std::uint32_t itemOf(std::size_t piece) const { return m_pieces[piece].item; }
    bool starts(std::size_t piece) const { return m_pieces[piece].starts; }
    PieceView operator[](std::size_t piece) const
    {
        Piece const & each = m_pieces[piece];
        return {m_corners.data() + each.first, each.count, each.radius};
    }
    std::vector<Box> boxes() const;

private:
    struct Piece
    {
        double radius;
        std::uint32_t first; // in m_corners
        std::uint32_t item;
        std::uint32_t count : 31;
        bool starts : 1;
    };

    std::vector<Piece> m_pieces;
    std::vector<API::point> m_corners;
};

/// The number of chords for an arc that stay within `tolerance` of it, at most 4096 a turn.
double chordCount(API::point start, API::point end, API::point centre, bool clockwise, double tolerance);

/// Appends the ends of the chords of an arc to `points`, the last at `end`. Equal ends make a full circle.
/// Returns how far the arc is from its chords at most.
double appendChords(std::vector<API::point> & points, API::point start, API::point end, API::point centre,
                    bool clockwise, double tolerance);

} // namespace KVCAM::Embedded
