#include "harness/UiapiTest.h"

#include "uiapi/flat/Forms.h"
#include "widgets/KVLineEdit.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QJsonDocument>
#include <QRadioButton>
#include <QSpinBox>

using namespace KVCAM::Testing;
using namespace KVCAM::UIAPI;

namespace {

// A class with a name of its own has no row, whatever it derives from.
class DerivedCheckBox : public QCheckBox
{
    Q_OBJECT
};

// One of each kind of control; three buttons with the given ids.
struct SampleForm
{
    QWidget window;
    QLineEdit line{&window};
    KVLineEdit number{RegNumber, nullptr};
    QComboBox combo{&window};
    QCheckBox check{&window};
    QButtonGroup group{&window};
    QSpinBox spin{&window};
    DerivedCheckBox derived;
    QList<QObject *> all{&line, &number, nullptr, &combo, &check, &group, &spin, &derived};

    explicit SampleForm(std::initializer_list<int> ids = {0, 1, 2})
    {
        for (auto [object, name] : {std::pair<QObject *, char const *>{&line, "line"},
                                    {&number, "number"},
                                    {&combo, "combo"},
                                    {&check, "check"},
                                    {&group, "group"},
                                    {&spin, "spin"},
                                    {&derived, "derived"}}) {
            object->setObjectName(QString::fromLatin1(name));
        }
        combo.addItems({"one", "two"});
        for (int id : ids) {
            group.addButton(new QRadioButton(&window), id);
        }
    }
    int checkedPosition() { return group.buttons().indexOf(group.checkedButton()); }
};

std::string text(QJsonObject const & json)
{
    return QJsonDocument(json).toJson(QJsonDocument::Compact).toStdString();
}

class Forms : public UiapiTest
{};

TEST_F(Forms, WhatIsSavedComesBackAndOtherClassesAreLeftAlone)
{
    SampleForm form;
    form.line.setText("plain");
    form.combo.setCurrentText("two");
    form.check.setChecked(true);
    form.derived.setChecked(true);
    form.spin.setValue(7);
    form.group.buttons().at(2)->setChecked(true);
    form.number.setText("12.5");
    log.take(); // the field has no registered view
    QJsonObject json{{"other", 1}, {"line", "replaced"}};
    readListToJson(form.all, json);
    EXPECT_EQ(text(json),
              R"({"check":true,"combo":"two","group":2,"line":"plain","number":"12.5","other":1})");

    SampleForm restored;
    json.insert("spin", 9);
    json.insert("derived", true);
    writeJsonToList(json, restored.all);
    log.take();
    EXPECT_EQ(restored.spin.value(), 0);
    EXPECT_FALSE(restored.derived.isChecked());
    EXPECT_EQ(restored.checkedPosition(), 2);
    QJsonObject again{{"other", 1}};
    readListToJson(restored.all, again);
    json.remove("spin");
    json.remove("derived");
    EXPECT_EQ(again, json);
}

TEST_F(Forms, ButtonGroupIsSavedByIdAndRestoredByPosition)
{
    struct Row
    {
        std::initializer_list<int> ids;
        int checkedPosition;
        int saved;
        int restoredPosition; // in a form where the first is checked
    };
    for (Row const & row : {Row{{0, 1, 2}, 1, 1, 1}, Row{{2, 1, 0}, 0, 2, 2}, Row{{10, 11, 12}, 1, 11, 0},
                            Row{{-1, -1, -1}, 2, -4, 0}, Row{{0, 1, 2}, -1, -1, 0}}) {
        SCOPED_TRACE(row.saved);
        SampleForm form(row.ids);
        if (row.checkedPosition >= 0) {
            form.group.buttons().at(row.checkedPosition)->setChecked(true);
        }
        QJsonObject json;
        readListToJson({&form.group}, json);
        EXPECT_EQ(json.value("group").toInt(99), row.saved);

        SampleForm restored(row.ids);
        restored.group.buttons().at(0)->setChecked(true);
        writeJsonToList(json, restored.all);
        EXPECT_EQ(restored.checkedPosition(), row.restoredPosition);
    }
}

TEST_F(Forms, ValuesOfAnotherTypeReadAsTheirNeutralValue)
{
    SampleForm form;
    form.line.setText("old");
    form.check.setChecked(true);
    form.combo.setEditable(true);
    writeJsonToList({{"line", 5}, {"check", "true"}, {"combo", "gone"}, {"group", "2"}}, form.all);
    EXPECT_EQ(form.line.text(), "");
    EXPECT_FALSE(form.check.isChecked());
    EXPECT_EQ(form.combo.currentText(), "gone"); // by text, though no item has it
    EXPECT_EQ(form.checkedPosition(), 0);
}

TEST_F(Forms, LastOfANameIsSavedAndAllOfItAreRestoredAndUnnamedOnesAreSkippedOnSavingOnly)
{
    QLineEdit first("1");
    QLineEdit second("2");
    QLineEdit unnamed("3");
    first.setObjectName("same");
    second.setObjectName("same");
    QList<QObject *> all{&first, &second, &unnamed};
    QJsonObject json;
    readListToJson(all, json);
    EXPECT_EQ(text(json), R"({"same":"2"})");
    json.insert("", "named by nothing");
    writeJsonToList(json, all);
    EXPECT_EQ(first.text(), "2");
    EXPECT_EQ(unnamed.text(), "named by nothing");
}

TEST_F(Forms, ControlThatAnotherOnesSignalDeletesIsSkipped)
{
    QLineEdit first;
    auto * second = new QLineEdit;
    first.setObjectName("a");
    second->setObjectName("b");
    QObject::connect(&first, &QLineEdit::textChanged, [&] { delete second; });
    QList<QObject *> all{&first, second};
    writeJsonToList({{"a", "1"}, {"b", "2"}}, all);
    EXPECT_EQ(first.text(), "1");
}

} // namespace

#include "test_forms.moc"
