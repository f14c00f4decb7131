#pragma once

#include "EmbeddedRecords.h"
#include "formats/FeaturesFile.h"

#include <kvcam/Records.h>

#include <cstddef>
#include <optional>
#include <vector>

namespace KVCAM::Embedded {

/// A step's outline: every contour of the profile's surfaces as a closed polygon, and their common extent.
struct Profile
{
    std::vector<std::vector<API::point>> outlines;
    Box box;
};

/// Nothing if the file holds no surface. Throws JobError above `mostPoints` points.
std::optional<Profile> profileOf(FeaturesFile const & file, long long mostPoints);

/// The contours of a feature of `file` as polygons without a repeated last point. An arc yields a point at
/// each multiple of five degrees, so the polygon has the arc's extent. `total` counts the points over the
/// features of the file; throws JobError above 10 million, which only arcs can reach.
std::vector<std::vector<API::point>> outlines(FeaturesFile const & file, Feature const & feature,
                                              std::size_t & total);

} // namespace KVCAM::Embedded
