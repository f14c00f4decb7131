#pragma once

#include <glog/logging.h>

#include <string>
#include <vector>

namespace KVCAM::Testing {

using Lines = std::vector<std::string>;

/// Collects every log line while it lives, each as "E UIAPICommonPara: text": the severity's letter (I, W,
/// E), the base name and the text.
class LogCapture : public google::LogSink
{
public:
    LogCapture();
    ~LogCapture() override;
    LogCapture(LogCapture const &) = delete;
    LogCapture & operator=(LogCapture const &) = delete;

    /// The lines logged since the last take(), in order.
    Lines take();

    using google::LogSink::send;
    void send(google::LogSeverity severity, char const * fullName, char const * baseName, int line,
              google::LogMessageTime const & time, char const * message, std::size_t length) override;

private:
    Lines m_lines;
};

/// An ERROR line of UIAPICommonPara, as recorded by LogCapture.
inline std::string paraError(std::string const & text)
{
    return "E UIAPICommonPara: " + text;
}

/// The usual ERROR line of a failed operation.
inline std::string operationError(std::string const & operation)
{
    return paraError("KVCAM UIAPI " + operation + " error");
}

} // namespace KVCAM::Testing
