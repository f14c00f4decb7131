#pragma once

#include "../support/Finding.h"
#include "../support/Result.h"
#include "UIAPICommonExport.h"

#include <QMap>
#include <QString>
#include <QStringList>

#include <string>
#include <vector>

/// \addtogroup layer_filters
namespace KVCAM::UIAPI::Ext {

/// Why a word of a layer filter selects nothing.
enum class LayerWordFault : int
{
    UnknownWord, ///< "side" and "pos" have no such word; words are case-sensitive
    NoSuchLayer  ///< no layer of the matrix is of that type, context, side or polarity
};

/// A word of a request that selects nothing. `where` is its key: "type", "context", "side" or "pos".
struct LayerFilterFinding : Finding<LayerWordFault>
{
    QString word; ///< as in the request
};

/// Whether a layer is selected.
struct LayerVerdict
{
    std::string name;  ///< of the layer
    QString refusedBy; ///< the first key that rejects the layer; empty if selected
};

/// The effect of a request on the layers of a job.
struct LayerFilterReport
{
    Result result;           ///< whether the matrix was read; the reason is the engine's text
    QStringList unknownKeys; ///< keys that are ignored, in ascending order
    std::vector<LayerFilterFinding> unmatchedWords; ///< by key, then in request order
    std::vector<LayerVerdict> layers;               ///< every layer in matrix order
};

/// The effect of UIAPICommonPara::selectLayersByType() on a request, and why. The layers without a rejecting
/// key are those that it appends. An engine exception is logged and gives a report with only a failed result.
/// No singleton is created. \since 0.1
[[nodiscard]] UIAPICOMMON_EXPORT LayerFilterReport explainLayerFilter(QString const & job,
                                                                      QMap<QString, QString> const & filters);

} // namespace KVCAM::UIAPI::Ext
