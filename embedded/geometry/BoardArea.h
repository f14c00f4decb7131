#pragma once

#include "formats/FeaturesFile.h"
#include "geometry/CheckGeometry.h"
#include "geometry/EdgeIndex.h"
#include "geometry/Pieces.h"
#include "geometry/Profile.h"
#include "geometry/Region.h"

#include <optional>

namespace KVCAM::Embedded {

/// The area inside a step's profile. Without a profile everything is inside and nothing is the outline.
class BoardArea
{
public:
    explicit BoardArea(std::optional<Profile> const & profile);

    /// The edge counts as inside, within a micrometre.
    bool holds(API::point point) const;
    /// Whether a pad's place, or the ends and the middle of a line or arc, are inside.
    bool holds(Feature const & feature) const;
    /// Whether one of these points is inside.
    bool holdsSome(Feature const & feature) const;
    /// Whether the outline comes within the box.
    bool passes(Box const & box) const;
    /// Whether the outline runs through the region, not just along its edge.
    bool crosses(Region const & region) const;
    /// Whether a line or arc of this width runs along the profile: its ends and its middle are within half
    /// its width of it.
    bool isOutline(Feature const & feature, double width) const;
    /// Whether a piece touches the profile, within a micrometre.
    bool touchesProfile(PieceView const & piece) const;
    /// A point of the profile; nothing without one.
    std::optional<API::point> profilePoint() const;

private:
    bool crosses(Shape const & shape) const;

    bool m_all; // no profile
    EdgeIndex m_edges;
};

} // namespace KVCAM::Embedded
