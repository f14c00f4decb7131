#include "harness/LogCapture.h"

#include <utility>

namespace KVCAM::Testing {

LogCapture::LogCapture()
{
    google::AddLogSink(this);
}

LogCapture::~LogCapture()
{
    google::RemoveLogSink(this);
}

Lines LogCapture::take()
{
    return std::exchange(m_lines, {});
}

void LogCapture::send(google::LogSeverity severity, char const *, char const * baseName, int,
                      google::LogMessageTime const &, char const * message, std::size_t length)
{
    char const letter = google::GetLogSeverityName(severity)[0];
    m_lines.push_back(std::string(1, letter) + " " + baseName + ": " + std::string(message, length));
}

} // namespace KVCAM::Testing
