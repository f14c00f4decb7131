#pragma once

#include "CaseCapture.h"
#include "TestWorld.h"

#include <QApplication>
#include <QByteArray>
#include <QtTest>

#include <optional>

/// \addtogroup testing
namespace QTest {

/// Shows recorded lines where QCOMPARE() found others.
template <>
inline char * toString(KVCAM::Testing::Lines const & lines)
{
    QByteArray text = "[";
    for (std::string const & line : lines) {
        text += "\n    " + QByteArray::fromStdString(line);
    }
    return qstrdup((text + "]").constData());
}

} // namespace QTest

namespace KVCAM::Testing {

/// The captures of a test class of Qt Test. Make it a member and give the class these two slots, which Qt
/// Test calls around each test function:
///
///     void init() { test.begin(); }
///     void cleanup() { test.end(); }
///
/// The functions of a class share a process, and the library's singletons with it.
class QtTestCase
{
public:
    /// Begins the captures of a test function, on an engine in its initial state.
    void begin()
    {
        m_capture.reset(); // before the next begins to capture
        m_capture.emplace();
    }

    /// Fails the test function if it leaves an ERROR line or a box untaken, or a request to the engine or an
    /// answer to a box unmet, and ends the captures.
    void end()
    {
        Lines const left = m_capture->leftovers();
        m_capture.reset();
        QCOMPARE(left, Lines{});
    }

    ///@{
    /// Of the running test function.
    CaseCapture & capture() { return *m_capture; }
    LogCapture & log() { return m_capture->log; }
    MessageCapture & boxes() { return m_capture->boxes; }
    RecordingEngine & engine() { return m_capture->engine; }
    ///@}

private:
    std::optional<CaseCapture> m_capture;
};

/// The whole of main(): a TestWorld, a QApplication, the test class.
template <class TestClass>
int runQtTests(int argc, char ** argv)
{
    TestWorld const world;
    if (!world.isReady()) {
        return 2;
    }
    QApplication const application(argc, argv);
    TestClass tests;
    return QTest::qExec(&tests, argc, argv);
}

} // namespace KVCAM::Testing
