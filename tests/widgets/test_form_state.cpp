#include "config/ConfigTest.h"

#include "uiapi/flat/ShowParameters.h"
#include "units/Length.h"
#include "widgets/FormState.h"
#include "widgets/KVLineEdit.h"
#include "widgets/KVTextEdit.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDialog>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QJsonArray>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>

#include <functional>

using namespace KVCAM::Testing;
using namespace KVCAM::UIAPI;

namespace {

class LengthField : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(KVCAM::UIAPI::Ext::Length value MEMBER value NOTIFY valueChanged USER true)
    Q_PROPERTY(KVCAM::UIAPI::Ext::Unit unit MEMBER unit)

public:
    using QWidget::QWidget;
    Ext::Length value;
    Ext::Unit unit = Ext::Unit::Inch;

signals:
    void valueChanged();
};

class OwnSpinBox : public QSpinBox
{
    Q_OBJECT
public:
    using QSpinBox::QSpinBox;
};

/// A form with a field of each kind on a registered view.
struct Form : QWidget
{
    Form() : area(new QScrollArea(this)), box(new QGroupBox), inside(new OwnSpinBox(box))
    {
        area->setWidget(box);
        box->setCheckable(true);
        combo->addItem("one", 1);
        combo->addItem("two", "b");
        combo->addItem("three");
        editable->setEditable(true);
        editable->addItems({"x", "y"});
        slider->setRange(-5, 5);
        for (int id : {7, 5, 9}) {
            group->addButton(new QRadioButton(this), id);
        }
        group->setObjectName("group");
        name(area, "area", box, "box", inside, "inside", number, "number", plain, "plain", check, "check",
             real, "real", slider, "slider", text, "text", date, "date", combo, "combo", editable, "editable",
             length, "length");
    }
    template <class... Rest>
    void name(QWidget * widget, char const * to, Rest... rest)
    {
        widget->setObjectName(to);
        if constexpr (sizeof...(Rest) > 0) {
            name(rest...);
        }
    }
    void fill()
    {
        box->setChecked(false);
        inside->setValue(12);
        number->setTyped("12.5", Ext::Unit::Inch);
        plain->setText("\u7ebf\"");
        check->setCheckState(Qt::Checked);
        real->setValue(0.25);
        slider->setValue(-3);
        text->setPlainText("a\nb");
        date->setDate({2024, 2, 29});
        combo->setCurrentIndex(1);
        editable->setEditText("own");
        group->button(5)->setChecked(true);
        length->value = Ext::Length::fromNanometres(317501);
    }
    QJsonObject fields(Ext::FormState const & state) { return state.toJson()["fields"].toObject(); }

    QScrollArea * area;
    QGroupBox * box;
    OwnSpinBox * inside;
    KVLineEdit * number = new KVLineEdit(RegNumber, this);
    QLineEdit * plain = new QLineEdit(this);
    QCheckBox * check = new QCheckBox(this);
    QDoubleSpinBox * real = new QDoubleSpinBox(this);
    QSlider * slider = new QSlider(this);
    KVTextEdit * text = new KVTextEdit(this);
    QDateEdit * date = new QDateEdit(this);
    QComboBox * combo = new QComboBox(this);
    QComboBox * editable = new QComboBox(this);
    QButtonGroup * group = new QButtonGroup(this);
    LengthField * length = new LengthField(this);
};

class FormStates : public UiapiTest
{
protected:
    void SetUp() override
    {
        UiapiTest::SetUp();
        registerView(&form, 0);
    }
    Form form;
    Ext::FormState state{&form};
};

