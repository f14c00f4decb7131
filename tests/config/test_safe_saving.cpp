#include "ConfigTest.h"
#include "Generation.h"

#include "config/SettingsFile.h"
#include "support/WholeFile.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QThread>

#include <gmock/gmock.h>

#include <filesystem>
#include <iostream>

using namespace KVCAM::UIAPI;
using namespace KVCAM::Testing;

namespace {

// The generation in the settings file; -1 if the file is incomplete.
int generationIn(QString const & path)
{
    WholeFile::ReadResult const result = WholeFile::readJson(path);
    QJsonObject const object = result.document.object();
    std::string const text = object["ServerIp"].toString().toStdString();
    int const number = QString::fromStdString(text).section(':', 0, 0).toInt();
    return object.size() == 17 && text == generation(number) ? number : -1;
}

class SafeSaving : public ConfigTest
{
protected:
    QString const file = config + "server.json";

    int write(QStringList const & arguments)
    {
        QProcess writer;
        writer.start(CONFIG_WRITER, arguments);
        bool const ended = writer.waitForFinished() && writer.exitStatus() == QProcess::NormalExit;
        said = writer.readAllStandardOutput().replace("\r\n", "\n").toStdString();
        return ended ? writer.exitCode() : -1;
    }
    std::string said; ///< by the latest writer
    static constexpr bool isUnix = std::filesystem::path::preferred_separator == '/';
};

// UIAPI_KILL_RUNS sets the number of runs. Fifteen seconds end them whatever the number.
TEST_F(SafeSaving, AKilledProcessLeavesTheOldOrTheNewFileWhole)
{
    bool isSet = false;
    int const wanted = qEnvironmentVariableIntValue("UIAPI_KILL_RUNS", &isSet);
    int const runs = isSet ? wanted : 200;
    ASSERT_TRUE(QDir().mkdir("config"));
    ASSERT_EQ(write({".", "once", "1"}), 0);
    ASSERT_EQ(generationIn(file), 1);

    int last = 1;
    int done = 0;
    int losses = 0;
    int leftBehind = 0;
    int refused = 0; // starts; Wine fails at one now and then
    QElapsedTimer clock;
    for (clock.start(); done < runs && clock.elapsed() < 15000;) {
        QProcess writer;
        writer.start(CONFIG_WRITER, {".", "loop", QString::number(last + 1)});
        if (!writer.waitForStarted()) {
            ASSERT_LT(++refused, 5) << writer.errorString().toStdString();
            continue;
        }
        ASSERT_TRUE(writer.waitForReadyRead()) << writer.errorString().toStdString();
        ++done;
        QThread::usleep(QRandomGenerator::global()->bounded(quint32(12000)));
        writer.kill();
        ASSERT_TRUE(writer.waitForFinished());
        int const found = generationIn(file);
        losses += found < last ? 1 : 0; // not whole, or older than what stood there
        last = std::max(last, found);
        // Most of what was begun has no name yet and goes with its process.
        for (QString const & name : QDir(config).entryList({"server.json.*"}, QDir::Files)) {
            ++leftBehind;
            QFile::remove(config + name);
        }
    }
    std::cout << done << " kills, " << last << " saves, " << leftBehind << " temporary files left, " << losses
              << " losses\n";
    EXPECT_EQ(losses, 0);
    EXPECT_GT(done, 0);
    EXPECT_GT(last, 1) << "no run came to save anything";
}

TEST_F(SafeSaving, AWriteThatFailsLeavesTheOldFileWhole)
{
    ASSERT_TRUE(QDir().mkdir("config"));
    ASSERT_EQ(write({".", "once", "1"}), 0);
    EXPECT_EQ(said, "last: \n");
    ASSERT_EQ(write({".", "template", "1"}), 0);
    QByteArray const old = readFile("autoMatrix/mine.json");
    // Both below and above the size up to which Qt gathers what it writes.
    for (char const * number : {"2", "39"}) {
        int const result = write({".", "once", number, "limit", "2000"});
        if (result == 3) {
            GTEST_SKIP() << "no limit on the size of files here";
        }
        EXPECT_EQ(result, 0);
        EXPECT_EQ(generationIn(file), 1) << number;
        EXPECT_EQ(QDir(config).entryList(QDir::Files), QStringList{"server.json"});
        std::string const reason = "The file cannot be written: File too large.\n";
        EXPECT_EQ(said, "last: " + reason + "server.json: " + reason) << number;
        EXPECT_EQ(write({".", "template", number, "limit", "900"}), 0);
        EXPECT_EQ(said, "box: File open failed\nmine.json: " + reason) << number;
        EXPECT_EQ(readFile("autoMatrix/mine.json"), old) << number;
        EXPECT_EQ(QDir("autoMatrix").entryList(QDir::Files), QStringList{"mine.json"});
    }
    EXPECT_EQ(write({".", "once", "2"}), 0);
    EXPECT_EQ(generationIn(file), 2);
}

TEST_F(SafeSaving, AFullDiskLeavesTheOldFileWhole)
{
    ASSERT_TRUE(QDir().mkdir("disk"));
    if (!isUnix || QProcess::execute("mount", {"-t", "tmpfs", "-o", "size=64k", "tmpfs", "disk"}) != 0) {
        GTEST_SKIP() << "no small file system can be mounted here";
    }
    EXPECT_TRUE(QDir().mkdir("disk/config"));
    EXPECT_EQ(write({"disk", "once", "1"}), 0);
    EXPECT_EQ(write({"disk", "once", "39"}), 0); // 117 kB
    EXPECT_EQ(generationIn("disk/config/server.json"), 1);

    // Full to the last byte.
    QFile filler("disk/filler");
    EXPECT_TRUE(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    while (filler.write(QByteArray(512, 'x')) > 0) {
    }
    EXPECT_EQ(write({"disk", "once", "80"}), 0); // a short text
    EXPECT_EQ(generationIn("disk/config/server.json"), 1);
    EXPECT_NE(said.find("No space left on device"), std::string::npos) << said;
    EXPECT_EQ(write({"disk", "template", "80"}), 0);
    EXPECT_NE(said.find("box: File open failed"), std::string::npos) << said;

    filler.close();
    EXPECT_TRUE(filler.remove());
    EXPECT_EQ(write({"disk", "once", "80"}), 0);
    EXPECT_EQ(generationIn("disk/config/server.json"), 80);
    EXPECT_EQ(QProcess::execute("umount", {"disk"}), 0);
}

TEST_F(SafeSaving, ADirectoryInTheFilesPlaceStaysAndNothingIsLogged)
{
    writeFile(file, R"({"OS":1})");
    UIAPIGlobalVar & global = restartQuietly();
    ASSERT_TRUE(QFile::remove(file));
    ASSERT_TRUE(QDir().mkpath(file));
    global.setOS(2);
    EXPECT_TRUE(QDir(file).exists());
    EXPECT_EQ(QDir(config).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{"server.json"});
    EXPECT_EQ(log.take(), Lines{});
    EXPECT_EQ(Ext::lastSettingsSave().reason, "It is not a regular file.");
    ASSERT_TRUE(QDir().rmdir(file));
    global.setOS(3);
    EXPECT_TRUE(Ext::lastSettingsSave().ok);
}

TEST_F(SafeSaving, AReadOnlyDirectoryKeepsAReadOnlyFileAndRewritesAWritableOneInPlace)
{
    ASSERT_TRUE(QDir().mkdir("config"));
    ASSERT_EQ(write({".", "once", "1"}), 0);
    // Root may write everywhere, so the writer takes another user's rights.
    bool const isAdministrator = QFileInfo("/").isWritable();
    QStringList const rights = isAdministrator ? QStringList{"user", "65534"} : QStringList{};
    QFile::Permissions const everyone =
        QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther;
    ASSERT_TRUE(QFile::setPermissions(".", everyone | QFile::WriteOwner));
    ASSERT_TRUE(QFile::setPermissions(config, everyone));
    ASSERT_TRUE(QFile::setPermissions(file, QFile::ReadOwner | QFile::ReadOther));
    int const result = write(QStringList{".", "once", "2"} + rights);
    if (result == 3) {
        GTEST_SKIP() << "no other user's rights to be had here";
    }
    EXPECT_EQ(result, 0);
    EXPECT_EQ(generationIn(file), 1);
    ASSERT_TRUE(QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther |
                                                QFile::WriteOther));
    EXPECT_EQ(write(QStringList{".", "once", "3"} + rights), 0);
    EXPECT_EQ(generationIn(file), 3) << "in place, at the risk of a crash";
    EXPECT_TRUE(QFile::setPermissions(config, everyone | QFile::WriteOwner));
}

TEST_F(SafeSaving, AFileThatAnotherProcessHoldsOrThatIsReadOnlyStaysWhole)
{
    if (isUnix) {
        GTEST_SKIP() << "neither prevents a file's replacement here";
    }
    ASSERT_TRUE(QDir().mkdir("config"));
    ASSERT_EQ(write({".", "once", "1"}), 0);
    QFile settings(file);
    for (std::string const reason : {"cannot be written: .+", "cannot be opened for writing: .+"}) {
        EXPECT_TRUE(settings.open(QIODevice::ReadOnly)); // others may write to it, not replace it
        EXPECT_EQ(write({".", "once", "2"}), 0);
        EXPECT_THAT(said, ::testing::MatchesRegex("last: The file " + reason + "\\nserver.json: The file " +
                                                  reason + "\\n"));
        EXPECT_EQ(generationIn(file), 1);
        EXPECT_EQ(QDir(config).entryList(QDir::Files), QStringList{"server.json"});
        settings.close();
        EXPECT_TRUE(settings.setPermissions(QFile::ReadOwner));
    }
    EXPECT_TRUE(settings.setPermissions(QFile::ReadOwner | QFile::WriteOwner));
    EXPECT_EQ(write({".", "once", "2"}), 0);
    EXPECT_EQ(generationIn(file), 2);
}

TEST_F(SafeSaving, FileNamesAreUtf8OnDiskAndInTheLog)
{
    std::string const name = "测试 Größe";
    QString const folder = QString::fromStdString(name);
    ASSERT_TRUE(QDir().mkdir(folder) && QDir::setCurrent(folder));
    writeFile(file, R"({"OS":1})");
    UIAPIGlobalVar & global = restart();
    std::string const missing = noTemplates[0];
    EXPECT_EQ(log.take()[0],
              missing.substr(0, missing.rfind("/config")) + "/" + name + "/config/automatrix.json");
    global.setOS(2);
    EXPECT_EQ(readObject("../" + folder + "/config/server.json")["OS"].toInt(), 2);
}

} // namespace
