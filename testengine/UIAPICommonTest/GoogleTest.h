#pragma once

#include "CaseCapture.h"
#include "TestWorld.h"

#include <QApplication>

#include <gtest/gtest.h>

/// \addtogroup testing
namespace KVCAM::Testing {

/// A fixture of GoogleTest with `log`, `boxes` and `engine`. A case fails if it leaves an ERROR line or a box
/// untaken, or a request to the engine or an answer to a box unmet. A TearDown() of your own calls this one.
class UiapiTest : public ::testing::Test, protected CaseCapture
{
protected:
    /// Fails the case if anything is left.
    void TearDown() override { EXPECT_EQ(leftovers(), Lines{}) << "left by the case"; }

    /// Registers a view with a unit (0 inch, 1 millimetre) and nothing else.
    static void registerView(void const * view, int unit) { ASSERT_TRUE(Testing::registerView(view, unit)); }
};

/// The whole of main(): a TestWorld, a QApplication, every test. The library's singletons live as long as the
/// process, so let CTest run each case in its own (gtest_discover_tests).
inline int runGoogleTests(int argc, char ** argv)
{
    TestWorld const world;
    if (!world.isReady()) {
        return 2;
    }
    QApplication const application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}

} // namespace KVCAM::Testing
