#pragma once

#include <UIAPICommonTest/Export.h>

#include <QTemporaryDir>

/// \addtogroup testing
namespace KVCAM::Testing {

/// The surroundings of a test process, so that tests neither find nor leave anything: a fresh temporary
/// directory is the working directory, relative to which several files are read, and the home; no display is
/// needed (QT_QPA_PLATFORM is "offscreen" unless set), numbers are written as in C, and no log files appear.
/// Construct it first thing in main(), before the QApplication and the first call into the library.
class TestWorld
{
public:
    ///@{
    /// Begins and ends; the working directory is then the root.
    UIAPITESTENGINE_EXPORT TestWorld();
    UIAPITESTENGINE_EXPORT ~TestWorld();
    TestWorld(TestWorld const &) = delete;
    TestWorld & operator=(TestWorld const &) = delete;
    ///@}

    /// False if there is no temporary directory; then run no test.
    bool isReady() const { return m_ready; }

private:
    QTemporaryDir m_folder;
    bool m_ready = false;
};

} // namespace KVCAM::Testing
