#pragma once

#include "LogCapture.h"
#include "MessageCapture.h"
#include "RecordingEngine.h"

#include <UIAPICommon.h>

#include <string>
#include <utility>

/// \addtogroup testing
namespace KVCAM::Testing {

/// What one test case captures, on a recording engine in its initial state. The adapters for test frameworks
/// (GoogleTest.h, QtTest.h) make one for each case and fail a case that leaves something behind.
class CaseCapture
{
public:
    /// Resets the engine.
    CaseCapture() { engine.reset(); }

    /// What the case has not accounted for: ERROR lines and boxes not taken, and requests to the engine or
    /// answers to boxes that nothing has met. Takes the lines and boxes.
    Lines leftovers()
    {
        Lines left;
        for (std::string & line : log.take()) {
            if (line.front() == 'E') {
                left.push_back(std::move(line));
            }
        }
        for (std::string & box : boxes.take()) {
            left.push_back(std::move(box));
        }
        for (std::string const & name : engine.unmet()) {
            left.push_back("no engine call of this name: " + name);
        }
        if (boxes.isWaiting()) {
            left.emplace_back("an answer or action waits for a box");
        }
        return left;
    }

    LogCapture log;                                    ///< log lines
    MessageCapture boxes;                              ///< boxes
    RecordingEngine & engine = RecordingEngine::get(); ///< engine calls
};

/// Registers a view with a unit (0 inch, 1 millimetre) and nothing else, which the engine is told; false for
/// null. Records outlive the cases of a process: a handle that is registered already gets a new record.
inline bool registerView(void const * view, int unit)
{
    UIAPI::Step_Config config;
    config.view = view;
    config.show_param.unit = unit;
    return UIAPI::Ext::registerView(config).ok;
}

} // namespace KVCAM::Testing
