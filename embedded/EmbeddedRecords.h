#pragma once

#include <string>

/// What the default engine offers beyond the host's interface.
namespace KVCAM::Embedded {

/// An upright rectangle in micrometres.
struct Box
{
    ///@{
    /// An edge.
    double left = 0;
    double bottom = 0;
    double right = 0;
    double top = 0;
    ///@}
};

/// One tool of a drill or rout layer; sizes in micrometres.
struct Tool
{
    int number = 0;        ///< as in the tools file
    std::string type;      ///< "via", "plated", "non_plated"
    double drillSize = 0;  ///< of the drill
    double finishSize = 0; ///< of the hole when it is finished
};

} // namespace KVCAM::Embedded
