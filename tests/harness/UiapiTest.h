#pragma once

#include "harness/LogCapture.h"
#include "harness/MessageCapture.h"
#include "harness/RecordingEngine.h"
#include "uiapi/flat/ViewAccess.h"

#include <gtest/gtest.h>

namespace KVCAM::Testing {

/// The fixture of a case: captured log, captured boxes, a fresh recording engine. A case that leaves an ERROR
/// line or a box untaken fails.
class UiapiTest : public ::testing::Test
{
protected:
    void SetUp() override { engine.reset(); }

    void TearDown() override
    {
        Lines errors;
        for (std::string & line : log.take()) {
            if (line.front() == 'E') {
                errors.push_back(std::move(line));
            }
        }
        EXPECT_EQ(errors, Lines{}) << "ERROR lines that the case did not expect";
        EXPECT_EQ(boxes.take(), Lines{}) << "boxes that the case did not expect";
    }

    /// Registers a view with a unit and nothing else.
    static void registerView(void const * view, int unit)
    {
        UIAPI::Step_Config config;
        config.view = view;
        config.show_param.unit = unit;
        ASSERT_TRUE(UIAPI::insertStepConfig(config));
    }

    LogCapture log;
    MessageCapture boxes;
    RecordingEngine & engine = RecordingEngine::get();
};

/// A view handle for tests: any address will do.
inline void const * viewHandle(int number)
{
    static char const handles[1024] = {};
    return &handles[number];
}

} // namespace KVCAM::Testing