TEST_F(FormStates, EveryFieldComesBackFromAFileInAnotherFormAndUnit)
{
    form.fill();
    EXPECT_TRUE(state.isDirty());
    ASSERT_TRUE(state.save("form.json"));
    EXPECT_FALSE(state.isDirty());
    QJsonObject saved = readObject("form.json");
    QJsonObject fields = saved["fields"].toObject();
    EXPECT_TRUE(fields.take("text").toString().contains("<p")); // the text edit's own form
    EXPECT_EQ(fields.take("date").toString().left(10), "2024-02-29");
    EXPECT_EQ(QString(QJsonDocument(fields).toJson(QJsonDocument::Compact)).toStdString(),
              "{\"box\":false,\"check\":true,\"combo\":{\"data\":\"b\",\"text\":\"two\"},"
              "\"editable\":{\"text\":\"own\"},\"group\":5,\"inside\":12,"
              "\"length\":{\"length\":\"12.50004 mil\"},"
              "\"number\":{\"text\":\"12.5\",\"unit\":\"inch\"},"
              "\"plain\":\"\u7ebf\\\"\",\"real\":0.25,\"slider\":-3}");
    saved.remove("fields");
    EXPECT_EQ(saved, (QJsonObject{{"format", "uiapi-form"}, {"version", 1}}));

    Form other;
    registerView(&other, 1);
    other.length->unit = Ext::Unit::Millimetre;
    Ext::FormState restored(&other);
    engine.take();
    QSignalSpy const spy(&restored, &Ext::FormState::changed);
    QObject::connect(other.check, &QCheckBox::toggled, &other, [&] { other.slider->setValue(1); });
    ASSERT_TRUE(restored.load("form.json"));
    EXPECT_EQ(spy.count(), 1);
    EXPECT_FALSE(restored.isDirty());
    EXPECT_EQ(other.number->text(), "317.5");
    EXPECT_EQ(other.length->value.nanometres(), 317501);
    EXPECT_EQ(other.combo->currentIndex(), 1);
    QJsonObject again = other.fields(restored);
    EXPECT_EQ(again.take("length"), (QJsonObject{{"length", "0.317501 mm"}}));
    QJsonObject expected = form.fields(state);
    expected.remove("length");
    EXPECT_EQ(again, expected);
    EXPECT_TRUE(engine.take().empty());
    EXPECT_EQ(getUnit(&other), 1);
}

TEST_F(FormStates, WhatIsDamagedLeavesTheFormAndSaysWhy)
{
    form.fill();
    QJsonObject const before = form.fields(state);
    QSignalSpy const spy(&state, &Ext::FormState::changed);
    std::string const head = R"({"format":"uiapi-form","version":1,"fields":{"check":false,)";
    auto const wrong = [](char const * name) {
        return std::string("The value of \"") + name + "\" is of a wrong type.";
    };
    for (auto const & [content, reason] : std::vector<std::pair<std::string, std::string>>{
             {"{", "The form cannot be read from \"form.json\": The file is not JSON: unterminated object "
                   "at byte offset 1."},
             {"[]", "This is not a saved form."},
             {R"({"format":"uiapi-form","version":1,"fields":[]})", "This is not a saved form."},
             {R"({"format":"other","version":1,"fields":{}})", "This is not a saved form."},
             {R"({"format":"uiapi-form","version":2,"fields":{}})",
              "The form was saved in another version than 1."},
             {head + "\"box\":1}}", wrong("box")},
             {head + "\"inside\":1.5}}", wrong("inside")},
             {head + "\"inside\":3e9}}", wrong("inside")},
             {head + "\"inside\":\"1\"}}", wrong("inside")},
             {head + "\"real\":null}}", wrong("real")},
             {head + "\"plain\":7}}", wrong("plain")},
             {head + "\"date\":\"never\"}}", wrong("date")},
             {head + "\"group\":0.5}}", wrong("group")},
             {head + "\"combo\":\"two\"}}", wrong("combo")},
             {head + "\"number\":{\"text\":\"1\",\"unit\":\"ell\"}}}", wrong("number")},
             {head + "\"length\":{\"length\":\"1\"}}}", wrong("length")},
         }) {
        writeFile("form.json", content.c_str());
        EXPECT_EQ(state.load("form.json").reason.toStdString(), reason) << content;
    }
    EXPECT_FALSE(state.load("absent.json") || state.save("no/folder/form.json"));
    EXPECT_EQ(form.fields(state), before);
    EXPECT_EQ(spy.count(), 0);
    EXPECT_TRUE(state.isDirty());
}

TEST_F(FormStates, ChoicesGoByDataThenByTextAndStayWhereThereIsNone)
{
    struct Row
    {
        char const *field, *saved, *expected;
    };
    form.group->button(9)->setChecked(true);
    for (Row const & row : {Row{"combo", R"({"text":"gone","data":"b"})", R"({"data":"b","text":"two"})"},
                            Row{"combo", R"({"text":"three","data":"gone"})", R"({"text":"three"})"},
                            Row{"combo", R"({"text":"gone"})", R"({"text":"three"})"},
                            Row{"combo", R"({"text":"one","data":1})", R"({"data":1,"text":"one"})"},
                            Row{"combo", R"({"text":""})", R"({"text":""})"},
                            Row{"editable", R"({"text":"y"})", R"({"text":"y"})"},
                            Row{"editable", R"({"text":""})", R"({"text":""})"}, Row{"group", "7", "7"},
                            Row{"group", "8", "7"}, Row{"group", "-1", "-1"}}) {
        auto const value = [](char const * text) -> QJsonValue {
            return QJsonDocument::fromJson('[' + QByteArray(text) + ']').array().first();
        };
        EXPECT_TRUE(state.fromJson({{"format", "uiapi-form"},
                                    {"version", 1},
                                    {"fields", QJsonObject{{row.field, value(row.saved)}, {"unknown", 1}}}}));
        EXPECT_EQ(form.fields(state)[row.field], value(row.expected)) << row.saved;
    }
    EXPECT_TRUE(form.group->exclusive());
    EXPECT_EQ(form.editable->currentText(), "");
}

