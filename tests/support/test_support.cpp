#include "harness/UiapiTest.h"

#include "support/Boxes.h"
#include "support/Guard.h"
#include "support/Log.h"
#include "support/Narrowing.h"
#include "support/NumberRuns.h"
#include "support/WholeFile.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QTimer>
#include <QWidget>

#include <cmath>
#include <filesystem>
#include <limits>
#include <stdexcept>
#include <thread>
#include <tuple>

using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {

constexpr bool onWindows = std::filesystem::path::preferred_separator != '/';

class SupportTest : public UiapiTest
{};

TEST_F(SupportTest, GuardLogsTwoLinesAndGivesNeutralResult)
{
    EXPECT_EQ(guarded(
                  Log::commonPara, []() -> int { throw std::runtime_error("broken"); }, 12),
              0);
    EXPECT_EQ(guarded(
                  Log::globalVar, []() -> std::string { throw 1; }, 13),
              "");
    EXPECT_EQ(guarded(Log::commonPara, [] { return 5; }), 5);
    EXPECT_EQ(log.take(), (Lines{paraError("异常位置：UIAPICommonPara : 12"), paraError("异常描述：broken"),
                                 "E UIAPIGlobalVar: 异常位置：UIAPIGlobalVar : 13",
                                 "E UIAPIGlobalVar: 异常描述：unknown exception"}));
}

TEST_F(SupportTest, NarrowingSaturates)
{
    struct Row
    {
        double value;
        int expected;
    };
    constexpr int max = std::numeric_limits<int>::max();
    constexpr int min = std::numeric_limits<int>::min();
    for (Row const & row : {Row{3.9, 3}, Row{-3.9, -3}, Row{2147483647.0, max}, Row{2147483646.9, max - 1},
                            Row{2147483648.0, max}, Row{-2147483648.9, min}, Row{-1e300, min},
                            Row{std::numeric_limits<double>::infinity(), max}, Row{std::nan(""), 0}}) {
        EXPECT_EQ(saturatedInt(row.value), row.expected) << row.value;
    }
}

TEST_F(SupportTest, NumberRunsAlternateAndKeepEveryCharacter)
{
    struct Row
    {
        char const * text;
        char const * runs; // number runs in brackets, runs separated by blanks
    };
    for (Row const & row : {Row{"", ""}, Row{"r10", "r [10]"}, Row{"10x20", "[10] x [20]"},
                            Row{"r-1.5e", "r- [1.5] e"}, Row{"..", "[..]"}, Row{"rect٣x5", "rect٣x [5]"}}) {
        QString const text = QString::fromUtf8(row.text);
        QStringList shown;
        for (TextRun const & run : splitNumberRuns(text)) {
            shown << (run.isNumber ? "[" + run.text.toString() + "]" : run.text.toString());
        }
        EXPECT_EQ(shown.join(' ').toStdString(), row.runs) << row.text;
    }
}

TEST_F(SupportTest, AFileTellsWhyItCannotBeRead)
{
    using WholeFile::ReadStatus;
    ASSERT_TRUE(QDir().mkdir("directory.json"));
    ASSERT_TRUE(WholeFile::replace("broken.json", "{\"a\": }") &&
                WholeFile::replace("whole.json", "[\r\n1]"));
    // What Qt calls a link on Windows is a file of its own format.
    ASSERT_TRUE(onWindows ? QFile::copy("whole.json", "link.json") : QFile::link("whole.json", "link.json"));
    for (auto const & [name, more] : {std::pair("largest.json", 0), {"too large.json", 1}}) {
        QFile sparse(name);
        ASSERT_TRUE(sparse.open(QIODevice::WriteOnly) && sparse.resize(WholeFile::largestFile + more));
    }
    for (auto const & [name, status, reason] :
         {std::tuple("absent.json", ReadStatus::Missing, "There is no such file."),
          {"", ReadStatus::Missing, "There is no such file."},
          {"directory.json", ReadStatus::OpenFailed, "It is not a regular file."},
          {"broken.json", ReadStatus::ParseError,
           "The file is not JSON: object is missing after a comma at byte offset 7."},
          {"largest.json", ReadStatus::ParseError, "The file is not JSON: illegal value at byte offset 1."},
          {"too large.json", ReadStatus::OpenFailed, "The file is too large: more than 67108864 bytes."},
          {"link.json", ReadStatus::Ok, ""}}) {
        WholeFile::ReadResult const result = WholeFile::readJson(name);
        EXPECT_EQ(result.status, status) << name;
        EXPECT_EQ(result.reason.toStdString(), reason) << name;
        EXPECT_EQ(result.document.isArray(), status == ReadStatus::Ok) << name;
    }
    EXPECT_EQ(WholeFile::read("link.json", QIODevice::Text).bytes, "[\n1]");
}

TEST_F(SupportTest, WhatIsNoRegularFileIsNotReplaced)
{
    ASSERT_TRUE(QDir().mkdir("taken"));
    ASSERT_TRUE(onWindows || QProcess::execute("mkfifo", {"pipe"}) == 0);
    ASSERT_TRUE(onWindows || QFile::link("pipe", "link"));
    for (char const * name : {"taken", onWindows ? "taken/" : "pipe", onWindows ? "taken\\" : "link"}) {
        EXPECT_EQ(WholeFile::replace(name, "x").reason, "It is not a regular file.");
        EXPECT_FALSE(QFileInfo(name).isFile()) << name;
    }
    QString const noPath = onWindows ? qt_error_string(3) : QStringLiteral("No such file or directory");
    EXPECT_EQ(WholeFile::replace("no/such/folder/file", "x").reason,
              "The file cannot be opened for writing: " + noPath + ".");
}

// The real box, operated like a user would: the timer fires in its event loop.
class BoxTest : public SupportTest
{
protected:
    void SetUp() override
    {
        SupportTest::SetUp();
        m_capture = Ext::setMessagePresenter({});
    }
    void TearDown() override
    {
        Ext::setMessagePresenter(m_capture);
        SupportTest::TearDown();
    }
    // Presses a button of the box about to open, or closes it, and notes what the box looked like.
    void press(QMessageBox::StandardButton button)
    {
        QTimer::singleShot(0, [this, button] {
            auto * box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            look = QStringList{box->windowTitle(), box->text()};
            for (int number : {int(box->icon()), int(box->standardButtons()),
                               int(box->standardButton(box->defaultButton())), int(box->windowModality()),
                               int(box->windowFlags())}) {
                look += QString::number(number);
            }
            parent = box->parentWidget();
            button == QMessageBox::NoButton ? static_cast<void>(box->close()) : box->button(button)->click();
        });
    }

    QStringList look;
    QWidget * parent = nullptr;

private:
    Ext::MessagePresenter m_capture;
};

TEST_F(BoxTest, InformationIsThatOfQtWithAParent)
{
    QWidget widget;
    press(QMessageBox::Ok);
    QMessageBox::information(&widget, "Information", "text", QMessageBox::Ok);
    QStringList const expected = look;
    press(QMessageBox::Ok);
    showInformation(aliveWidget(&widget), "text");
    EXPECT_EQ(look, expected);
    EXPECT_EQ(parent, &widget);
}

TEST_F(BoxTest, QuestionIsApplicationModalAndAnswered)
{
    QStringList const expected{"Information",
                               "Sure?",
                               QString::number(QMessageBox::Question),
                               QString::number(QMessageBox::Yes | QMessageBox::No),
                               "0",
                               QString::number(Qt::ApplicationModal)};
    for (auto const & [button, answer] : {std::pair(QMessageBox::Yes, Ext::MessageAnswer::Yes),
                                          std::pair(QMessageBox::No, Ext::MessageAnswer::No),
                                          std::pair(QMessageBox::NoButton, Ext::MessageAnswer::No)}) {
        press(button);
        EXPECT_EQ(Ext::showMessage({Ext::MessageKind::Question, nullptr, "Information", "Sure?"}), answer);
        EXPECT_EQ(look.mid(0, 6), expected);
    }
}

TEST_F(BoxTest, ABoxThatDiesWithItsParentGivesTheNeutralAnswer)
{
    for (auto const & [kind, answer] : {std::pair(Ext::MessageKind::Question, Ext::MessageAnswer::No),
                                        std::pair(Ext::MessageKind::Information, Ext::MessageAnswer::Ok)}) {
        auto * const dying = new QWidget;
        QTimer::singleShot(0, [dying] { delete dying; });
        EXPECT_EQ(Ext::showMessage({kind, dying, "", ""}), answer);
    }
}

TEST_F(BoxTest, AnotherThreadGetsALogLineAndTheNeutralAnswer)
{
    Ext::MessageAnswer answer = Ext::MessageAnswer::Yes;
    std::thread([&] {
        answer = Ext::showMessage({Ext::MessageKind::Question, nullptr, "Information", "Sure?"});
    }).join();
    EXPECT_EQ(answer, Ext::MessageAnswer::No);
    EXPECT_EQ(log.take(), Lines{"W UIAPICommonPara: Information: Sure?"});
}

TEST_F(SupportTest, APresenterThatThrowsGivesTheNeutralAnswer)
{
    auto const previous = Ext::setMessagePresenter(
        [](Ext::Message const &) -> Ext::MessageAnswer { throw std::runtime_error("presenter"); });
    EXPECT_EQ(Ext::showMessage({Ext::MessageKind::Question, nullptr, "", ""}), Ext::MessageAnswer::No);
    Ext::setMessagePresenter(previous);
    Lines const lines = log.take();
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[1], paraError("异常描述：presenter"));
}

TEST_F(SupportTest, OnlyALivingWidgetIsAParent)
{
    EXPECT_EQ(aliveWidget(nullptr), nullptr);
    EXPECT_EQ(aliveWidget(viewHandle(0)), nullptr);
    auto * widget = new QWidget;
    EXPECT_EQ(aliveWidget(widget), widget);
    void const * const dead = widget;
    delete widget;
    EXPECT_EQ(aliveWidget(dead), nullptr);
}

} // namespace
