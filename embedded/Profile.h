#pragma once

#include "EmbeddedRecords.h"
#include "FeaturesFile.h"

#include <kvcam/Records.h>

#include <cstddef>
#include <optional>
#include <vector>

namespace KVCAM::Embedded {

/// A step's outline: every contour of the profile's surfaces as a closed polygon, and the extent of them all.
struct Profile
{
    std::vector<std::vector<API::point>> outlines;
    Box box;
};

/// Nothing when the file holds no surface. Throws JobError as outlines() does.
std::optional<Profile> profileOf(FeaturesFile const & file);

/// The contours of a feature of `file` as polygons without a repeated last point. An arc gives a point at
/// each multiple of five degrees, so that the polygon's extent is the arc's. `total` counts the points over
/// the features of the file; throws JobError when it passes 10 million, which arcs alone can bring about.
std::vector<std::vector<API::point>> outlines(FeaturesFile const & file, Feature const & feature,
                                              std::size_t & total);

} // namespace KVCAM::Embedded
