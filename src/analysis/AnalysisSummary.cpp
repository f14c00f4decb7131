#include "analysis/AnalysisSummary.h"

#include "analysis/CheckOrder.h"
#include "support/Compiler.h"

#include <json/value.h>
#include <json/writer.h>

#include <algorithm>
#include <array>
#include <limits>
#include <optional>
#include <utility>

namespace KVCAM::UIAPI {
namespace {

/// The content of a row's "result".
enum class Result
{
    Placeholder, ///< no content of its own yet
    JobName,
    StepName,
    LayerValues,   ///< the value of each layer of an item as text, "-1" for a layer without one
    SmallestValue, ///< the smallest of those values as a number
    SlotCounts,    ///< the number of entries in group 3 of each layer of an item, as text
    EmptyText      ///< "" instead of the array of all other rows
};

struct Row
{
    char const * key;
    char const * label;
    char const * unit;
    Result result;
    unified_check_items item = {};
};

constexpr char const * mil = "mil";
constexpr char const * none = "";

// Counts, areas and percentages are also labelled "mil"; readers of the document expect it.
constexpr std::array<Row, 49> rows = {{
    {"jobname", "料号名", none, Result::JobName},
    {"stepname", "step名", none, Result::StepName},
    {"layerNum", "层数", none, Result::Placeholder},
    {"hdiLevel", "阶数", none, Result::Placeholder},
    {"allLayerMinTrackWidth", "最小线宽数据集", mil, Result::LayerValues, UNIFIED_LINES},
    {"allLayerMinTrack2TrackSpace", "最小线距数据集", mil, Result::Placeholder},
    {"minTrackWidth", "所有层最小线宽", mil, Result::SmallestValue, UNIFIED_LINES},
    {"minTrack2TrackSpace", "所有层最小线距", mil, Result::Placeholder},
    {"topMinTrackWidth", "顶层最小线宽", mil, Result::Placeholder},
    {"topMinTrack2TrackSpace", "顶层最小线距", mil, Result::Placeholder},
    {"botMinTrackWidth", "底层最小线宽", mil, Result::Placeholder},
    {"botMinTrack2TrackSpace", "底层最小线距", mil, Result::Placeholder},
    {"innerMinTrackWidth", "内层最小线宽", mil, Result::Placeholder},
    {"innerMinTrack2TrackSpace", "内层最小线距", mil, Result::Placeholder},
    {"innerMinPadDiam", "内层最小pad直径", mil, Result::Placeholder},
    {"innerMinPad2Pad", "内层pad到pad最小间距", mil, Result::Placeholder},
    {"innerMinPad2Line", "内层pad到线最小间距", mil, Result::Placeholder},
    {"innerMinDrill2pad", "内层孔到pad最小间距", mil, Result::Placeholder},
    {"innerMinDrill2line", "内层孔到线最小间距", mil, Result::Placeholder},
    {"innerMinPad2Outline", "内层pad到板边最小间距", mil, Result::Placeholder},
    {"innerMinLine2Outline", "内层线到板边最小间距", mil, Result::Placeholder},
    {"outerMinPadDiam", "外层最小pad直径", mil, Result::Placeholder},
    {"outerMinPad2Pad", "外层pad到pad最小间距", mil, Result::Placeholder},
    {"outerMinPad2Line", "外层pad到线最小间距", mil, Result::Placeholder},
    {"outerMinDrill2pad", "外层孔到pad最小间距", mil, Result::Placeholder},
    {"outerMinDrill2line", "外层孔到线最小间距", mil, Result::Placeholder},
    {"outerMinPad2Outline", "外层pad到板边最小间距", mil, Result::Placeholder},
    {"outerMinLine2Outline", "外层线到板边最小间距", mil, Result::Placeholder},
    {"diamOfBGA", "BGA直径", mil, Result::Placeholder},
    {"BGAArea", "BGA面积", mil, Result::Placeholder},
    {"spaceOfBGA2BGA", "BGA间距", mil, Result::Placeholder},
    {"pieceLength", "PCS长", mil, Result::Placeholder},
    {"pieceWidth", "PCS宽", mil, Result::Placeholder},
    {"setLength", "SET长", mil, Result::Placeholder},
    {"setWidth", "SET宽", mil, Result::Placeholder},
    {"silkManufactureSurface", "字符加工面", mil, Result::Placeholder},
    {"throughHoleMinHoleDiam", "通孔最小孔径", mil, Result::Placeholder},
    {"throughHoleNumPerPcs", "通孔孔数", mil, Result::Placeholder},
    {"slotHoleNumPerPcs", "槽孔孔数", mil, Result::SlotCounts, UNIFIED_SLOTS},
    {"minSMD2SMDSpace", "SMD最小间距", mil, Result::LayerValues, UNIFIED_SMD_TO_SMD},
    {"innerMinDrillRing", "内层最小孔环", mil, Result::Placeholder},
    {"outerMinDrillRing", "外层最小孔环", mil, Result::Placeholder},
    {"minDrillRing", "所有层最小孔环", mil, Result::LayerValues, UNIFIED_ANNULAR_RINGS},
    {"liftedLandPercentage", "残铜率", mil, Result::Placeholder},
    {"goldenFingerNumberPerPCS", "金手指数量", mil, Result::Placeholder},
    {"goldenFingerAreaPerPCS", "金手指面积", mil, Result::Placeholder},
    {"goldenFingerMaxLength", "金手指最大长(x向)", mil, Result::Placeholder},
    {"goldenFingerMaxWidth", "金手指最大长(y向)", mil, Result::EmptyText},
    {"surfaceFinishArea", "表面处理面积", mil, Result::Placeholder},
}};

Json::Value entry(std::string const & layer, Json::Value value)
{
    Json::Value object(Json::objectValue);
    object["layername"] = layer;
    object["value"] = std::move(value);
    return object;
}

Json::Value single(Json::Value value)
{
    Json::Value array(Json::arrayValue);
    array.append(entry({}, std::move(value)));
    return array;
}

// One entry per layer. Null for an item without layers, which then has no "result" at all.
template <class ValueOf>
Json::Value perLayer(UnifiedResultStore::Layers const * layers, ValueOf valueOf)
{
    Json::Value array;
    if (layers != nullptr) {
        for (auto const & [layer, result] : *layers) {
            array.append(entry(layer, valueOf(result)));
        }
    }
    return array;
}

std::string valueText(unified_check_result const & result)
{
    std::optional<int> const value = layerValue(result);
    return value ? std::to_string(*value) : "-1";
}

// Layers without a value are ignored. The largest int if no layer has one.
int smallestValue(UnifiedResultStore::Layers const * layers)
{
    int smallest = std::numeric_limits<int>::max();
    if (layers != nullptr) {
        for (auto const & layer : *layers) {
            smallest = std::min(smallest, layerValue(layer.second).value_or(smallest));
        }
    }
    return smallest;
}

Json::Value resultOf(Row const & row, std::string const & job, std::string const & step,
                     UnifiedResultStore const & results)
{
    switch (row.result) {
    case Result::JobName:
        return single(job);
    case Result::StepName:
        return single(step);
    case Result::LayerValues:
        return perLayer(results.find(row.item), valueText);
    case Result::SmallestValue:
        return single(smallestValue(results.find(row.item)));
    case Result::SlotCounts:
        return perLayer(results.find(row.item), [](unified_check_result const & result) {
            return std::to_string(result.groups[3].size());
        });
    case Result::EmptyText:
        return "";
    case Result::Placeholder:
        break;
    }
    return single("");
}

UIAPI_DEPRECATED_USE_BEGIN
// Formatted here because toStyledString() indents with tabs in later versions of jsoncpp.
std::string styled(Json::Value const & document)
{
    return Json::StyledWriter().write(document);
}
UIAPI_DEPRECATED_USE_END

} // namespace

std::string summaryText(std::string const & job, std::string const & step, UnifiedResultStore const & results)
{
    Json::Value document(Json::arrayValue);
    for (Row const & row : rows) {
        Json::Value content(Json::objectValue);
        content["name"] = row.label;
        content["unit"] = row.unit;
        if (Json::Value result = resultOf(row, job, step, results); !result.isNull()) {
            content["result"] = std::move(result);
        }
        document.append(Json::Value(Json::objectValue))[row.key] = std::move(content);
    }
    return styled(document);
}

} // namespace KVCAM::UIAPI
