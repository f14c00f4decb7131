#include "layers/LayerFilterReport.h"

#include "layers/LayerFilter.h"
#include "support/Guard.h"
#include "support/Log.h"

#include <kvcam/Engine.h>

#include <algorithm>

namespace KVCAM::UIAPI::Ext {
namespace {

using namespace LayerFilter;

/// The values of one field across the layers of a matrix.
std::unordered_set<std::string> valuesOf(Layers const & layers, KeyFact const & fact)
{
    std::unordered_set<std::string> values;
    for (Layer const & layer : layers) {
        values.insert(layer.*fact.field);
    }
    return values;
}

void reportWords(KeyFact const & fact, Words const & words, Layers const & layers, LayerFilterReport & report)
{
    Names const board = boardSignalLayers(layers);
    auto const present = valuesOf(layers, fact);
    for (QString const & word : words) {
        QString const key = QLatin1String(fact.name);
        if (!isInVocabulary(fact.key, word)) {
            report.unmatchedWords.push_back({{key, LayerWordFault::UnknownWord,
                                              QStringLiteral("\"%1\" has no word \"%2\".").arg(key, word)},
                                             word});
            continue;
        }
        WordSet const one(fact.key, {word}, board);
        bool const isUnmatched = std::none_of(one.values().begin(), one.values().end(),
                                              [&](auto const & value) { return present.count(value) != 0; });
        if (isUnmatched) {
            report.unmatchedWords.push_back(
                {{key, LayerWordFault::NoSuchLayer,
                  QStringLiteral("No layer has the \"%1\" \"%2\".").arg(key, word)},
                 word});
        }
    }
}

LayerFilterReport explain(Layers const & layers, Request const & request)
{
    LayerFilterReport report;
    for (auto entry = request.cbegin(); entry != request.cend(); ++entry) {
        if (KeyFact const * const fact = findKey(entry.key())) {
            Words words;
            appendWords(entry.value(), words);
            reportWords(*fact, words, layers, report);
        } else {
            report.unknownKeys << entry.key();
        }
    }
    Selector const selector(request, layers);
    for (Layer const & layer : layers) {
        auto const key = selector.refusal(layer);
        report.layers.push_back({layer.name, key ? QLatin1String(factOf(*key).name) : QLatin1String()});
    }
    return report;
}

} // namespace

LayerFilterReport explainLayerFilter(QString const & job, QMap<QString, QString> const & filters)
{
    LayerFilterReport report;
    report.result = {false, QStringLiteral("The engine failed.")};
    guarded(Log::commonPara, [&] {
        std::vector<std::string> steps;
        Layers layers;
        QString const error =
            QString::fromStdString(KVCAM::API::get_matrix(job.toStdString(), steps, layers));
        report = explain(layers, filters);
        report.result = {error.isEmpty(), error};
    });
    return report;
}

} // namespace KVCAM::UIAPI::Ext
