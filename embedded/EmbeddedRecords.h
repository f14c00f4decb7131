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

/// A grid of places at which a step repeats another one. Lengths are in micrometres. Each repeated step is
/// turned about its datum, then mirrored in x, and its datum is then moved to its place.
struct StepRepeat
{
    std::string name; ///< of the repeated step
    ///@{
    /// The first place of its datum.
    double x = 0;
    double y = 0;
    ///@}
    ///@{
    /// The distance of columns and of rows.
    double dx = 0;
    double dy = 0;
    ///@}
    ///@{
    /// The number of columns and of rows, positive.
    int nx = 1;
    int ny = 1;
    ///@}
    double angle = 0;      ///< degrees clockwise
    bool mirrored = false; ///< left and right exchanged, after turning
};

/// One repeated step in its place: turned about its origin, then mirrored in x, then moved.
struct StepPlacement
{
    std::string name; ///< of the step
    ///@{
    /// Where its origin lies, in micrometres.
    double x = 0;
    double y = 0;
    ///@}
    double angle = 0;      ///< degrees clockwise
    bool mirrored = false; ///< left and right exchanged, after turning
};

} // namespace KVCAM::Embedded
