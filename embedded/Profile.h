#pragma once

#include "EmbeddedEngine.h"
#include "FeaturesFile.h"

#include <optional>

namespace KVCAM::Embedded {

/// A step's outline: every contour of the profile's surfaces as a closed polygon, and the extent of them all.
struct Profile
{
    std::vector<std::vector<API::point>> outlines;
    Box box;
};

/// Nothing when the file holds no surface.
std::optional<Profile> profileOf(FeaturesFile const & file);

/// A contour as a polygon without a repeated last point. An arc gives a point at each multiple of five
/// degrees, so that the polygon's extent is the arc's.
std::vector<API::point> polygon(Contour const & contour);

} // namespace KVCAM::Embedded
