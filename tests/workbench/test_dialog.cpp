#include "SampleWindow.h"
#include "checks/ResultsPage.h"
#include "feature/FeatureDialog.h"
#include "feature/PadGroup.h"
#include "feature/RemarksGroup.h"

#include <UIAPICommon.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QGroupBox>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>

#include <memory>

using namespace KVCAM::UIAPI;
using namespace Workbench;

namespace {

char const * const formFile = "./feature-form.json";

// A window on the sample job in inches.
class Windows : public SampleWindow
{
protected:
    void SetUp() override
    {
        SampleWindow::SetUp();
        open();
    }
    static QLineEdit & field(FeatureDialog & dialog, char const * name)
    {
        return *dialog.findChild<QLineEdit *>(name);
    }
    static void type(QLineEdit & field, QString const & text)
    {
        field.selectAll();
        QTest::keyClick(&field, Qt::Key_Delete);
        QTest::keyClicks(&field, text);
    }
    FeatureDialog & openFeature(int feature) const { return *board().openFeature(feature); }
};

constexpr char const * allowed = "Allowed: 0.5 mil to 1000 mil, both included.";

TEST_F(Windows, ASizeFieldCalculatesAndRefuses)
{
    FeatureDialog & dialog = openFeature(0);
    auto & width = field(dialog, "width");
    struct
    {
        char const * typed;
        char const * below; ///< what stands below the field before it is finished
        char const * shown; ///< the size afterwards
    } const rows[] = {
        {"10+2.5", "= 12.5 mil = 317.5 my", "12.5"},
        {"100-2*3+4", "= 98 mil = 2489.2 my", "98"},
        {"0.1mm+0.0854mm", "= 7.2992 mil = 185.4 my", "7.2992"},
        {"90000*2", allowed, "7.2992"},
        {"0/0", "\"0\" is zero: nothing can be divided by it.", "7.2992"},
        {"0.4", allowed, "7.2992"},
        {"254.1234", "", "254.1234"},
    };
    for (auto const & row : rows) {
        type(width, row.typed);
        EXPECT_EQ(dialog.pad().verdict(), row.below) << row.typed;
        QTest::keyClick(&width, Qt::Key_Return);
        QApplication::processEvents(); // the field is done with its key
        EXPECT_EQ(getUnit(view()), 0) << "Return pressed a button";
        QString const symbol = dialog.pad().symbol();
        EXPECT_TRUE(symbol.startsWith(QString("rect") + row.shown + 'x')) << symbol.toStdString();
        for (int i = 0; i < 100; ++i) {
            setUnit(view(), 1 - getUnit(view()));
            EXPECT_EQ(dialog.pad().symbol() == symbol, i % 2 == 1) << row.typed;
        }
        EXPECT_EQ(width.text(), row.shown) << row.typed;
        EXPECT_EQ(dialog.pad().symbol(), symbol) << row.typed;
        EXPECT_EQ(dialog.pad().verdict(), "") << row.typed;
    }
    EXPECT_EQ(dialog.pad().exactWidth().nanometres(), 6454734); // 254.1234 mil
}

TEST_F(Windows, WhatIsBeingTypedCountsInTheUnitItWasTypedIn)
{
    FeatureDialog & dialog = openFeature(0);
    auto & width = field(dialog, "width");
    QString const height = field(dialog, "height").text();
    type(width, "10+2.5");
    setUnit(view(), 1);
    EXPECT_EQ(width.text(), "317.5");
    type(width, "1");
    setUnit(view(), 0);
    EXPECT_EQ(width.text(), "12.5");
    type(width, "");
    setUnit(view(), 1);
    EXPECT_EQ(width.text(), "317.5");
    type(width, "");
    QFocusEvent left(QEvent::FocusOut);
    QApplication::sendEvent(&width, &left);
    EXPECT_EQ(width.text(), "317.5");
    EXPECT_TRUE(width.isEnabled());
    setUnit(view(), 0);
    EXPECT_EQ(dialog.pad().symbol(), "rect12.5x" + height);
}

TEST_F(Windows, AWindowThatGoesAwayFinishesNothing)
{
    FeatureDialog & dialog = openFeature(0);
    auto & width = field(dialog, "width");
    width.activateWindow();
    width.setFocus();
    QApplication::processEvents();
    type(width, "90000*2");
    dialog.remarks().note().setFocus(); // losing the focus saves the form
    window.reset();
    EXPECT_FALSE(QFile::exists(formFile));
}

TEST_F(Windows, TypingASymbolCanBeUndone)
{
    FeatureDialog & dialog = openFeature(0);
    auto & name = field(dialog, "symbol");
    type(name, "oval30x20");
    EXPECT_EQ(field(dialog, "height").text(), "20");
    type(name, "r30");
    EXPECT_FALSE(field(dialog, "height").isEnabled());
    type(name, "rect30");
    EXPECT_EQ(dialog.pad().description(), "user symbol rect30\nheight: This field is missing.");
    for (int i = 0; i < 16 && dialog.pad().symbol() != "oval30x20"; ++i) {
        name.undo();
    }
    EXPECT_EQ(dialog.pad().symbol(), "oval30x20");
    EXPECT_EQ(field(dialog, "height").text(), "20");
}

TEST_F(Windows, ADialogComesBackAsItWasLeft)
{
    openFeature(1).close();
    EXPECT_FALSE(QFile::exists(formFile)); // just looking saves nothing

    FeatureDialog & dialog = openFeature(0);
    setUnit(view(), 1);
    type(field(dialog, "offset"), "254.1234");
    setUnit(view(), 0);
    type(field(dialog, "width"), "10+2.5");
    dialog.remarks().fill("me", "a note", "a file");
    FeatureDialog & other = openFeature(1); // replaces the first, which is saved
    EXPECT_FALSE(other.isRestored());
    type(field(other, "height"), "90000*2");
    other.remarks().fill("you", "", "");
    find<QTableWidget>().selectRow(6); // another layer closes the dialog
    find<QTableWidget>().selectRow(4);
    EXPECT_FALSE(readFile(formFile).contains("90000"));

    setUnit(view(), 1);
    FeatureDialog & again = openFeature(0);
    EXPECT_TRUE(again.isRestored());
    EXPECT_EQ(getUnit(view()), 0);
    EXPECT_EQ(again.pad().width(), "12.5");
    EXPECT_EQ(field(again, "offset").text(), "10.0049");
    setUnit(view(), 1);
    EXPECT_EQ(field(again, "offset").text(), "254.1234");
    EXPECT_EQ(again.findChild<QLineEdit *>("author")->text(), "me");
    window->close();
}

TEST_F(Windows, AFormInNoUnitIsNotRestored)
{
    openFeature(0).saveForm();
    QJsonObject forms = readObject(formFile);
    ASSERT_EQ(forms.size(), 1);
    QJsonObject form = forms.begin()->toObject();
    form["unit"] = 7;
    forms.begin().value() = form;
    writeFile(formFile, QJsonDocument(forms).toJson());
    EXPECT_FALSE(openFeature(0).isRestored());
    EXPECT_EQ(getUnit(view()), 0);
}

TEST_F(Windows, TheSymbolsPageFollowsTheLanguageAndTheShownStep)
{
    auto & page = find<QWidget>("symbols");
    auto * names = page.findChild<QTableWidget *>();
    QString const english = names->item(0, 5)->text();
    window->setLanguage(LANGUAGE_CHINESE);
    QApplication::processEvents();
    EXPECT_NE(names->item(0, 5)->text(), english);
    window->setLanguage(LANGUAGE_ENGLISH);
    QApplication::processEvents();
    EXPECT_EQ(names->item(0, 5)->text(), english);

    setUnit(board().view(1).handle(), 1);
    auto * results = page.findChild<QGroupBox *>();
    EXPECT_TRUE(results->title().endsWith("Inch")) << results->title().toStdString();
    ASSERT_TRUE(board().showStep("panel"));
    EXPECT_TRUE(results->title().endsWith("MM")) << results->title().toStdString();
    EXPECT_TRUE(window->results().findChild<QLabel *>("empty")->text().contains("step panel"));
}

} // namespace
