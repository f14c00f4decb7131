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

// A class with another name has no row, whatever its base.
class DerivedCheckBox : public QCheckBox
{
    Q_OBJECT
};

// One control of each kind; three buttons with the given ids.
struct SampleForm
{
    QLineEdit line;
    KVLineEdit name{RegName, nullptr};
    QComboBox combo;
    QCheckBox check;
    QWidget buttons;
    QButtonGroup group;
    QSpinBox spin;
    DerivedCheckBox derived;
    QList<QObject *> all{&line, &name, nullptr, &combo, &check, &group, &spin, &derived};

    explicit SampleForm(std::initializer_list<int> ids = {0, 1, 2})
    {
        int number = 0;
        for (QObject * object : all) {
            if (object != nullptr) {
                object->setObjectName(QString::number(++number));
            }
        }
        combo.addItems({"one", "two"});
        for (int id : ids) {
            group.addButton(new QRadioButton(&buttons), id);
        }
    }
    int checkedPosition() { return group.buttons().indexOf(group.checkedButton()); }
};

class Forms : public UiapiTest
{};

TEST_F(Forms, WhatIsSavedComesBackAndOtherClassesAreLeftAlone)
{
    SampleForm form;
    form.line.setText("plain");
    form.name.setText("a+b");
    form.combo.setCurrentText("two");
    form.check.setChecked(true);
    form.group.buttons().at(2)->setChecked(true);
    QJsonObject json{{"other", 1}, {"1", "replaced"}};
    readListToJson(form.all, json);
    EXPECT_EQ(QJsonDocument(json).toJson(QJsonDocument::Compact).toStdString(),
              R"({"1":"plain","2":"a+b","3":"two","4":true,"5":2,"other":1})");

    SampleForm restored;
    QJsonObject withOthers = json;
    withOthers.insert("6", 9);
    withOthers.insert("7", true);
    writeJsonToList(withOthers, restored.all);
    EXPECT_EQ(restored.spin.value(), 0);
    EXPECT_FALSE(restored.derived.isChecked());
    QJsonObject again{{"other", 1}};
    readListToJson(restored.all, again);
    EXPECT_EQ(again, json);
}

TEST_F(Forms, ButtonGroupIsSavedByIdAndRestoredByPosition)
{
    struct Row
    {
        std::initializer_list<int> ids;
        int checked, saved, restored; // restored in a form with the first one checked
    };
    for (Row const & row : {Row{{2, 1, 0}, 0, 2, 2}, Row{{10, 11, 12}, 1, 11, 0}, Row{{-1, -1, -1}, 2, -4, 0},
                            Row{{0, 1, 2}, -1, -1, 0}}) {
        SampleForm form(row.ids);
        if (row.checked >= 0) {
            form.group.buttons().at(row.checked)->setChecked(true);
        }
        QJsonObject json;
        readListToJson({&form.group}, json);
        EXPECT_EQ(json, (QJsonObject{{"5", row.saved}}));
        form.group.buttons().at(0)->setChecked(true);
        writeJsonToList(json, form.all);
        EXPECT_EQ(form.checkedPosition(), row.restored) << row.saved;
    }
}

TEST_F(Forms, ValuesOfAnotherTypeReadAsTheirNeutralValue)
{
    SampleForm form;
    form.line.setText("old");
    form.check.setChecked(true);
    form.combo.setEditable(true);
    writeJsonToList({{"1", 5}, {"3", "gone"}, {"4", "true"}, {"5", "2"}}, form.all);
    EXPECT_EQ(form.line.text(), "");
    EXPECT_EQ(form.combo.currentText(), "gone"); // by text, although no item has it
    EXPECT_FALSE(form.check.isChecked());
    EXPECT_EQ(form.checkedPosition(), 0);
}

TEST_F(Forms, AControlThatASignalDeletesIsSkipped)
{
    QLineEdit first;
    auto * const second = new QLineEdit;
    first.setObjectName("1");
    second->setObjectName("1");
    QObject::connect(&first, &QLineEdit::textChanged, second, [second] { delete second; });
    QList<QObject *> all{&first, second};
    writeJsonToList({{"1", "text"}}, all);
    EXPECT_EQ(first.text(), "text");
}

TEST_F(Forms, LastOfANameIsSavedAndAllAreRestoredAndUnnamedOnesAreSkippedOnSavingOnly)
{
    QLineEdit first("1");
    QLineEdit second("2");
    QLineEdit unnamed("3");
    first.setObjectName("same");
    second.setObjectName("same");
    QList<QObject *> all{&first, &second, &unnamed};
    QJsonObject json;
    readListToJson(all, json);
    EXPECT_EQ(json, (QJsonObject{{"same", "2"}}));
    json.insert("", "named by nothing");
    writeJsonToList(json, all);
    EXPECT_EQ(first.text(), "2");
    EXPECT_EQ(unnamed.text(), "named by nothing");
}

} // namespace

#include "test_forms.moc"
