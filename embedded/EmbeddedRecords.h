#pragma once

#include <string>

/// \addtogroup default_engine
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

/// An attribute of a feature.
struct FeatureAttribute
{
    std::string name;  ///< as in the file, e.g. ".drill"
    std::string value; ///< as in the file; of an attribute that is a text, the text; may be empty
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

/// What one job may hold. Files are untrusted: without limits, a small damaged or hostile one could take all
/// memory or time, which both grow with what is read. Whatever exceeds a limit is refused as a whole, with an
/// error that names the limit. The defaults are several times what large boards need; raise them for honest
/// giants.
struct JobLimits
{
    long long steps = 250;              ///< of the matrix
    long long layers = 2'000;           ///< of the matrix
    long long symbols = 1'000'000;      ///< entries of all symbol tables, and own symbols
    long long points = 20'000'000;      ///< features, contours and sides of contours; up to 120 bytes each
    long long profilePoints = 500'000;  ///< of a step's outline, arcs as short chords
    long long fileBytes = 64LL << 20;   ///< of one file, unpacked; at most 1 GiB
    long long bytes = 1LL << 30;        ///< of all files that are kept, unpacked
    long long archiveBytes = 4LL << 30; ///< of an unpacked archive, together with what is passed over
    long long archiveEntries = 200'000; ///< of an archive
    long long archiveDepth = 32;        ///< of folders in an archive
    /// Unpacked bytes for each byte of an archive, once they exceed `fileBytes`.
    long long archiveRatio = 200;
    long long seconds = 120; ///< spent reading files, unpacking not included
};

} // namespace KVCAM::Embedded
