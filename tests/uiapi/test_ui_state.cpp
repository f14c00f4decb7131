#include "harness/UiapiTest.h"

#include "uiapi/RegisteredViews.h"
#include "uiapi/UIAPICommonPara.h"
#include "uiapi/flat/ModifierKeys.h"
#include "uiapi/flat/UiState.h"
#include "uiapi/flat/ViewAccess.h"

#include <QApplication>
#include <QTest>
#include <QWidget>

#include <sstream>

using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {

class UiState : public UiapiTest
{};

TEST_F(UiState, GlobalsAndModifiersCreateNoSingleton)
{
    EXPECT_FALSE(getEQMode() || getEQVisible() || isEdaGraphicVisible() || getCtrlEnpress());
    EXPECT_EQ(getEQSelectionType() + getDmsConnectInfo().first, 0);
    setEQMode(true);
    EXPECT_TRUE(getEQMode() && !getEQVisible());
    setEQVisible(true);
    EXPECT_TRUE(getEQVisible() && !isEdaGraphicVisible());
    setEdaGraphicVisible(true);
    EXPECT_TRUE(isEdaGraphicVisible());
    setEQSelectionType(-7);
    EXPECT_EQ(getEQSelectionType(), -7);
    setDmsConnectInfo({3, "a", "b", "c"});
    DMS_Connections const dms = getDmsConnectInfo();
    EXPECT_EQ(QString::number(dms.first) + dms.second + dms.third + dms.fourth, "3abc");
    EXPECT_EQ(UIAPICommonPara::m_pUIAPICommonParaInstance, nullptr);
}

TEST_F(UiState, DefaultsAndRoundTrips)
{
    UIAPICommonPara & para = *UIAPICommonPara::instance();
    EXPECT_EQ(getCurrentLanguageMode(), LANGUAGE_ENGLISH);
    EXPECT_FALSE(getPanelPositionStatus() || getCoordinateStatus() || getSplitPtr() != nullptr);
    EXPECT_EQ(getCoordinatePos(), QPoint(0, 0));
    EXPECT_TRUE(para.KvcamAsExe());
    LANGUAGE_MODE language = LANGUAGE_CHINESE;
    setCurrentLanguageMode(language);
    setPanelPositionStatus(true);
    setCoordinateStatus(true);
    setCoordinatePos(QPoint(-3, 4));
    QWidget split;
    setSplitPtr(&split);
    para.SetKvcamAsExe(false);
    EXPECT_EQ(getCurrentLanguageMode(), LANGUAGE_CHINESE);
    EXPECT_TRUE(getPanelPositionStatus() && getCoordinateStatus() && !para.KvcamAsExe());
    EXPECT_EQ(getCoordinatePos(), QPoint(-3, 4));
    EXPECT_EQ(getSplitPtr(), &split);
}

TEST_F(UiState, InputWidgetLeavesItsTrace)
{
    auto shown = [](QWidget * widget) {
        std::ostringstream out;
        out << static_cast<void *>(widget);
        return out.str();
    };
    QWidget first;
    QWidget second;
    setInputPtr(&first);
    setInputPtr(&second);
    setInputPtr(nullptr); // for the next call, none is set
    setInputPtr(&first);
    EXPECT_EQ(getInputPtr(), &first);
    EXPECT_EQ(log.take(), (Lines{"I UIAPICommonPara: setInputPtr _input " + shown(&first),
                                 "W UIAPICommonPara: setInputPtr old m_input " + shown(&first),
                                 "W UIAPICommonPara: setInputPtr new m_input " + shown(&second),
                                 "W UIAPICommonPara: setInputPtr old m_input " + shown(&second),
                                 "W UIAPICommonPara: setInputPtr new m_input 0",
                                 "I UIAPICommonPara: setInputPtr _input " + shown(&first)}));
}

TEST_F(UiState, InputWidgetIsNullOnceItIsDestroyed)
{
    auto * const widget = new QWidget;
    setInputPtr(widget);
    EXPECT_EQ(Ext::inputWidget(), widget);
    delete widget;
    EXPECT_EQ(Ext::inputWidget(), nullptr);
    EXPECT_EQ(getInputPtr(), widget);
    setInputPtr(getInputPtr()); // an address alone is never looked into
    EXPECT_EQ(Ext::inputWidget(), nullptr);
}

TEST_F(UiState, ModifiersAreComparedAsWholeMasks)
{
    struct Row
    {
        Qt::KeyboardModifiers held;
        bool control, shift, alt;
    };
    QWidget widget;
    for (Row const & row :
         {Row{Qt::NoModifier, false, false, false}, Row{Qt::ControlModifier, true, false, false},
          Row{Qt::ShiftModifier, false, true, false}, Row{Qt::AltModifier, false, false, true},
          Row{Qt::ControlModifier | Qt::ShiftModifier, true, true, false},
          Row{Qt::AltModifier | Qt::ShiftModifier, false, false, false},
          Row{Qt::AltModifier | Qt::ControlModifier, false, false, false},
          Row{Qt::ControlModifier | Qt::KeypadModifier, false, false, false}}) {
        SCOPED_TRACE(int(row.held));
        // The application learns its keyboard state from a key event with modifiers.
        QTest::keyPress(&widget, Qt::Key_F5, row.held);
        EXPECT_EQ(getCtrlEnpress(), row.control);
        EXPECT_EQ(getShiftEnpress(), row.shift);
        EXPECT_EQ(getAltEnpress(), row.alt);
        QTest::keyRelease(&widget, Qt::Key_F5);
    }
}

} // namespace
