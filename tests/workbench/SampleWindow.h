#pragma once

#include "TestFiles.h"
#include "board/BoardView.h"
#include "job/CommandLine.h"
#include "job/Session.h"
#include "ui/LogPane.h"
#include "window/BoardPage.h"
#include "window/MainWindow.h"

#include <UIAPICommon.h>

#include <gtest/gtest.h>

#include <QDir>
#include <QLabel>
#include <QTest>

#include <functional>
#include <memory>
#include <utility>

namespace Workbench {

/// A window on the sample job. Boxes are collected, not shown; a case takes the expected ones.
class SampleWindow : public ::testing::Test
{
protected:
    void SetUp() override
    {
        using namespace KVCAM::UIAPI;
        ASSERT_EQ(session.open(sampleJob), "");
        Ext::setMessagePresenter([this](Ext::Message const & message) {
            boxes.append(message.text);
            return answer();
        });
    }
    void TearDown() override
    {
        EXPECT_EQ(QDir::currentPath(), start) << "the user's current directory";
        EXPECT_EQ(boxes, QStringList()) << boxes.join('\n').toStdString();
        KVCAM::UIAPI::Ext::setMessagePresenter({});
    }

    std::unique_ptr<MainWindow> makeWindow()
    {
        CommandLine commandLine;
        commandLine.output = ".";
        auto made = std::make_unique<MainWindow>(session, log, commandLine);
        made->show();
        made->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(made.get()));
        return made;
    }
    void open() { window = makeWindow(); }

    BoardPage & board() const { return window->board(); }
    /// The handle of the current view.
    void const * view() const { return board().currentView()->handle(); }
    QString status() const { return find<QLabel>("hot keys").text(); }
    template <class Widget>
    Widget & find(char const * name = nullptr) const
    {
        return *window->findChild<Widget *>(name);
    }
    QStringList takeBoxes() { return std::exchange(boxes, {}); }

    Session session;
    LogLines log;
    QStringList boxes;
    std::function<KVCAM::UIAPI::Ext::MessageAnswer()> answer = [] {
        return KVCAM::UIAPI::Ext::MessageAnswer::Yes;
    };
    std::unique_ptr<MainWindow> window;

private:
    QString const start = QDir::currentPath();
};

} // namespace Workbench
