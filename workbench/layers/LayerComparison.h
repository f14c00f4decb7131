#pragma once

#include "board/BoardPicture.h"
#include "layers/Difference.h"

#include <QImage>
#include <QRectF>
#include <QSize>
#include <QTransform>

#include <atomic>
#include <vector>

namespace Workbench {

/// Two layers of a step with their shapes in place, as BoardPicture takes them. It never changes, so threads
/// may share it. Compared is what the layers draw; the polarity of the matrix does not count.
struct ComparedLayers
{
    PictureTask::Layer first;
    PictureTask::Layer second;

    /// Of all shapes, in micrometres; null without any.
    QRectF extent() const;
};

/// A region in which two layers differ, in micrometres.
struct LayerRegion
{
    bool isFirst = true; ///< covered by the first layer, otherwise by the second
    double area = 0;     ///< square micrometres
    QRectF box;
    QPointF place; ///< inside the region
};

/// What a comparison has found.
struct LayerDifference
{
    double pixel = 0;     ///< micrometres; what is thinner may be missed or drawn a pixel wide
    QRectF area;          ///< that was compared
    double onlyFirst = 0; ///< square micrometres
    double onlySecond = 0;
    double both = 0;
    long long firstRegions = 0; ///< how many; not all need to be listed
    long long secondRegions = 0;
    std::vector<LayerRegion> regions; ///< from the largest to the smallest: up to 500 of each end
};

/// Pixels at the longer side of a comparison.
inline constexpr int comparedPixels = 4000;

/// Compares what two layers cover in a rectangle of the board (micrometres), slice by slice. `percent`
/// follows the progress. May run in any thread. When cancelled, the result is to be dropped. An empty
/// rectangle gives an empty result.
LayerDifference compareLayers(ComparedLayers const & layers, QRectF const & area, int longerSide,
                              std::atomic<int> & percent, std::atomic<bool> const & cancelled);

// The colours of a comparison.
inline constexpr QRgb onlyFirstColour = 0xffd03a2b;
inline constexpr QRgb onlySecondColour = 0xff2866d0;
inline constexpr QRgb bothColour = 0xffb9bec6;

/// The comparison as a picture; null when cancelled or out of memory. May run in any thread.
QImage paintComparison(ComparedLayers const & layers, QTransform const & boardToPicture, QSize size,
                       std::atomic<bool> const & cancelled);

} // namespace Workbench
