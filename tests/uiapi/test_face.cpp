// The whole interface at once: every exported flat function and every public method of the singletons, called
// with minimal arguments while the engine throws from every call. A new function needs a row in the tables.

#include "harness/UiapiTest.h"

#include "UIAPICommon.h"

#include <QFile>
#include <QMap>
#include <QStringList>

#include <algorithm>
#include <functional>
#include <set>
#include <string>
#include <thread>
#include <tuple>
#include <type_traits>
#include <vector>

using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {

// The objects' classes under short names, for the table.
using Para = UIAPICommonPara;
using Global = UIAPIGlobalVar;
using Result = Unified_AnalysisResult;
using Keys = KVCAM::KVHotKey;

/// Arguments that reach the engine: the view, "x" for a QString (an empty job is not looked up) and 0, null
/// or empty for everything else.
template <class Argument>
std::decay_t<Argument> plainArgument(void const * view)
{
    using Iterator = QMap<QString, QString>::iterator;
    if constexpr (std::is_same_v<Argument, void const *>) {
        return view;
    } else if constexpr (std::is_same_v<std::decay_t<Argument>, QString>) {
        return QStringLiteral("x");
    } else if constexpr (std::is_same_v<std::decay_t<Argument>, Iterator>) {
        static QMap<QString, QString> map{{"", ""}};
        return map.begin();
    } else {
        return {};
    }
}

template <class... Arguments, class Call>
void callWith(Call call, [[maybe_unused]] void const * view)
{
    std::tuple<std::decay_t<Arguments>...> arguments{plainArgument<Arguments>(view)...};
    std::apply([&](auto &... each) { static_cast<void>(call(static_cast<Arguments>(each)...)); }, arguments);
}

template <class Object>
Object & only()
{
    if constexpr (std::is_same_v<Object, Keys>) {
        return *Keys::getInstance();
    } else {
        return *Object::instance();
    }
}

template <class Value, class... Arguments>
void callPlain(Value (*function)(Arguments...), void const * view)
{
    callWith<Arguments...>(function, view);
}

template <class Object, class Value, class... Arguments>
void callPlain(Value (Object::*method)(Arguments...), void const * view)
{
    callWith<Arguments...>(
        [&](auto &&... each) { return (only<Object>().*method)(static_cast<Arguments>(each)...); }, view);
}

template <class Object, class Value, class... Arguments>
void callPlain(Value (Object::*method)(Arguments...) const, void const * view)
{
    callWith<Arguments...>(
        [&](auto &&... each) { return (only<Object>().*method)(static_cast<Arguments>(each)...); }, view);
}

struct Row
{
    std::string name;
    void (*call)(void const * view);
};

/// `names` are the functions as written, "&Para::getUnit, &Para::setUnit".
template <auto... functions>
std::vector<Row> makeRows(QString const & names)
{
    std::vector<Row> rows{{{}, [](void const * view) { callPlain(functions, view); }}...};
    QStringList const each = QString(names).remove('&').split(", ");
    for (std::size_t i = 0; i < rows.size(); ++i) {
        rows[i].name = each.value(int(i)).toStdString();
    }
    return rows;
}

#define ROWS(...) makeRows<__VA_ARGS__>(QStringLiteral(#__VA_ARGS__))

constexpr std::size_t faceSize = 161;
std::vector<Row> face()
{
    return ROWS(
        getStepConfig, insertStepConfig, getShowPara, setShowPara, getSelection, setSelection, getSelectInfo,
        setSelectInfo, getSnapControl, setSnapControl, getSnapSize, setSnapSize, getCoordinate, getEditBuffer,
        setEditBufferFeatureInfo, getLayerState, getMeasureValue, getUnit, setUnit, getWidth, setWidth,
        getNegative, setNegative, gettextax, settextax, getProfile, setProfile, setSelectionClear,
        setSelectionDisplay, setSelectionLocation, setSelectionOperation, setSelectionSelect,
        setSelectionTouching, getSelectionTouching, getSelectionOutsideHint, setSelectionOutsideHint,
        getSelectedPara, setSelectedPara, getSnapType, setSnapType, setSnapMode, getSnapMode, getInputPtr,
        setInputPtr, getSplitPtr, setSplitPtr, getCoordinatePos, setCoordinatePos, getCoordinateStatus,
        setCoordinateStatus, getPanelPositionStatus, setPanelPositionStatus, getCurrentLanguageMode,
        setCurrentLanguageMode, getEQMode, setEQMode, getEQSelectionType, setEQSelectionType, getEQVisible,
        setEQVisible, isEdaGraphicVisible, setEdaGraphicVisible, getDmsConnectInfo, setDmsConnectInfo,
        getCtrlEnpress, getShiftEnpress, getAltEnpress, setStepConfigToAPI, getUnitData, getUnitAPIData,
        getUnitMilData, getUnitPointData, getUnitJudgeData, getUnitJudgeData2, getUnitJudgeDouble,
        getUnitJudgeString, getUnitJudgeStringMetric, getUnitString, getUnitStringType, getAreaUnitStringType,
        getAreaUnitJudgeString, doubleToString, setSymbolUIData, setSymbolAPIData, setSymbolDataByUnit,
        setSymbolDataByMilUnit, getSymbolNameByUnit, getKvlibSpecialSymbol, caculateData,
        judgeCaculateIsStandard, isValueLegal, isNumValueLegal, isSymbolValueLegal, getRanges, getRangesEnum,
        getRangesName, changeRangesValue, getERFList, getServerIP, getServerPort, getClientIP, getTimeout,
        getThreadCount, setThreadCount, getDBPath, getSharePath, getPythonHome, getOS, getLayerCopySuffix,
        getContourAccuracy, getMovementFactor, getModifyHotKey, getShiftConfict, getRealBox, setRealBox,
        getAllToVar, setJobToVar, delJobToVar, delAllToVar, getAutoMatrixTmpMap, getCurrentAutoMatrixTmp,
        setCurrentAutoMatrixTmp, saveCurrentAutoMatrixTmp, deleteAutoMatrix, getAutomatrixMatrixIndex,
        getTotalAttribute, getParentAttribute, getChildAttribute, getCamMateNodes, getAnalyzeAndDFMLayers,
        setReferenceLayerInfo, getReferenceLayerInfo, resetReferenceLayerInfo, renameReferenceJob,
        renameReferenceStep, renameReferenceLayer, deleteReferenceJob, deleteReferenceStep,
        deleteReferenceLayer, renameCompareJob, renameCompareStep, deleteCompareStep, getDrawingLayer,
        setDrawingLayer, resetDrawingLayer, saveTextByIODevice, find_input_items, checkDir, delDir,
        copyDirectoryFile, deletGeneJob, formatTime, undo, readListToJson, writeJsonToList, setEdaPort,
        sendEdaData, getReceiveStr, setPluginCmd, getHostIP, getLocalInfo);
}

std::vector<Row> methods()
{
    return ROWS(
        &Para::ContextLayersFilter, &Para::KvcamAsExe, &Para::PosLayersFilter, &Para::SetKvcamAsExe,
        &Para::SideLayersFilter, &Para::TypeLayersFilter, &Para::addPluginRoute, &Para::caculateData,
        &Para::changeRangesValue, &Para::checkDir, &Para::copyDirectoryFile, &Para::delDir,
        &Para::deletGeneJob, &Para::deleteCompareStep, &Para::deleteReferenceJob, &Para::deleteReferenceLayer,
        &Para::deleteReferenceStep, &Para::doubleToString, &Para::edaLink, &Para::edaLinkState,
        &Para::fillLayerTypeFilters, &Para::find_input_items, &Para::formatTime, &Para::getAffectLayers,
        &Para::getAnalyzeAndDFMLayers, &Para::getAreaUnitJudgeString, &Para::getAreaUnitStringType,
        &Para::getChildAttribute, &Para::getCoordinate, &Para::getCoordinatePos, &Para::getCoordinateStatus,
        &Para::getCurrentLanguageMode, &Para::getDrawingLayer, &Para::getERFList, &Para::getEditBuffer,
        &Para::getInputPtr, &Para::getJobJsonPara, &Para::getKvlibSpecialSymbol, &Para::getLayerState,
        &Para::getMeasureValue, &Para::getPanelPositionStatus, &Para::getRanges, &Para::getRangesEnum,
        &Para::getRangesName, &Para::getReceiveStr, &Para::getReferenceLayerInfo, &Para::getSelectInfo,
        &Para::getSelection, &Para::getShowPara, &Para::getSnapControl, &Para::getSnapMode,
        &Para::getSnapSize, &Para::getSplitPtr, &Para::getStepConfig, &Para::getSymbolNameByUnit,
        &Para::getUnit, &Para::getUnitAPIData, &Para::getUnitData, &Para::getUnitJudgeData,
        &Para::getUnitJudgeDouble, &Para::getUnitJudgeString, &Para::getUnitJudgeStringMetric,
        &Para::getUnitMilData, &Para::getUnitPointData, &Para::insertStepConfig, &Para::isNumValueLegal,
        &Para::isSymbolValueLegal, &Para::isValueLegal, &Para::isValueLegal1, &Para::judgeCaculate,
        &Para::judgeCaculateIsStandard, &Para::readListToJson, &Para::removePluginRoute,
        &Para::renameCompareJob, &Para::renameCompareStep, &Para::renameReferenceJob,
        &Para::renameReferenceLayer, &Para::renameReferenceStep, &Para::resetDrawingLayer,
        &Para::resetReferenceLayerInfo, &Para::saveTextByIODevice, &Para::selectLayersByType,
        &Para::sendEdaData, &Para::sendEdaDataChecked, &Para::setAffectLayers, &Para::setCoordinatePos,
        &Para::setCoordinateStatus, &Para::setCurrentLanguageMode, &Para::setDrawingLayer, &Para::setEdaPort,
        &Para::setEditBufferFeatureInfo, &Para::setInputPtr, &Para::setJobJsonPara,
        &Para::setPanelPositionStatus, &Para::setPluginCmd, &Para::setReferenceLayerInfo,
        &Para::setSelectInfo, &Para::setSelection, &Para::setShowPara, &Para::setSnapControl,
        &Para::setSnapSize, &Para::setSplitPtr, &Para::setStepConfigToAPI, &Para::setSymbolAPIData,
        &Para::setSymbolDataByMilUnit, &Para::setSymbolDataByUnit, &Para::setSymbolUIData, &Para::setUnit,
        &Para::setWorkLayer, &Para::writeJsonToList, &Global::autoMatrixFile, &Global::delAll,
        &Global::delJob, &Global::deleteAutoMatrix, &Global::getAll, &Global::getAutoMatrixTmpMap,
        &Global::getAutomatrixMatrixIndex, &Global::getCamMateNodes, &Global::getClientIP,
        &Global::getContourAccuracy, &Global::getCurrentAutoMatrixTmp, &Global::getDBPath,
        &Global::getLayerCopySuffix, &Global::getModifyHotKey, &Global::getMovementFactor, &Global::getOS,
        &Global::getParentAttribute, &Global::getPythonHome, &Global::getRealBox,
        &Global::getSelectionOutsideHint, &Global::getServerIP, &Global::getServerPort, &Global::getSharePath,
        &Global::getShiftConfict, &Global::getThreadCount, &Global::getTimeout, &Global::getTotalAttributes,
        &Global::saveCurrentAutoMatrixTmp, &Global::setClientIP, &Global::setCurrentAutoMatrixTmp,
        &Global::setDBPath, &Global::setJob, &Global::setOS, &Global::setRealBox,
        &Global::setSelectionOutsideHint, &Global::setServerIP, &Global::setServerPort, &Global::setSharePath,
        &Global::setThreadCount, &Global::setTimeout, &Result::getUnifiedResult, &Result::jsonoutput,
        &Result::setDrillCheckResult, &Result::setJobStep, &Result::setLayerInfo, &Result::setRestResult,
        &Result::setSignalLayerCheckResult, &Keys::buffAddKey, &Keys::buffClear, &Keys::buffHasGroup,
        &Keys::getFunctionCode, &Keys::initHotkeyTable, &Keys::uploadHotkeyModel);
}

#undef ROWS

template <class Action>
void forEachRow(Action action)
{
    for (auto const & rows : {face(), methods()}) {
        for (Row const & row : rows) {
            action(row);
        }
    }
}

using Face = UiapiTest;

/// Whether the view is known, and whether a std::exception is thrown. With an unknown view the
/// singletons' first call meets the throwing engine too.
class FaceThrows : public Face, public ::testing::WithParamInterface<std::tuple<bool, bool>>
{};

INSTANTIATE_TEST_SUITE_P(All, FaceThrows, ::testing::Combine(::testing::Bool(), ::testing::Bool()));

TEST_P(FaceThrows, LetsNothingEscape)
{
    auto const [knownView, standard] = GetParam();
    void const * const view = viewHandle(0);
    if (knownView) {
        Step_Config config;
        config.view = view;
        ASSERT_TRUE(insertStepConfig(config));
        Para::instance()->addPluginRoute(0, {}, "module");
        getThreadCount();
    }
    engine.throwFromEveryCall(standard);
    forEachRow([&](Row const & row) { EXPECT_NO_THROW(row.call(view)) << row.name; });
    // It did throw, and the log shows it once for each call: of a flat function, of its method.
    Lines const lines = log.take();
    auto const logged = [&](char const * what) {
        return std::count(lines.begin(), lines.end(), paraError("异常描述：" + std::string(what)));
    };
    if (standard) {
        EXPECT_EQ(logged("is_job_opened"), 2);
        EXPECT_EQ(logged("identify_symbol"), 2);
        EXPECT_EQ(logged("get_matrix"), 3); // selectLayersByType() asks too
    } else {
        EXPECT_NE(logged("unknown exception"), 0);
    }
    boxes.take();
}

// Each request calls back, and the objects create each other.
TEST_F(Face, AHostThatCallsBackWhileAnObjectIsMadeIsGivenThatObject)
{
    engine.root = UIAPI_SOURCE_DIR "/samples";
    std::set<void *> objects;
    std::function<void()> const callBack = [&] {
        engine.onNextCall("getPath", callBack);
        objects.insert({Para::instance(), Global::instance(), Keys::getInstance(), Result::instance()});
        setCoordinateStatus(true);
        setJobToVar("job");
        EXPECT_EQ(getReceiveStr(), "");
    };
    engine.onNextCall("getPath", callBack);
    EXPECT_TRUE(getCoordinateStatus());
    EXPECT_EQ(objects, (std::set<void *>{Para::instance(), Global::instance(), Keys::getInstance(),
                                         Result::instance()}));
    EXPECT_EQ(getAllToVar(), Lines(std::size_t(engine.consulted["getPath"]), "job"));
    EXPECT_NE(Ext::edaLink(), nullptr);
    EXPECT_EQ(engine.take(),
              (Lines{"API::set_net_cal_thread(4)", "API::set_backup_layername_info(true +++)"}));
    EXPECT_EQ(log.take(), Lines{"I UIAPICommonPara: 加载所有ranges成功"});
    engine.reset(); // the last action meets no call
}

TEST_F(Face, ASecondThreadIsNoticedWhereAHostAsksForIt)
{
    auto const own = [](Ext::ThreadCheck check) { std::thread(Ext::setThreadCheck, check).join(); };
    auto const noticed = [&](Row const & row) {
        log.take();
        row.call(nullptr);
        row.call(nullptr);
        Lines const lines = log.take();
        boxes.take();
        return std::count_if(lines.begin(), lines.end(), [](std::string const & line) {
            return line.find(": KVCAM UIAPI is called from a second thread") != std::string::npos;
        });
    };
    forEachRow([&](Row const & row) {
        EXPECT_EQ(noticed(row), 0) << row.name; // off until it is set
        own(Ext::ThreadCheck::LogOnce);
        EXPECT_EQ(noticed(row), 1) << row.name;
        Ext::setThreadCheck(Ext::ThreadCheck::LogOnce); // the setter's thread is the owner
        EXPECT_EQ(noticed(row), 0) << row.name;
        own(Ext::ThreadCheck::Off);
    });
    EXPECT_DEATH((own(Ext::ThreadCheck::Abort), getEQMode()), "");
}

QByteArray contents(QString const & path)
{
    QFile file(QStringLiteral(UIAPI_SOURCE_DIR "/") + path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

/// The names of the exported functions directly in a namespace, "KVCAM::UIAPI::".
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

// The list of exported symbols is compared with the library; this compares the tables with the list.
TEST(FaceTable, HoldsEveryExportedFunctionAndMethodOnce)
{
    std::vector<std::string> names;
    forEachRow([&](Row const & row) { names.push_back(row.name); });
    std::set<std::string> exported = exportedFunctions("KVCAM::UIAPI::");
    EXPECT_EQ(exported.size(), faceSize);
    std::set<std::string> const notCalled{
        "instance",          "getInstance",     "operator=", // private and Qt's:
        "initAllMap",        "initFuncNameMap", "initKeyNameMap", "initKeyboardModifiersMap",
        "updateHotkeyTable", "metaObject",      "qt_metacall",    "qt_metacast"};
    for (auto const & [name, alias] :
         {std::pair<std::string, std::string>("UIAPI::UIAPICommonPara", "Para::"),
          {"UIAPI::UIAPIGlobalVar", "Global::"},
          {"UIAPI::Unified_AnalysisResult", "Result::"},
          {"KVHotKey", "Keys::"}}) {
        for (std::string const & method : exportedFunctions("KVCAM::" + name + "::")) {
            bool const isSpecial = method.front() == '~' || name.find(method) != std::string::npos;
            if (!isSpecial && notCalled.count(method) == 0) {
                exported.insert(alias + method);
            }
        }
    }
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<std::string>(exported.begin(), exported.end())));
}

TEST(FaceTable, EveryAdditionStandsBesideWhatItAddsToAndInTheMapOfItsSectionsHeader)
{
    std::set<std::string> additions = exportedFunctions("KVCAM::UIAPI::Ext::");
    EXPECT_EQ(additions.count("edaLinkState"), 1U);
    for (QString const & section : QString(contents("docs/Extensions.md")).split("\n## ").mid(1, 10)) {
        QString const map = contents("src/ext/" + section.section('\n', 0, 0) + ".h");
        for (QString const & word : section.split("`Ext::").mid(1)) {
            EXPECT_TRUE(map.contains("\n//   " + word.section('`', 0, 0) + ' ')) << word.toStdString();
            additions.erase(word.section('(', 0, 0).toStdString());
        }
    }
    EXPECT_EQ(additions, std::set<std::string>());
}

} // namespace
