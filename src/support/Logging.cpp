#include "support/Logging.h"

#include <glog/logging.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

#include <array>
#include <string>

namespace KVCAM::UIAPI::Ext {
namespace {

struct LevelFact
{
    LogLevel level;
    google::LogSeverity severity;
};

constexpr std::array<LevelFact, 4> levelFacts = {{
    {LogLevel::Info, google::GLOG_INFO},
    {LogLevel::Warning, google::GLOG_WARNING},
    {LogLevel::Error, google::GLOG_ERROR},
    {LogLevel::None, google::GLOG_FATAL}, // ends the process, and says why
}};

google::LogSeverity severityOf(LogLevel level)
{
    for (LevelFact const & fact : levelFacts) {
        if (fact.level == level) {
            return fact.severity;
        }
    }
    return google::GLOG_WARNING;
}

bool canWriteInto(QString const & folder)
{
    return QDir().mkpath(folder) && QTemporaryFile(folder + "/probe-XXXXXX").open();
}

} // namespace

Result startLogging(char const * program, LogOptions const & options)
{
    if (google::IsGoogleLoggingInitialized()) {
        return {false, QCoreApplication::translate("Logging", "Logging has been started already.")};
    }
    static auto * const name = new std::string; // glog keeps the pointer, also while the process ends
    *name = program != nullptr && *program != '\0' ? program : "program";
    google::InitGoogleLogging(name->c_str());
    for (LevelFact const & fact : levelFacts) {
        google::SetLogDestination(fact.severity, "");
    }
    google::SetStderrLogging(severityOf(options.terminal));
    if (options.folder.isEmpty()) {
        return {};
    }
    if (!canWriteInto(options.folder)) {
        return {false, QCoreApplication::translate("Logging", "Log files cannot be written into \"%1\".")
                           .arg(options.folder)};
    }
    // The file of a severity also gets the lines of the higher ones, so one is enough.
    QString const base =
        QDir(options.folder).filePath(QFileInfo(QString::fromLocal8Bit(name->c_str())).completeBaseName());
    google::SetLogDestination(google::GLOG_INFO, QFile::encodeName(base + ".log.").constData());
    FLAGS_logbuflevel = -1; // in the file at once, also if the process crashes
    return {};
}

} // namespace KVCAM::UIAPI::Ext
