#pragma once

#include <QString>

namespace Workbench {

class LayerShapes;

// Lengths are given in micrometres, and shown in the unit of a view.

/// "x 0.100 y 0.250 inch"
QString positionText(void const * view, double x, double y);
/// The same in the small unit: "(x 100.00 y 250.00 mil)".
QString finePositionText(void const * view, double x, double y);
/// "3.000 x 3.000 inch"
QString sizeText(void const * view, double width, double height);

/// Why a layer without features shows nothing.
QString emptyLayerText(LayerShapes const & layer);

} // namespace Workbench
