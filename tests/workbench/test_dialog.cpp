#include "board/BoardView.h"
#include "feature/FeatureDialog.h"
#include "job/CommandLine.h"
#include "job/Session.h"
#include "ui/LogPane.h"
#include "window/BoardPage.h"
#include "window/MainWindow.h"

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

// A window on the sample job in inches; boxes are collected, not shown.
class Windows : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_EQ(session.open(UIAPI_SOURCE_DIR "/samples/jobs/demo-board"), "");
        Ext::setMessagePresenter([this](Ext::Message const & message) {
            boxes.append(message.text);
            return Ext::MessageAnswer::Ok;
        });
        CommandLine commandLine;
        commandLine.output = ".";
        window = std::make_unique<MainWindow>(session, log, commandLine);
        window->show();
        setUnit(view(), 0);
    }
    void TearDown() override { Ext::setMessagePresenter({}); }

    void const * view() const { return window->board().currentView()->handle(); }
    static KVLineEdit & field(FeatureDialog & dialog, char const * name)
    {
        return *dialog.findChild<KVLineEdit *>(name);
    }
    static void type(QLineEdit & field, QString const & text)
    {
        field.selectAll();
        QTest::keyClick(&field, Qt::Key_Delete);
        QTest::keyClicks(&field, text);
    }

    Session session;
    LogLines log;
    QStringList boxes;
    std::unique_ptr<MainWindow> window;
};

constexpr char const * outOfRange =
    "Illegal float value\nfloating value for field is out of range: (0.5, 1000)";

TEST_F(Windows, ASizeFieldCalculatesAndRefuses)
{
    FeatureDialog & dialog = *window->board().openFeature(0);
    auto & width = field(dialog, "width");
    struct
    {
        char const * typed;
        char const * below; ///< what stands below the field before it is finished
        char const * shown; ///< what stands in it afterwards
        char const * box;
    } const rows[] = {
        {"10+2.5", "= 12.5 mil", "12.5", nullptr},
        {"7x+0.1+0.2", "= 7.3 mil", "7.3", nullptr}, // a letter is refused
        {"90000*2", outOfRange, "7.3", outOfRange},
        {"10+5..5", "CaculateData ERROR", "7.3", "CaculateData ERROR"},
        {"0/0", "", "7.3", outOfRange},
        {"0.4", outOfRange, "7.3", outOfRange},
        {"254.1234", "", "254.1234", nullptr},
    };
    for (auto const & row : rows) {
        type(width, row.typed);
        EXPECT_EQ(dialog.verdict(), row.below) << row.typed;
        QTest::keyClick(&width, Qt::Key_Return);
        EXPECT_EQ(boxes, row.box != nullptr ? QStringList(row.box) : QStringList()) << row.typed;
        boxes.clear();
        EXPECT_EQ(getUnit(view()), 0) << "Return pressed a button";
        QString const symbol = dialog.symbol();
        EXPECT_TRUE(symbol.startsWith(QString("rect") + row.shown + 'x')) << symbol.toStdString();
        for (int i = 0; i < 100; ++i) {
            setUnit(view(), 1 - getUnit(view()));
            EXPECT_EQ(dialog.symbol() == symbol, i % 2 == 1) << row.typed;
        }
        EXPECT_EQ(width.text(), row.shown) << row.typed;
        EXPECT_EQ(dialog.symbol(), symbol) << row.typed;
        EXPECT_EQ(dialog.verdict(), "") << row.typed;
    }
    EXPECT_EQ(dialog.exactWidth(), 6454734); // 254.1234 mil
}

TEST_F(Windows, WhatIsBeingTypedCountsInTheUnitItWasTypedIn)
{
    FeatureDialog & dialog = *window->board().openFeature(0);
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
    EXPECT_EQ(dialog.symbol(), "rect12.5x" + height);
    EXPECT_EQ(boxes, QStringList());
}

TEST_F(Windows, AWindowThatGoesAwayFinishesNothing)
{
    auto & width = field(*window->board().openFeature(0), "width");
    width.activateWindow();
    width.setFocus();
    QApplication::processEvents();
    type(width, "90000*2");
    window.reset();
    EXPECT_EQ(boxes, QStringList());
}

