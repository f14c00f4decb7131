#pragma once

#include "board/FeatureShapes.h"

#include <QPainter>
#include <QPointF>
#include <QRectF>
#include <QTransform>

#include <set>
#include <vector>

/// The features of a layer that the next operation acts on, by their index in the layer.
namespace Workbench::FeatureSelection {

using Set = std::set<int>;
using Features = std::vector<KVCAM::API::feature_info>;
using Shapes = std::vector<FeatureShape>;

/// The feature within `tolerance` (micrometres, positive) of a place on the board; -1 for none. Of several,
/// the one with the smallest box is meant, since large ones can be picked beside it; of equal ones, the
/// uppermost. If `after`, which was meant before, is there, the next larger one is meant.
int featureAt(Shapes const & shapes, QPointF place, double tolerance, int after = -1);

Set all(Features const & features);
/// All features that are not in the set.
Set reversed(Set const & set, Features const & features);
/// The set, extended by every feature that has the kind, symbol and polarity of a member.
Set withSame(Set const & set, Features const & features);

/// Highlights the selected features; `visible` is the part of the board that is shown.
void paint(QPainter & painter, Shapes const & shapes, Set const & set, QTransform const & boardToWidget,
           QRectF const & visible);

} // namespace Workbench::FeatureSelection
