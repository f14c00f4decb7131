#include "harness/UiapiTest.h"
#include "uiapi/flat/ShowParameters.h"
#include "widgets/FormState.h"
#include "widgets/KVLengthEdit.h"
#include "widgets/Translation.h"

#include <QApplication>
#include <QHelpEvent>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>
#include <QWheelEvent>

#include <memory>

using namespace KVCAM::Testing;
using namespace KVCAM::UIAPI;
using namespace KVCAM::UIAPI::Ext::LengthLiterals;

namespace {

class LengthEdit : public UiapiTest
{
protected:
    void SetUp() override
    {
        UiapiTest::SetUp();
        registerView(&view, 0);
        edit.setView(&view);
        edit.setRange(1_mil, 1000_mil);
        edit.setValue(10_mil);
    }
    static void focus(QLineEdit & field, bool in, Qt::FocusReason reason = Qt::TabFocusReason)
    {
        QFocusEvent event(in ? QEvent::FocusIn : QEvent::FocusOut, reason);
        QApplication::sendEvent(&field, &event);
    }
    void type(QString const & text)
    {
        edit.selectAll();
        QTest::keyClick(&edit, Qt::Key_Delete);
        QTest::keyClicks(&edit, text);
    }

    QWidget view;
    KVLengthEdit edit;
};

TEST_F(LengthEdit, TakesWhatHasAValueAndKeepsWhatHasNone)
{
    char const * const allowed = "Allowed: 1 mil to 1000 mil, both included.";
    struct
    {
        char const *typed, *preview, *fault;
        char const *selected, *shown; ///< after Return
        Ext::Length value;            ///< after Return
    } const rows[] = {
        {"90+5", "= 95 mil = 2413 my", "", "", "95 mil", 95_mil},
        {"0.3 mm", "= 11.81102 mil = 300 my", "", "", "11.81102 mil", 300_um},
        {"10.0", "= 10 mil = 254 my", "", "", "10 mil", 10_mil},
        {"0.99999", "= 1 mil = 25.4 my", "", "", "1 mil", 1_mil}, // to the nanometre
        {"0.9999", "= 0.9999 mil = 25.397 my", allowed, "0.9999", "0.9999", 10_mil},
        {"90+", "", "A number is missing at \"+\".", "+", "90+", 10_mil},
        {"10+5 furlong", "", "\"furlong\" is not a unit; use mm, um, my, cm, mil or inch.", "furlong",
         "10+5 furlong", 10_mil},
        {"", "", "", "", "10 mil", 10_mil},
    };
    for (auto const & row : rows) {
        edit.setValue(10_mil);
        type(row.typed);
        EXPECT_EQ(edit.value(), 10_mil) << row.typed;
        EXPECT_EQ(edit.fault(), row.fault) << row.typed;
        EXPECT_EQ(edit.property("uiapiValid").toBool(), edit.fault().isEmpty()) << row.typed;
        EXPECT_EQ(edit.preview(), row.preview) << row.typed;
        QSignalSpy const edited(&edit, &KVLengthEdit::valueEdited);
        QSignalSpy const finished(&edit, &QLineEdit::editingFinished);
        QTest::keyClick(&edit, Qt::Key_Return);
        EXPECT_EQ(finished.count(), edit.fault().isEmpty() ? 1 : 0) << row.typed;
        EXPECT_EQ(edit.selectedText(), row.selected) << row.typed;
        EXPECT_EQ(edit.text(), row.shown) << row.typed;
        EXPECT_EQ(edit.value(), row.value) << row.typed;
        EXPECT_EQ(edited.count(), row.value == 10_mil ? 0 : 1) << row.typed;
        QTest::keyClick(&edit, Qt::Key_Escape);
        EXPECT_EQ(edit.text(), edit.everyUnit().at(0)) << row.typed;
        EXPECT_TRUE(edit.property("uiapiValid").toBool()) << row.typed;
    }
}

TEST_F(LengthEdit, LookingAndSwitchingNeverChangeTheValue)
{
    type("10/3");
    focus(edit, false, Qt::PopupFocusReason); // the menu of the field
    EXPECT_EQ(edit.text(), "10/3");
    focus(edit, false);
    Ext::Length const value = edit.value();
    EXPECT_EQ(value, 84667_nm);
    QSignalSpy const changed(&edit, &KVLengthEdit::valueChanged);
    for (int i = 0; i < 1000; ++i) {
        bool const inch = getUnit(&view) == 0;
        focus(edit, true);
        EXPECT_EQ(edit.text(), inch ? "10/3" : "84.667 my"); // 10/3 of micrometres is another length
        if (i % 3 == 0) {
            setUnit(&view, inch ? 1 : 0);
        }
        focus(edit, false);
        ASSERT_EQ(edit.text(), getUnit(&view) == 0 ? "3.33335 mil" : "84.667 my");
    }
    EXPECT_EQ(edit.value(), value);
    EXPECT_EQ(changed.count(), 0);

    setUnit(&view, 0);
    edit.setMaxLength(4); // cuts the text that is shown, never the value
    edit.restore();
    focus(edit, false);
    EXPECT_EQ(edit.value(), value);
}

TEST_F(LengthEdit, ASwitchTakesWhatIsBeingTypedInItsOwnUnit)
{
    type("20");
    setUnit(&view, 1);
    EXPECT_EQ(edit.text(), "508 my");
    type("2"); // too small in micrometres, and not to become 2 mil
    setUnit(&view, 0);
    EXPECT_EQ(edit.text(), "20 mil");
    edit.setLengthScale(KVLengthEdit::Large);
    edit.setMicroSign(true);
    EXPECT_EQ(edit.everyUnit(), (QStringList{"20 mil", "0.02 inch", "508 µm", "0.508 mm"}));
    type("0.1+0.1");
    EXPECT_EQ(edit.preview(), "= 0.2 inch = 5.08 mm");
    edit.setLengthScale(KVLengthEdit::Small);
    setUnit(&view, 1);
    edit.setValue(1_nm);
    EXPECT_EQ(edit.fault(), "Allowed: 25.4 µm to 25400 µm, both included.");
    edit.setDecimalComma(true);
    type("25,5");
    EXPECT_TRUE(edit.commit());
    EXPECT_EQ(edit.value(), 25500_nm);
    edit.setView(nullptr);
    setUnit(&view, 0);
    EXPECT_EQ(edit.unit(), Ext::Unit::Millimetre);
}

TEST_F(LengthEdit, TheToolTipTellsTheFaultAndTheLengthInEveryUnit)
{
    auto const shown = [this](char const * typed) {
        type(typed);
        QHelpEvent event(QEvent::ToolTip, QPoint(), QPoint());
        QApplication::sendEvent(&edit, &event);
        return QToolTip::text();
    };
    edit.setToolTip("Gap < width");
    edit.resize(200, 30);
    EXPECT_EQ(shown("20"), "<p>Gap &lt; width</p><p>20 mil<br>0.02 inch<br>508 my<br>0.508 mm</p>");
    EXPECT_EQ(shown("2 <i>"), "<p>Gap &lt; width</p><p>&quot;&lt;&quot; has no meaning here.</p>");
}

TEST_F(LengthEdit, StepsStayInTheRange)
{
    struct
    {
        Qt::Key key;
        Qt::KeyboardModifier modifier;
        char const * typed;
        Ext::Length value;
    } const rows[] = {
        {Qt::Key_Up, Qt::NoModifier, "10", 11_mil},      {Qt::Key_Down, Qt::NoModifier, "10+5", 14_mil},
        {Qt::Key_Up, Qt::ControlModifier, "10", 20_mil}, {Qt::Key_PageDown, Qt::NoModifier, "5", 1_mil},
        {Qt::Key_Up, Qt::NoModifier, "2000", 1000_mil},  {Qt::Key_Up, Qt::NoModifier, "x", 10_mil},
    };
    for (auto const & row : rows) {
        edit.setValue(10_mil);
        type(row.typed);
        QTest::keyClick(&edit, row.key, row.modifier);
        EXPECT_EQ(edit.value(), row.value) << row.typed;
    }
    edit.setStep(5_um);
    edit.setValue(10_mil);
    edit.show();
    QApplication::setActiveWindow(&edit);
    edit.setFocus();
    for (bool const wheel : {false, true}) {
        edit.setWheelSteps(wheel);
        for (int i = 0; i < 4; ++i) { // two steps of a wheel with half notches
            QWheelEvent event({}, {}, {}, {0, 60}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(&edit, &event);
        }
        EXPECT_EQ(edit.value(), wheel ? 264_um : 254_um);
    }
    edit.setReadOnly(true);
    edit.stepBy(1);
    EXPECT_EQ(edit.value(), 264_um);
}

TEST_F(LengthEdit, SeveralValuesAreNoneUntilOneIsTypedAndAFormSavesThem)
{
    QWidget form;
    auto * const field = new KVLengthEdit(&form);
    field->setObjectName("width");
    field->setPlaceholderText("none");
    Ext::FormState state(&form);
    QJsonObject const empty = state.toJson();
    field->setValue(254_um);
    QJsonObject const full = state.toJson();
    EXPECT_EQ(full["fields"].toObject()["width"], (QJsonObject{{"length", "10 mil"}}));
    field->setSeveralValues();
    EXPECT_EQ(state.toJson(), empty);
    ASSERT_TRUE(Ext::installTranslation(LANGUAGE_CHINESE));
    QApplication::processEvents();
    EXPECT_EQ(field->placeholderText(), "多个值");
    field->setText("x");
    EXPECT_EQ(field->fault(), "“x”处缺少数字。");
    focus(*field, false);
    EXPECT_FALSE(field->hasValue());
    EXPECT_TRUE(state.fromJson(full));
    EXPECT_EQ(field->value(), 254_um);
    EXPECT_EQ(field->placeholderText(), "none");
    EXPECT_TRUE(state.fromJson(empty));
    EXPECT_FALSE(field->hasValue());
    Ext::installTranslation(LANGUAGE_ENGLISH);

    std::unique_ptr<QMenu> const menu(edit.createMenu());
    EXPECT_EQ(menu->findChild<QMenu *>()->actions().at(3)->text(), "0.254 mm");
}

} // namespace
