#include "harness/UiapiTest.h"

#include "support/Log.h"
#include "support/Logging.h"

#include <glog/logging.h>

#include <QDir>
#include <QFile>

using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {

class LoggingTest : public UiapiTest
{
protected:
    void SetUp() override { google::ShutdownGoogleLogging(); } // the harness has started it

    /// Logs a line of each severity; returns the texts that came to stderr.
    static std::string logged()
    {
        testing::internal::CaptureStderr();
        Log::info(Log::commonPara, "info");
        Log::warning(Log::commonPara, "warning");
        Log::error(Log::commonPara, "error");
        return texts(QString::fromStdString(testing::internal::GetCapturedStderr()));
    }
    static std::string texts(QString const & lines)
    {
        QStringList found;
        for (QString const & line : QString(lines).remove('\r').split('\n')) {
            if (line.contains("UIAPICommonPara:")) {
                found.append(line.section("] ", 1));
            }
        }
        return found.join(' ').toStdString();
    }
};

TEST_F(LoggingTest, StartsOnceWithWarningsOnTheTerminalAndNoFiles)
{
    qputenv("GLOG_log_dir", "."); // would be glog's own choice
    EXPECT_TRUE(Ext::startLogging("host"));
    EXPECT_EQ(logged(), "warning error");
    Ext::Result const again = Ext::startLogging("other", {Ext::LogLevel::Info, "logs"});
    EXPECT_EQ(again.reason, "Logging has been started already.");
    EXPECT_EQ(logged(), "warning error");
    EXPECT_FALSE(QDir("logs").exists());
    google::FlushLogFiles(google::GLOG_INFO);
    EXPECT_TRUE(QDir().entryList(QDir::Files).isEmpty());
}

TEST_F(LoggingTest, TakesTheTerminalsSeverityAndAFolder)
{
    struct
    {
        Ext::LogLevel level;
        char const * terminal;
    } const rows[] = {
        {Ext::LogLevel::Info, "info warning error"},
        {Ext::LogLevel::Error, "error"},
        {Ext::LogLevel::None, ""},
    };
    for (auto const & row : rows) {
        EXPECT_TRUE(Ext::startLogging("/opt/host", {row.level, "my logs/host"}));
        EXPECT_EQ(logged(), row.terminal);
        google::ShutdownGoogleLogging();
    }
    QDir const folder("my logs/host");
    QStringList const written = folder.entryList({"host.log.*"}, QDir::Files);
    ASSERT_FALSE(written.isEmpty());
    QFile file(folder.filePath(written[0]));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(texts(file.readAll()).rfind("info warning error", 0) == 0);

    QFile(QDir("my logs").filePath("file")).open(QIODevice::WriteOnly);
    Ext::Result const failed = Ext::startLogging(nullptr, {Ext::LogLevel::Warning, "my logs/file"});
    EXPECT_EQ(failed.reason, "Log files cannot be written into \"my logs/file\".");
    EXPECT_EQ(logged(), "warning error") << "started all the same";
}

} // namespace