TEST_F(Windows, TypingASymbolCanBeUndone)
{
    FeatureDialog & dialog = *window->board().openFeature(0);
    auto & name = field(dialog, "symbol");
    type(name, "oval30x20");
    EXPECT_EQ(field(dialog, "height").text(), "20");
    type(name, "r30");
    EXPECT_FALSE(field(dialog, "height").isEnabled());
    for (int i = 0; i < 8 && dialog.symbol() != "oval30x20"; ++i) {
        name.undo();
    }
    EXPECT_EQ(dialog.symbol(), "oval30x20");
    EXPECT_EQ(field(dialog, "height").text(), "20");
}

TEST_F(Windows, ADialogComesBackAsItWasLeft)
{
    window->board().openFeature(1)->close();
    EXPECT_FALSE(QFile::exists(formFile)); // a mere look leaves nothing behind

    FeatureDialog & dialog = *window->board().openFeature(0);
    setUnit(view(), 1);
    type(field(dialog, "offset"), "254.1234");
    setUnit(view(), 0);
    type(field(dialog, "width"), "10+2.5");
    dialog.remark("me", "a note", "a file");
    FeatureDialog & other = *window->board().openFeature(1); // in place of the first one, which is saved
    EXPECT_FALSE(other.isRestored());
    type(field(other, "height"), "90000*2");
    other.remark("you", "", "");
    window->findChild<QTableWidget *>()->selectRow(6); // another layer closes the dialog
    window->findChild<QTableWidget *>()->selectRow(4);
    QFile saved(formFile);
    ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
    EXPECT_FALSE(saved.readAll().contains("90000"));

    setUnit(view(), 1);
    FeatureDialog & again = *window->board().openFeature(0);
    EXPECT_TRUE(again.isRestored());
    EXPECT_EQ(getUnit(view()), 0);
    EXPECT_EQ(again.width(), "12.5");
    EXPECT_EQ(field(again, "offset").text(), "10.0049");
    setUnit(view(), 1);
    EXPECT_EQ(field(again, "offset").text(), "254.1234");
    EXPECT_EQ(again.findChild<QLineEdit *>("author")->text(), "me");
    window->close();
    EXPECT_EQ(boxes, QStringList());
}

TEST_F(Windows, AFormInNoUnitIsNotRestored)
{
    window->board().openFeature(0)->saveForm();
    QFile file(formFile);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    QJsonObject forms = QJsonDocument::fromJson(file.readAll()).object();
    ASSERT_EQ(forms.size(), 1);
    QJsonObject form = forms.begin()->toObject();
    form["unit"] = 7;
    forms.begin().value() = form;
    file.resize(0);
    file.write(QJsonDocument(forms).toJson());
    file.close();
    EXPECT_FALSE(window->board().openFeature(0)->isRestored());
    EXPECT_EQ(getUnit(view()), 0);
}

TEST_F(Windows, TheSymbolsPageFollowsTheLanguageAndTheShownStep)
{
    auto * page = window->findChild<QWidget *>("symbols");
    auto * names = page->findChild<QTableWidget *>();
    QString const english = names->item(0, 5)->text();
    window->setLanguage(LANGUAGE_CHINESE);
    QApplication::processEvents();
    EXPECT_NE(names->item(0, 5)->text(), english);
    window->setLanguage(LANGUAGE_ENGLISH);
    QApplication::processEvents();
    EXPECT_EQ(names->item(0, 5)->text(), english);

    ASSERT_EQ(window->board().views().size(), 2U);
    setUnit(window->board().views()[1]->handle(), 1);
    auto * results = page->findChild<QGroupBox *>();
    EXPECT_TRUE(results->title().endsWith("Inch")) << results->title().toStdString();
    auto * steps = qobject_cast<QTabWidget *>(window->board().views()[1]->parentWidget()->parentWidget());
    ASSERT_NE(steps, nullptr);
    steps->setCurrentIndex(1);
    EXPECT_TRUE(results->title().endsWith("MM")) << results->title().toStdString();
}

} // namespace
