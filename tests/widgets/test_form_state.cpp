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
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>

#include <functional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

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
    Form()
    {
        auto * const area = new QScrollArea(this);
        area->setWidget(box);
        box->setObjectName("box");
        box->setCheckable(true);
        inside->setParent(box);
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
    }
    template <class Widget, class... Arguments>
    Widget * named(char const * name, Arguments... arguments)
    {
        auto * const widget = new Widget(arguments..., this);
        widget->setObjectName(name);
        return widget;
    }
    void fill()
    {
        box->setChecked(false);
        inside->setValue(12);
        number->setTyped("12.5", Ext::Unit::Inch);
        plain->setText("\u7ebf\"");
        check->setChecked(true);
        real->setValue(0.25);
        slider->setValue(-3);
        text->setPlainText("a\nb");
        date->setDate({2024, 2, 29});
        combo->setCurrentIndex(1);
        editable->setEditText("own");
        group->button(5)->setChecked(true);
        length->value = Ext::Length::fromNanometres(317501);
    }
    static QJsonObject fields(Ext::FormState const & state) { return state.toJson()["fields"].toObject(); }

    QGroupBox * const box = new QGroupBox;
    OwnSpinBox * const inside = named<OwnSpinBox>("inside");
    KVLineEdit * const number = named<KVLineEdit>("number", RegNumber);
    QLineEdit * const plain = named<QLineEdit>("plain");
    QCheckBox * const check = named<QCheckBox>("check");
    QDoubleSpinBox * const real = named<QDoubleSpinBox>("real");
    QSlider * const slider = named<QSlider>("slider");
    KVTextEdit * const text = named<KVTextEdit>("text");
    QDateEdit * const date = named<QDateEdit>("date");
    QComboBox * const combo = named<QComboBox>("combo");
    QComboBox * const editable = named<QComboBox>("editable");
    QButtonGroup * const group = new QButtonGroup(this);
    LengthField * const length = named<LengthField>("length");
};

class FormStates : public UiapiTest
{
protected:
    void SetUp() override
    {
        UiapiTest::SetUp();
        registerView(&form, 0);
    }
    Ext::Result restore(QJsonObject const & fields)
    {
        return state.fromJson({{"format", "uiapi-form"}, {"version", 1}, {"fields", fields}});
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
    std::string const none = "This is not a saved form.";
    for (auto const & [content, reason] : std::vector<std::pair<std::string, std::string>>{
             {"{", "The form cannot be read from \"form.json\": The file is not JSON: unterminated object "
                   "at byte offset 1."},
             {"[]", none},
             {R"({"format":"uiapi-form","version":1,"fields":[]})", none},
             {R"({"format":"other","version":1,"fields":{}})", none},
             {R"({"format":"uiapi-form","version":2,"fields":{}})",
              "The form was saved in another version than 1."}}) {
        writeFile("form.json", content.c_str());
        EXPECT_EQ(state.load("form.json").reason.toStdString(), reason) << content;
    }
    for (auto const & [field, value] : std::vector<std::pair<char const *, QJsonValue>>{
             {"box", 1},
             {"inside", 1.5},
             {"inside", 3e9},
             {"inside", "1"},
             {"real", QJsonValue()},
             {"plain", 7},
             {"date", "never"},
             {"group", 0.5},
             {"combo", "two"},
             {"length", QJsonObject{{"length", "1"}}},
             {"number", QJsonObject{{"text", "1"}, {"unit", "ell"}}}}) {
        EXPECT_EQ(restore({{"check", false}, {field, value}}).reason,
                  QStringLiteral("The value of \"%1\" is of a wrong type.").arg(field));
    }
    EXPECT_FALSE(state.load("absent.json") || state.save("no/folder/form.json"));
    EXPECT_EQ(form.fields(state), before);
    EXPECT_TRUE(spy.isEmpty() && state.isDirty());
}

TEST_F(FormStates, ChoicesGoByDataThenByTextAndStayWhereThereIsNone)
{
    using Object = QJsonObject;
    form.group->button(9)->setChecked(true);
    for (auto const & [field, saved, expected] :
         std::vector<std::tuple<char const *, QJsonValue, QJsonValue>>{
             {"combo", Object{{"text", "gone"}, {"data", "b"}}, Object{{"text", "two"}, {"data", "b"}}},
             {"combo", Object{{"text", "three"}, {"data", "gone"}}, Object{{"text", "three"}}},
             {"combo", Object{{"text", "gone"}}, Object{{"text", "three"}}},
             {"combo", Object{{"text", "one"}, {"data", 1}}, Object{{"text", "one"}, {"data", 1}}},
             {"combo", Object{{"text", ""}}, Object{{"text", ""}}},
             {"editable", Object{{"text", "y"}}, Object{{"text", "y"}}},
             {"editable", Object{{"text", ""}}, Object{{"text", ""}}},
             {"group", 7, 7},
             {"group", 8, 7},
             {"group", -1, -1}}) {
        EXPECT_TRUE(restore({{field, saved}, {"unknown", 1}}));
        EXPECT_EQ(form.fields(state)[field], expected) << field;
    }
    EXPECT_TRUE(form.group->exclusive());
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
             {[&] { form.length->unit = Ext::Unit::Millimetre, form.length->valueChanged(); }, 0},
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
    auto * const late = form.named<QSpinBox>("late");
    EXPECT_TRUE(state.isDirty()); // not saved yet
    state.refresh();
    EXPECT_FALSE(state.isDirty());
    late->setValue(5);
    EXPECT_TRUE(spy.count() == told + 1 && state.isDirty());
}

TEST_F(FormStates, TheAuditListsWhatIsMissedAndTheRestIsLeftOut)
{
    EXPECT_TRUE(Ext::FormState::audit(form).empty());
    QJsonObject const before = form.fields(state);
    form.named<QSpinBox>("");
    form.named<QCheckBox>("check");
    form.named<QListView>("list");
    form.named<QPushButton>("");
    form.named<QLineEdit>("secret")->setEchoMode(QLineEdit::Password);
    auto * const out = form.named<QWidget>("out");
    out->setProperty(Ext::FormState::leaveOutProperty, true);
    for (QWidget * parent : {out, static_cast<QWidget *>(new QDialog(&form))}) {
        (new QSpinBox(parent))->setObjectName("not this one");
    }
    form.named<QTabWidget>("tabs")->addTab(form.named<QCheckBox>("on a tab"), "");
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
    form.fill();
    for (int what : {0, 1, 2}) {
        QPointer<Form> const doomed = new Form;
        QPointer<Ext::FormState> const own = new Ext::FormState(doomed);
        QObject::connect(doomed->box, &QGroupBox::toggled, [=] {
            what == 0 ? delete doomed->slider : what == 1 ? delete own.data() : delete doomed->number;
        });
        own->fromJson(state.toJson());
        delete doomed;
        if (own) {
            EXPECT_TRUE(own->fromJson(state.toJson()) && form.fields(*own).isEmpty());
            delete own;
        }
    }
}

} // namespace

#include "test_form_state.moc"