TEST_F(FormStates, ChangesAreToldAndTheDefaultsComeBack)
{
    QJsonObject const defaults = form.fields(state);
    QSignalSpy const spy(&state, &Ext::FormState::changed);
    form.number->setFollowView(true);
    int told = 0;
    for (auto const & [change, news] : std::vector<std::pair<std::function<void()>, int>>{
             {[&] { form.number->setText("10"); }, 1},
             {[&] { setUnit(&form, 1); }, 0},
             {[&] {
                  form.length->unit = Ext::Unit::Millimetre;
                  emit form.length->valueChanged();
              },
              0},
             {[&] { form.inside->setValue(3); }, 1},
             {[&] { form.inside->setValue(3); }, 0},
             {[&] { form.combo->setCurrentIndex(2); }, 1},
             {[&] { form.group->button(7)->setChecked(true); }, 1},
             {[&] { form.group->button(9)->setChecked(true); }, 1},
             {[&] { state.resetToDefaults(); }, 1},
             {[&] { state.resetToDefaults(); }, 0},
         }) {
        change();
        EXPECT_EQ(spy.count() - told, news);
        told = spy.count();
    }
    form.length->unit = Ext::Unit::Inch;
    EXPECT_EQ(form.fields(state), defaults);
    EXPECT_FALSE(state.isDirty());
    QSpinBox late(&form);
    late.setObjectName("late");
    EXPECT_TRUE(state.isDirty()); // not saved yet
    state.refresh();
    EXPECT_FALSE(state.isDirty());
    late.setValue(5);
    EXPECT_EQ(spy.count() - told, 1);
    EXPECT_TRUE(state.isDirty());
}

TEST_F(FormStates, TheAuditListsWhatIsMissedAndTheRestIsLeftOut)
{
    auto const add = [](QWidget * widget, char const * name) {
        widget->setObjectName(name);
        return widget;
    };
    EXPECT_TRUE(Ext::FormState::audit(form).empty());
    QJsonObject const before = form.fields(state);
    add(new QSpinBox(&form), "");
    add(new QCheckBox(&form), "check");
    add(new QListView(&form), "list");
    add(new QPushButton(&form), "");
    auto * const secret = new QLineEdit(&form);
    secret->setEchoMode(QLineEdit::Password);
    add(secret, "secret");
    QWidget * const out = add(new QWidget(&form), "out");
    out->setProperty(Ext::FormState::leaveOutProperty, true);
    add(new QSpinBox(out), "in out");
    add(new QSpinBox(new QDialog(&form)), "of a window");
    auto * const tabs = new QTabWidget(&form);
    tabs->addTab(add(new QCheckBox, "on a tab"), "");
    std::string found;
    for (Ext::FormFinding const & finding : Ext::FormState::audit(form)) {
        found += std::to_string(int(finding.kind)) + finding.where.toStdString() + '|' +
                 finding.text.toStdString() + '\n';
    }
    EXPECT_EQ(found, "0QSpinBox|The QSpinBox \"\" has no object name and is not saved.\n"
                     "1check|The QCheckBox \"check\" has the name of an earlier one and is not saved.\n"
                     "2list|The QListView \"list\" has no value that can be saved.\n");
    QJsonObject after = form.fields(state);
    EXPECT_EQ(after.take("on a tab"), false);
    EXPECT_EQ(after, before);
}

TEST_F(FormStates, ASlotMayDeleteFieldsTheStateOrTheForm)
{
    for (int what : {0, 1, 2}) {
        auto * const doomed = new Form;
        auto * const own = new Ext::FormState(doomed);
        QJsonObject json = state.toJson();
        form.fill();
        QObject::connect(doomed->check, &QCheckBox::toggled, [=] {
            what == 0 ? delete doomed->slider : what == 1 ? delete own : delete doomed->area;
        });
        own->fromJson(state.toJson());
        delete doomed;
        if (what != 1) {
            EXPECT_TRUE(own->toJson()["fields"].toObject().isEmpty());
            EXPECT_TRUE(own->fromJson(state.toJson()));
            delete own;
        }
        state.resetToDefaults();
    }
    EXPECT_EQ(log.take(), Lines{});
}

} // namespace

#include "test_form_state.moc"
