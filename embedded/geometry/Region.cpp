#include "geometry/Region.h"

#include <utility>

namespace KVCAM::Embedded {

Region placed(Region region, Placement const & where)
{
    for (Shape & piece : region.pieces) {
        piece = placed(std::move(piece), where);
    }
    for (std::vector<API::point> & outline : region.outlines) {
        for (API::point & corner : outline) {
            corner = placed(corner, where);
        }
    }
    return region;
}

} // namespace KVCAM::Embedded
