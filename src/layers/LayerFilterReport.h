#pragma once

#include "UIAPICommonExport.h"

#include <QMap>
#include <QString>
#include <QStringList>

#include <string>
#include <vector>

/// Additions to the fixed interface. They are opt-in and change none of its results.
namespace KVCAM::UIAPI::Ext {

/// Why a word of a layer filter selects nothing.
enum class LayerWordFault : int
{
    UnknownWord, ///< "side" and "pos" have no such word; words are case-sensitive
    NoSuchLayer  ///< no layer of the matrix is of that type, context, side or polarity
};

/// A word of a request that selects nothing.
struct LayerFilterWord
{
    QString key;                                        ///< "type", "context", "side" or "pos"
    QString word;                                       ///< as it stands in the request
    LayerWordFault fault = LayerWordFault::UnknownWord; ///< why
};

/// Whether a layer is selected.
struct LayerVerdict
{
    std::string name;  ///< of the layer
    QString refusedBy; ///< the first key that does not accept the layer; empty when it is selected
};

/// What a request makes of the layers of a job.
struct LayerFilterReport
{
    std::string error;                      ///< the engine's text when the matrix cannot be read, else empty
    QStringList unknownKeys;                ///< keys that are ignored, in ascending order
    std::vector<LayerFilterWord> idleWords; ///< words that select nothing, by key and then as they stand
    std::vector<LayerVerdict> layers;       ///< every layer in matrix order
};

/// What UIAPICommonPara::selectLayersByType() makes of a request, and why. The layers without a refusing key
/// are those that it appends. What the engine throws is logged and gives an empty report. No singleton is
/// created.
UIAPICOMMON_EXPORT LayerFilterReport explainLayerFilter(QString const & job,
                                                        QMap<QString, QString> const & filters);

} // namespace KVCAM::UIAPI::Ext
