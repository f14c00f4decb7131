#include "UIAPICommonTest/LogCapture.h"

#include <glog/logging.h>

#include <cstddef>
#include <mutex>
#include <utility>

namespace KVCAM::Testing {

class LogCapture::Sink : public google::LogSink
{
public:
    Sink() { google::AddLogSink(this); }
    ~Sink() override { google::RemoveLogSink(this); }
    Sink(Sink const &) = delete;
    Sink & operator=(Sink const &) = delete;

    Lines take()
    {
        std::lock_guard<std::mutex> const lock(m_mutex);
        return std::exchange(m_lines, {});
    }

    using google::LogSink::send;
    void send(google::LogSeverity severity, char const *, char const * baseName, int,
              google::LogMessageTime const &, char const * message, std::size_t length) override
    {
        char const letter = google::GetLogSeverityName(severity)[0];
        std::lock_guard<std::mutex> const lock(m_mutex);
        m_lines.push_back(std::string(1, letter) + " " + baseName + ": " + std::string(message, length));
    }

private:
    std::mutex m_mutex; // other threads log too
    Lines m_lines;
};

LogCapture::LogCapture() : m_sink(std::make_unique<Sink>()) {}

LogCapture::~LogCapture() = default;

Lines LogCapture::take()
{
    return m_sink->take();
}

} // namespace KVCAM::Testing
