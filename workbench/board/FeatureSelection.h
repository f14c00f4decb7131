#pragma once

#include "board/FeatureShapes.h"

#include <QPainter>
#include <QPointF>
#include <QRectF>
#include <QTransform>

#include <set>
#include <vector>

/// The features of a layer that the next operation takes, by their index in the layer.
namespace Workbench::FeatureSelection {

using Set = std::set<int>;
using Features = std::vector<KVCAM::API::feature_info>;
using Shapes = std::vector<FeatureShape>;

/// The uppermost feature that lies at a place of the board or no farther from it than `tolerance`, a positive
/// number of micrometres; -1 for none.
int featureAt(Shapes const & shapes, QPointF place, double tolerance);

Set all(Features const & features);
/// Those that are not in the set.
Set reversed(Set const & set, Features const & features);
/// The set with all features that share kind, symbol and polarity with one of it.
Set withSame(Set const & set, Features const & features);

/// Marks what is selected; `visible` is the part of the board that is shown.
void paint(QPainter & painter, Shapes const & shapes, Set const & set, QTransform const & boardToWidget,
           QRectF const & visible);

} // namespace Workbench::FeatureSelection
