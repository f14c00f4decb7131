#pragma once

#include <UIAPICommonTest/Export.h>

#include <memory>
#include <string>
#include <vector>

/// \addtogroup testing
namespace KVCAM::Testing {

/// Recorded calls, log lines or boxes, in order.
using Lines = std::vector<std::string>;

/// Collects every log line of the process while it lives, whichever thread logs it.
class LogCapture
{
public:
    ///@{
    /// Begins and ends the capture.
    UIAPITESTENGINE_EXPORT LogCapture();
    UIAPITESTENGINE_EXPORT ~LogCapture();
    LogCapture(LogCapture const &) = delete;
    LogCapture & operator=(LogCapture const &) = delete;
    ///@}

    /// The lines logged since the last take(), each as "E UIAPICommonPara: text": the severity's letter (I,
    /// W, E), the base name of the source and the text.
    UIAPITESTENGINE_EXPORT Lines take();

private:
    class Sink;
    std::unique_ptr<Sink> m_sink;
};

} // namespace KVCAM::Testing
