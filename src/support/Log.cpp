#include "support/Log.h"

#include <glog/logging.h>

namespace KVCAM::UIAPI::Log {
namespace {

void write(char const * source, int line, google::LogSeverity severity, std::string const & text)
{
    google::LogMessage(source, line, severity).stream() << text;
}

} // namespace

void error(char const * source, std::string const & text, int line)
{
    write(source, line, google::GLOG_ERROR, text);
}

void warning(char const * source, std::string const & text, int line)
{
    write(source, line, google::GLOG_WARNING, text);
}

void info(char const * source, std::string const & text, int line)
{
    write(source, line, google::GLOG_INFO, text);
}

void operationError(char const * operation, std::string const & detail, int line)
{
    error(commonPara, std::string("KVCAM UIAPI ") + operation + " error" + detail, line);
}

void caughtException(char const * source, std::string const & what, int line)
{
    error(source, std::string("异常位置：") + source + " : " + std::to_string(line), line);
    error(source, "异常描述：" + what, line);
}

} // namespace KVCAM::UIAPI::Log
