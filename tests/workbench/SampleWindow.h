#pragma once

#include "job/CommandLine.h"
#include "job/Session.h"
#include "ui/LogPane.h"
#include "window/MainWindow.h"

#include <gtest/gtest.h>

#include <QTest>

#include <memory>

namespace Workbench {

/// A window on the sample job, in front and with the focus.
class SampleWindow : public ::testing::Test
{
protected:
    void readSample() { ASSERT_EQ(session.open(UIAPI_SOURCE_DIR "/samples/jobs/demo-board"), ""); }
    void showWindow()
    {
        CommandLine commandLine;
        commandLine.output = ".";
        window = std::make_unique<MainWindow>(session, log, commandLine);
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    Session session;
    LogLines log;
    std::unique_ptr<MainWindow> window;
};

} // namespace Workbench
