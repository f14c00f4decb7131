#include "harness/UiapiTest.h"

#include "uiapi/Notifier.h"
#include "uiapi/RegisteredViews.h"
#include "uiapi/UIAPICommonPara.h"
#include "uiapi/flat/Selections.h"
#include "uiapi/flat/ShowParameters.h"
#include "uiapi/flat/Snap.h"
#include "uiapi/flat/ViewAccess.h"

#include <QCoreApplication>
#include <QTranslator>
#include <QWidget>

#include <functional>
#include <utility>
#include <vector>

using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {

using Calls = std::vector<std::string>;

class Views : public UiapiTest
{
protected:
    void const * const view = viewHandle(0);
    void const * const unknown = viewHandle(9);

    void registerView(void const * handle, int unit = 0)
    {
        Step_Config config;
        config.view = handle;
        config.show_param.unit = unit;
        ASSERT_TRUE(insertStepConfig(config));
        engine.take();
    }
    show_param showPara(void const * handle)
    {
        show_param out;
        getShowPara(handle, out);
        return out;
    }
};

TEST_F(Views, RegistrationIsRefusedForNullAndSilentlyForAKnownView)
{
    EXPECT_FALSE(insertStepConfig(Step_Config{}));
    EXPECT_EQ(log.take(), Lines{operationError("insertStepConfig")});

    Step_Config config;
    config.view = view;
    config.show_param.width = 3;
    config.selection.clear = true;
    config.select_info.selected_para = 8;
    EXPECT_TRUE(insertStepConfig(config));
    EXPECT_EQ(engine.take(),
              (Calls{"DB::get_SaveFlag()", "API::set_show_para(0 3 false true true)", "DB::get_SaveFlag()",
                     "API::set_selection(false true false false false false)", "DB::get_SaveFlag()",
                     "API::set_select_param(8)"}));
    config.show_param.width = 99;
    EXPECT_FALSE(insertStepConfig(config));
    EXPECT_EQ(showPara(view).width, 3);
    EXPECT_EQ(engine.take(), Calls{});
    EXPECT_EQ(log.take(), Lines{});
}

// A record is never removed, so a new view at an old address has to replace all of it.
TEST_F(Views, RegisteringAgainReplacesEveryPartInPlaceAndPushesLikeARegistration)
{
    EXPECT_TRUE(Ext::views().empty() && !Ext::isRegistered(view) && !Ext::registerView({}));
    Step_Config former{view, {8}, {1, SNAP_GRID, 2}, {1, 9, true, false, false}, {}, {}, {3, 4}};
    former.edit_buffer.features["top"].resize(2);
    EXPECT_TRUE(Ext::registerView(former));
    registerView(unknown, 1);
    Edit_Buffer * const buffer = getEditBuffer(view);
    coordinate * const position = getCoordinate(view);
    int told = 0;
    QObject context;
    QObject::connect(Ext::Notifier::instance(), &Ext::Notifier::viewChanged, &context,
                     [&](void const * changed, Ext::ViewAspects aspects) {
                         told += changed == view && int(aspects) == 7 && getUnit(view) == 0 ? 1 : 100;
                     });
    engine.saveFlag = true;
    engine.throwFrom("set_selection", "!");
    engine.onNextCall("set_show_para", [&] { EXPECT_EQ(getSnapSize(view), 5); }); // replaced before any push
    Step_Config fresh;
    fresh.view = view;
    EXPECT_TRUE(Ext::registerView(fresh));
    EXPECT_EQ(engine.take(),
              (Calls{"DB::get_SaveFlag()", "DB::set_show_para_db_save(0 0 false true true)",
                     "API::set_show_para(0 0 false true true)", "DB::get_SaveFlag()",
                     "DB::set_selection_db_save(false false false false false false)",
                     "API::set_selection(false false false false false false)", "DB::get_SaveFlag()",
                     "DB::set_select_param_db_save(0)", "API::set_select_param(0)"}));
    EXPECT_EQ(log.take(), Lines{paraError("KVCAM UIAPI sendSelectionToAPI error!")});
    EXPECT_EQ(told, 1);
    EXPECT_EQ(Ext::views(), (std::vector<void const *>{view, unknown}));
    EXPECT_EQ(int(getSnapMode(view)) + getSnapControl(view).first, 7 + 127);
    EXPECT_TRUE(buffer == getEditBuffer(view) && buffer->features.empty() && position->x == 0);
}

// One row for each way a view's state is stored: what it logs for an unknown view, what it pushes for a known
// one (the save flag aside).
struct StoreRow
{
    char const * name;
    std::function<void(void const *)> store;
    Lines unknownLog;
    Calls pushed;
};

std::vector<StoreRow> const & storeRows()
{
    auto para = [] { return UIAPICommonPara::instance(); };
    Lines const setter{operationError("setSelection")};
    Lines const rmwShow{operationError("getShowPara"), operationError("setSelection")};
    Lines const rmwSelection{operationError("getSelection"), operationError("setSelection")};
    Lines const rmwInfo{operationError("getSelectInfo"), operationError("setSelection")};
    Lines const snap{operationError("setSnapControl")};
    Lines const rmwSnap{operationError("getSnapControl"), operationError("setSnapControl")};
    Calls const none;
    auto pushShow = [](char const * text) { return Calls{"API::set_show_para(" + std::string(text) + ")"}; };
    auto pushSelection = [](char const * text) {
        return Calls{"API::set_selection(" + std::string(text) + ")"};
    };
    static std::vector<StoreRow> const rows{
        {"member setUnit",
         [=](auto v) { para()->setUnit(v, 1); },
         {operationError("setUnit")},
         pushShow("1 0 false true true")},
        {"setShowPara",
         [](auto v) {
             setShowPara(v, {1, 2, true, false, false});
         },
         setter, pushShow("1 2 true false false")},
        {"setUnit", [](auto v) { setUnit(v, 1); }, rmwShow, pushShow("1 0 false true true")},
        {"setUnit to the same value", [](auto v) { setUnit(v, 0); }, rmwShow,
         pushShow("0 0 false true true")},
        {"setWidth", [](auto v) { setWidth(v, 5); }, rmwShow, pushShow("0 5 false true true")},
        {"setNegative", [](auto v) { setNegative(v, true); }, rmwShow, pushShow("0 0 true true true")},
        {"settextax", [](auto v) { settextax(v, false); }, rmwShow, pushShow("0 0 false false true")},
        {"setProfile", [](auto v) { setProfile(v, false); }, rmwShow, pushShow("0 0 false true false")},
        {"setSelection",
         [](auto v) {
             setSelection(v, {true, false, true, false, true, false});
         },
         setter, pushSelection("true false true false true false")},
        {"setSelectionSelect", [](auto v) { setSelectionSelect(v, true); }, rmwSelection,
         pushSelection("true false false false false false")},
        {"setSelectionClear", [](auto v) { setSelectionClear(v, true); }, rmwSelection,
         pushSelection("false true false false false false")},
        {"setSelectionDisplay", [](auto v) { setSelectionDisplay(v, true); }, rmwSelection,
         pushSelection("false false true false false false")},
        {"setSelectionOperation", [](auto v) { setSelectionOperation(v, true); }, rmwSelection,
         pushSelection("false false false true false false")},
        {"setSelectionLocation", [](auto v) { setSelectionLocation(v, true); }, rmwSelection,
         pushSelection("false false false false true false")},
        {"setSelectionTouching", [](auto v) { setSelectionTouching(v, true); }, rmwSelection,
         pushSelection("false false false false false true")},
        {"setSelectInfo", [](auto v) { setSelectInfo(v, {4}); }, setter, {"API::set_select_param(4)"}},
        {"setSelectedPara", [](auto v) { setSelectedPara(v, 6); }, rmwInfo, {"API::set_select_param(6)"}},
        {"setSnapControl", [](auto v) { setSnapControl(v, {}); }, snap, none},
        {"setSnapSize", [](auto v) { setSnapSize(v, 3); }, snap, none},
        {"setSnapType", [](auto v) { setSnapType(v, SNAP_GRID); }, rmwSnap, none},
        {"setSnapMode", [](auto v) { setSnapMode(v, SNAP_GRID); }, rmwSnap, none},
        {"setEditBufferFeatureInfo",
         [](auto v) { setEditBufferFeatureInfo(v, {}); },
         {operationError("setEditBufferFeatureInfo")},
         none}};
    return rows;
}

TEST_F(Views, EachStorePushesOnceAfterTheDatabaseTwinAndAnUnknownViewOnlyLogs)
{
    int number = 100;
    for (StoreRow const & row : storeRows()) {
        SCOPED_TRACE(row.name);
        row.store(unknown);
        EXPECT_EQ(log.take(), row.unknownLog);
        EXPECT_EQ(engine.take(), Calls{});

        void const * const fresh = viewHandle(number++);
        registerView(fresh);
        Calls expected;
        for (std::string const & push : row.pushed) {
            std::string twin = push;
            twin.replace(0, 3, "DB").insert(twin.find('('), "_db_save");
            expected = {"DB::get_SaveFlag()", twin, push};
        }
        engine.saveFlag = true;
        row.store(fresh);
        EXPECT_EQ(engine.take(), expected);
        EXPECT_EQ(log.take(), Lines{});
    }
}

TEST_F(Views, GettersOfAnUnknownViewLogAndStayNeutral)
{
    UIAPICommonPara & para = *UIAPICommonPara::instance();
    show_param show{7, 7, true, false, false};
    Step_Config config;
    config.view = view;
    auto const isDefault = [](Snap_Control const & s) {
        return s.first == 127 && s.mode == 7 && s.size == 5;
    };
    for (auto const & [isNeutral, operation] : std::vector<std::pair<std::function<bool()>, char const *>>{
             {[&] { return para.getUnit(unknown) == -1; }, "getUnit"},
             {[&] { return getUnit(unknown) == 0; }, "getShowPara"}, // the field of a default record
             {[&] { return getWidth(unknown) == 0; }, "getShowPara"},
             {[&] { return !getNegative(unknown); }, "getShowPara"},
             {[&] { return gettextax(unknown); }, "getShowPara"},
             {[&] { return getProfile(unknown); }, "getShowPara"},
             {[&] { return !getSelectionTouching(unknown); }, "getSelection"},
             {[&] { return getSelectedPara(unknown) == 0; }, "getSelectInfo"},
             {[&] { return isDefault(getSnapControl(unknown)); }, "getSnapControl"},
             {[&] { return getSnapType(unknown) == SNAP_ADVANCED; }, "getSnapControl"},
             {[&] { return getSnapMode(unknown) == SNAP_ADVANCED; }, "getStepConfig"},
             {[&] { return getEditBuffer(unknown) == nullptr; }, "getEditBuffer"},
             {[&] { return getCoordinate(unknown) == nullptr; }, "getEditBuffer"},
             {[&] { return getShowPara(unknown, show), show.unit == 7; }, "getShowPara"},
             {[&] { return getShowPara(nullptr, show), show.unit == 7; }, "getShowPara"}, // never registered
             {[&] { return getStepConfig(unknown, config), config.view == view; }, "getStepConfig"}}) {
        EXPECT_TRUE(isNeutral()) << operation;
        EXPECT_EQ(log.take(), Lines{operationError(operation)});
    }
    EXPECT_EQ(getSnapSize(unknown), 5);
    EXPECT_EQ(log.take(), Lines{paraError("KVCAM UIAPI getSnapControl error, use default snap size!")});
}

TEST_F(Views, StateIsKeptPerView)
{
    for (int i = 0; i < 20; ++i) {
        registerView(viewHandle(i), i % 2);
    }
    Edit_Buffer * const buffer = getEditBuffer(viewHandle(0));
    coordinate * const position = getCoordinate(viewHandle(0));
    buffer->image = QImage(2, 2, QImage::Format_RGB32);
    position->x = 12.5;
    setEditBufferFeatureInfo(viewHandle(0), {{"top", FeatureList(3)}});
    setSelectedPara(viewHandle(19), 42);
    for (int i = 20; i < 300; ++i) {
        registerView(viewHandle(i));
    }
    EXPECT_EQ(getEditBuffer(viewHandle(0)), buffer); // records do not move
    EXPECT_EQ(getCoordinate(viewHandle(0)), position);
    EXPECT_EQ(buffer->features.at("top").size(), 3U);
    EXPECT_EQ(buffer->image.width(), 2); // only the lists are replaced
    Step_Config copy;
    getStepConfig(viewHandle(19), copy);
    EXPECT_EQ(copy.show_param.unit, 1);
    EXPECT_EQ(getSelectedPara(viewHandle(19)), 42);
    EXPECT_EQ(getSelectedPara(viewHandle(18)), 0);
}

TEST_F(Views, SnapControlKeepsTheSize)
{
    registerView(view);
    setSnapSize(view, 9);
    setSnapControl(view, {1, SNAP_EDGE, 1000});
    Snap_Control const snap = getSnapControl(view);
    EXPECT_EQ(std::make_tuple(snap.first, snap.mode, snap.size), std::make_tuple(1, SNAP_EDGE, 9));
    setSnapMode(view, SNAP_GRID);
    EXPECT_EQ(getSnapType(view), SNAP_GRID);
    setSnapType(view, static_cast<SNAP_TYPE_MODE>(1000)); // any number is kept
    EXPECT_EQ(int(getSnapMode(view)), 1000);
    EXPECT_EQ(getSnapControl(view).first, 1);
}

// Not even a view that is a widget, unlike for rejected values. The title is translated, the body is fixed.
TEST_F(Views, UnknownViewIsShownInOneBoxWithoutAParentAfterItsLine)
{
    struct Marker : QTranslator
    {
        bool isEmpty() const override { return false; }
        QString translate(char const *, char const *, char const *, int) const override { return "T"; }
    } marker;
    QCoreApplication::installTranslator(&marker);
    QWidget const alive;
    Lines shown;
    Ext::setMessagePresenter([&](Ext::Message const & message) {
        EXPECT_EQ(message.parent, nullptr);
        EXPECT_EQ(log.take(), Lines{operationError("setStepConfigToAPI")});
        shown.push_back(message.title.toStdString() + "|" + message.text.toStdString());
        return Ext::MessageAnswer::Ok;
    });
    setStepConfigToAPI(&alive);
    QCoreApplication::removeTranslator(&marker);
    EXPECT_EQ(shown, Lines{"T|未能找到此graphic的全局参数"});
    EXPECT_EQ(engine.take(), Calls{});
}

TEST_F(Views, AnEngineThatThrowsLeavesTheStoredValueAndOneLine)
{
    registerView(view);
    engine.saveFlag = true;
    engine.throwFrom("set_show_para_db_save", "disk full");
    setUnit(view, 1);
    EXPECT_EQ(getUnit(view), 1);
    EXPECT_EQ(engine.take(), (Calls{"DB::get_SaveFlag()", "DB::set_show_para_db_save(1 0 false true true)"}));
    EXPECT_EQ(log.take(), Lines{paraError("KVCAM UIAPI sendShowParaToAPI errordisk full")});

    engine.throwFrom("get_SaveFlag", "no database");
    engine.throwNonStandardFrom("set_selection");
    setSelectedPara(view, 1);
    EXPECT_EQ(getSelectedPara(view), 1);
    EXPECT_EQ(log.take(), Lines{paraError("KVCAM UIAPI sendSelectInfoToAPI errorno database")});
    engine.reset();
    engine.throwNonStandardFrom("set_selection");
    setSelectionClear(view, true);
    EXPECT_EQ(log.take(), Lines{paraError("KVCAM UIAPI sendSelectionToAPI errorunknown exception")});

    // a whole push goes on with the next record
    engine.reset();
    engine.throwFrom("set_show_para", "x");
    setStepConfigToAPI(view);
    EXPECT_EQ(engine.take(),
              (Calls{"DB::get_SaveFlag()", "API::set_show_para(1 0 false true true)", "DB::get_SaveFlag()",
                     "API::set_selection(false true false false false false)", "DB::get_SaveFlag()",
                     "API::set_select_param(1)"}));
    EXPECT_EQ(log.take(), Lines{paraError("KVCAM UIAPI sendShowParaToAPI errorx")});
}

TEST_F(Views, AnEngineThatCallsBackFindsTheRegistryConsistent)
{
    engine.onNextCall("set_show_para", [this] {
        EXPECT_EQ(getUnit(view), 1);
        Step_Config another;
        another.view = viewHandle(1);
        EXPECT_TRUE(insertStepConfig(another));
        setSelectionClear(view, true);
    });
    Step_Config config;
    config.view = view;
    config.show_param.unit = 1;
    EXPECT_TRUE(insertStepConfig(config));
    EXPECT_EQ(engine.take(),
              (Calls{"DB::get_SaveFlag()", "API::set_show_para(1 0 false true true)",
                     // from inside the callback: a registration and a store
                     "DB::get_SaveFlag()", "API::set_show_para(0 0 false true true)", "DB::get_SaveFlag()",
                     "API::set_selection(false false false false false false)", "DB::get_SaveFlag()",
                     "API::set_select_param(0)", "DB::get_SaveFlag()",
                     "API::set_selection(false true false false false false)",
                     // then the rest, as the store left it
                     "DB::get_SaveFlag()", "API::set_selection(false true false false false false)",
                     "DB::get_SaveFlag()", "API::set_select_param(0)"}));
}

TEST_F(Views, AnEngineThatAssignsToTheObjectIsGivenTheNewRecordsAndNoneThatIsGone)
{
    UIAPICommonPara & para = *UIAPICommonPara::instance();
    static auto * const empty = new UIAPICommonPara(para);
    registerView(view);
    static auto * const other = new UIAPICommonPara(para);
    other->setSelection(view, {true, true, false, false, false, false});
    engine.take();
    engine.onNextCall("set_show_para", [&] { para = *other; });
    engine.onNextCall("set_selection", [&] { para = *empty; });
    setStepConfigToAPI(view);
    EXPECT_EQ(engine.take(),
              (Calls{"DB::get_SaveFlag()", "API::set_show_para(0 0 false true true)", "DB::get_SaveFlag()",
                     "API::set_selection(true true false false false false)"}));
    EXPECT_EQ(log.take(), Lines{operationError("setStepConfigToAPI")});
    // The database twin cannot change what is pushed to the engine.
    registerView(view);
    engine.saveFlag = true;
    engine.onNextCall("set_show_para_db_save", [&] { para.setUnit(view, 0); });
    para.setUnit(view, 1);
    EXPECT_EQ(engine.take(),
              (Calls{"DB::get_SaveFlag()", "DB::set_show_para_db_save(1 0 false true true)",
                     "DB::get_SaveFlag()", "DB::set_show_para_db_save(0 0 false true true)",
                     "API::set_show_para(0 0 false true true)", "API::set_show_para(1 0 false true true)"}));
}

TEST_F(Views, CopiesAreDetached)
{
    registerView(view);
    UIAPICommonPara & para = *UIAPICommonPara::instance();
    QWidget input;
    QWidget split;
    para.SetKvcamAsExe(false);
    para.setInputPtr(&input);
    para.setSplitPtr(&split);
    para.getLayerState()->layers["top"] = 2;
    para.addPluginRoute(1, "", "a");
    // Objects cannot be destroyed, so the copy is kept reachable.
    static auto * const copy = new UIAPICommonPara(para);
    EXPECT_EQ(UIAPICommonPara::m_pUIAPICommonParaInstance, &para);
    EXPECT_FALSE(copy->KvcamAsExe());
    EXPECT_EQ(copy->getInputPtr(), &input);
    EXPECT_EQ(copy->getSplitPtr(), &split);
    EXPECT_EQ(copy->getLayerState()->layers, para.getLayerState()->layers);
    EXPECT_NE(copy->getLayerState(), para.getLayerState());
    EXPECT_FALSE(copy->addPluginRoute(1, "", "a"));
    EXPECT_TRUE(copy->addPluginRoute(2, "", "a") && para.addPluginRoute(2, "", "a"));
    copy->setUnit(view, 1);
    EXPECT_EQ(getUnit(view), 0);
    EXPECT_EQ(copy->getUnit(view), 1);
    EXPECT_NE(copy->getEditBuffer(view), para.getEditBuffer(view));

    UIAPICommonPara & self = *copy;
    *copy = self;
    EXPECT_EQ(copy->getUnit(view), 1);
    *copy = para;
    EXPECT_EQ(copy->getUnit(view), 0);
    EXPECT_EQ(UIAPICommonPara::instance(), &para);
}

} // namespace
