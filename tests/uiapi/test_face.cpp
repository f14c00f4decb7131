// The whole face at once: every exported flat function, called with nothing while the engine throws from
// every call. A new function is a new row.

#include "harness/UiapiTest.h"

#include "UIAPICommon.h"

#include <QFile>

#include <algorithm>
#include <iterator>
#include <set>
#include <string>
#include <tuple>
#include <type_traits>

using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {

constexpr std::size_t faceSize = 161;

template <class Argument>
std::decay_t<Argument> emptyArgument(void const * view)
{
    if constexpr (std::is_same_v<Argument, void const *>) {
        return view;
    } else {
        return {};
    }
}

/// Calls a function with the view for a view and 0, null or empty for everything else.
template <class Result, class... Arguments>
void callEmpty(Result (*function)(Arguments...), [[maybe_unused]] void const * view)
{
    std::tuple<std::decay_t<Arguments>...> arguments{emptyArgument<Arguments>(view)...};
    std::apply([&](auto &... each) { static_cast<void>(function(static_cast<Arguments>(each)...)); },
               arguments);
}

struct Row
{
    char const * name;
    void const * address;
    void (*call)(void const * view);
};

#define ROW(function)                                                                                        \
    {                                                                                                        \
#function, reinterpret_cast < void const *>(&function),                                              \
            [](void const * view) { callEmpty(&function, view); }                                            \
    }

Row const face[] = {
    // Per-view record access
    ROW(getStepConfig),
    ROW(insertStepConfig),
    ROW(getShowPara),
    ROW(setShowPara),
    ROW(getSelection),
    ROW(setSelection),
    ROW(getSelectInfo),
    ROW(setSelectInfo),
    ROW(getSnapControl),
    ROW(setSnapControl),
    ROW(getSnapSize),
    ROW(setSnapSize),
    ROW(getCoordinate),
    ROW(getEditBuffer),
    ROW(setEditBufferFeatureInfo),
    ROW(getLayerState),
    ROW(getMeasureValue),
    // Show-parameter fields
    ROW(getUnit),
    ROW(setUnit),
    ROW(getWidth),
    ROW(setWidth),
    ROW(getNegative),
    ROW(setNegative),
    ROW(gettextax),
    ROW(settextax),
    ROW(getProfile),
    ROW(setProfile),
    // Selection fields
    ROW(setSelectionClear),
    ROW(setSelectionDisplay),
    ROW(setSelectionLocation),
    ROW(setSelectionOperation),
    ROW(setSelectionSelect),
    ROW(setSelectionTouching),
    ROW(getSelectionTouching),
    ROW(getSelectionOutsideHint),
    ROW(setSelectionOutsideHint),
    // Selected parameter
    ROW(getSelectedPara),
    ROW(setSelectedPara),
    // Snap control
    ROW(getSnapType),
    ROW(setSnapType),
    ROW(setSnapMode),
    ROW(getSnapMode),
    // UI-wide flags and widget pointers
    ROW(getInputPtr),
    ROW(setInputPtr),
    ROW(getSplitPtr),
    ROW(setSplitPtr),
    ROW(getCoordinatePos),
    ROW(setCoordinatePos),
    ROW(getCoordinateStatus),
    ROW(setCoordinateStatus),
    ROW(getPanelPositionStatus),
    ROW(setPanelPositionStatus),
    ROW(getCurrentLanguageMode),
    ROW(setCurrentLanguageMode),
    ROW(getEQMode),
    ROW(setEQMode),
    ROW(getEQSelectionType),
    ROW(setEQSelectionType),
    ROW(getEQVisible),
    ROW(setEQVisible),
    ROW(isEdaGraphicVisible),
    ROW(setEdaGraphicVisible),
    ROW(getDmsConnectInfo),
    ROW(setDmsConnectInfo),
    // Modifier keys
    ROW(getCtrlEnpress),
    ROW(getShiftEnpress),
    ROW(getAltEnpress),
    // Push to engine
    ROW(setStepConfigToAPI),
    // Unit conversion and strings
    ROW(getUnitData),
    ROW(getUnitAPIData),
    ROW(getUnitMilData),
    ROW(getUnitPointData),
    ROW(getUnitJudgeData),
    ROW(getUnitJudgeData2),
    ROW(getUnitJudgeDouble),
    ROW(getUnitJudgeString),
    ROW(getUnitJudgeStringMetric),
    ROW(getUnitString),
    ROW(getUnitStringType),
    ROW(getAreaUnitStringType),
    ROW(getAreaUnitJudgeString),
    ROW(doubleToString),
    // Symbol names
    ROW(setSymbolUIData),
    ROW(setSymbolAPIData),
    ROW(setSymbolDataByUnit),
    ROW(setSymbolDataByMilUnit),
    ROW(getSymbolNameByUnit),
    ROW(getKvlibSpecialSymbol),
    // Arithmetic and legality
    ROW(caculateData),
    ROW(judgeCaculateIsStandard),
    ROW(isValueLegal),
    ROW(isNumValueLegal),
    ROW(isSymbolValueLegal),
    // Range tables
    ROW(getRanges),
    ROW(getRangesEnum),
    ROW(getRangesName),
    ROW(changeRangesValue),
    ROW(getERFList),
    // Global configuration and job list
    ROW(getServerIP),
    ROW(getServerPort),
    ROW(getClientIP),
    ROW(getTimeout),
    ROW(getThreadCount),
    ROW(setThreadCount),
    ROW(getDBPath),
    ROW(getSharePath),
    ROW(getPythonHome),
    ROW(getOS),
    ROW(getLayerCopySuffix),
    ROW(getContourAccuracy),
    ROW(getMovementFactor),
    ROW(getModifyHotKey),
    ROW(getShiftConfict),
    ROW(getRealBox),
    ROW(setRealBox),
    ROW(getAllToVar),
    ROW(setJobToVar),
    ROW(delJobToVar),
    ROW(delAllToVar),
    // Auto-matrix templates
    ROW(getAutoMatrixTmpMap),
    ROW(getCurrentAutoMatrixTmp),
    ROW(setCurrentAutoMatrixTmp),
    ROW(saveCurrentAutoMatrixTmp),
    ROW(deleteAutoMatrix),
    ROW(getAutomatrixMatrixIndex),
    // Attributes
    ROW(getTotalAttribute),
    ROW(getParentAttribute),
    ROW(getChildAttribute),
    ROW(getCamMateNodes),
    // Layer filters
    ROW(getAnalyzeAndDFMLayers),
    // References and files
    ROW(setReferenceLayerInfo),
    ROW(getReferenceLayerInfo),
    ROW(resetReferenceLayerInfo),
    ROW(renameReferenceJob),
    ROW(renameReferenceStep),
    ROW(renameReferenceLayer),
    ROW(deleteReferenceJob),
    ROW(deleteReferenceStep),
    ROW(deleteReferenceLayer),
    ROW(renameCompareJob),
    ROW(renameCompareStep),
    ROW(deleteCompareStep),
    ROW(getDrawingLayer),
    ROW(setDrawingLayer),
    ROW(resetDrawingLayer),
    ROW(saveTextByIODevice),
    ROW(find_input_items),
    ROW(checkDir),
    ROW(delDir),
    ROW(copyDirectoryFile),
    ROW(deletGeneJob),
    ROW(formatTime),
    ROW(undo),
    // Form persistence
    ROW(readListToJson),
    ROW(writeJsonToList),
    // EDA link
    ROW(setEdaPort),
    ROW(sendEdaData),
    ROW(getReceiveStr),
    // Plug-in commands and host address
    ROW(setPluginCmd),
    ROW(getHostIP),
    ROW(getLocalInfo),
};

#undef ROW

class Face : public UiapiTest
{
protected:
    /// With an unknown view the singletons' first call meets the throwing engine, too. `standard`: what is
    /// thrown is a std::exception.
    void letsNothingEscape(bool knownView, bool standard);
};

void Face::letsNothingEscape(bool knownView, bool standard)
{
    void const * const view = viewHandle(0);
    if (knownView) {
        Step_Config config;
        config.view = view;
        ASSERT_TRUE(insertStepConfig(config));
        UIAPICommonPara::instance()->addPluginRoute(0, {}, "module");
        getThreadCount();
        engine.take();
    }
    engine.throwFromEveryCall(standard);
    for (Row const & row : face) {
        EXPECT_NO_THROW(row.call(view)) << row.name;
    }
    // It did throw, and who has the log knows.
    EXPECT_FALSE(engine.take().empty());
    Lines const lines = log.take();
    std::string const thrown = standard ? "is_job_opened" : "unknown exception";
    EXPECT_NE(std::count(lines.begin(), lines.end(), paraError("异常描述：" + thrown)), 0);
    boxes.take();
}

TEST_F(Face, LetsNothingEscapeForAnUnknownView)
{
    letsNothingEscape(false, true);
}

TEST_F(Face, LetsNothingEscapeForAnUnknownViewWhateverIsThrown)
{
    letsNothingEscape(false, false);
}

TEST_F(Face, LetsNothingEscapeForAKnownView)
{
    letsNothingEscape(true, true);
}

TEST_F(Face, LetsNothingEscapeForAKnownViewWhateverIsThrown)
{
    letsNothingEscape(true, false);
}

QByteArray contents(char const * path)
{
    QFile file(QStringLiteral(UIAPI_SOURCE_DIR "/") + QString::fromLatin1(path));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path;
    return file.readAll();
}

/// The names of the exported functions that stand directly in a namespace, "KVCAM::UIAPI::".
std::set<std::string> exportedFunctions(std::string const & space)
{
    std::set<std::string> names;
    for (QByteArray const & line : contents("tests/package/exports/UIAPICommon.txt").split('\n')) {
        std::string const symbol = line.toStdString();
        std::size_t const end = symbol.find('(');
        if (symbol.compare(0, space.size(), space) == 0 && end != std::string::npos &&
            symbol.rfind("::", end) == space.size() - 2) {
            names.insert(symbol.substr(space.size(), end - space.size()));
        }
    }
    return names;
}

// The list of exported symbols is compared with the library; this compares the table with the list.
TEST(FaceTable, HoldsEveryExportedFunctionOnce)
{
    std::set<std::string> names;
    std::set<void const *> addresses;
    for (Row const & row : face) {
        names.insert(row.name);
        addresses.insert(row.address);
    }
    EXPECT_EQ(names.size(), std::size(face));
    EXPECT_EQ(addresses.size(), std::size(face));
    EXPECT_EQ(names, exportedFunctions("KVCAM::UIAPI::"));
    EXPECT_EQ(std::size(face), faceSize);
}

TEST(FaceTable, EveryAdditionStandsBesideWhatItAddsTo)
{
    std::set<std::string> const additions = exportedFunctions("KVCAM::UIAPI::Ext::");
    EXPECT_EQ(additions.count("edaLinkState"), 1U);
    std::string const page = contents("docs/Extensions.md").toStdString();
    for (std::string const & name : additions) {
        EXPECT_NE(page.find("`Ext::" + name + "()`"), std::string::npos) << name;
    }
}

} // namespace
