#include "embedded/ArchiveBytes.h"
#include "embedded/EmbeddedTest.h"

#include <atomic>
#include <chrono>
#include <thread>

using namespace KVCAM;
using namespace KVCAM::Testing;
using Embedded::Reading;

namespace {

QByteArray const pad = "$0 r10\nP 1 2 0 P 0 0\n";

// What a reading in another thread gives, and what comes of it here.
class ReadingTest : public EmbeddedTest
{
protected:
    static Reading layerReading() { return Reading::ofLayer("BOARD", "Pcb", "Top"); }

    // Stopped after so many milliseconds; never if that is negative.
    static void runApart(Reading reading, int stopAfter = -1)
    {
        std::atomic<bool> stop{stopAfter == 0};
        std::thread thread([&] { reading.run(stop); });
        if (stopAfter > 0) {
            std::this_thread::sleep_for(std::chrono::milliseconds(stopAfter));
            stop = true;
        }
        thread.join();
    }
    static std::string errorOf(Reading reading)
    {
        bool const isAdopted = reading.adopt();
        EXPECT_EQ(isAdopted, Embedded::lastError().empty());
        return Embedded::lastError();
    }
    static std::string outcome(Reading const & reading, int stopAfter = -1)
    {
        runApart(reading, stopAfter);
        return errorOf(reading);
    }
    static int count() { return Embedded::featureCount("board", "pcb", "top"); }

    void SetUp() override
    {
        makeBoard();
        writeFeatures(pad);
    }
};

TEST_F(ReadingTest, TellsWhatTheFunctionsTell)
{
    QString const folder = "jobs/board/steps/pcb/layers/top";
    write("jobs/board/steps/pcb/eda/data", "LYR top\nNET a\nFID C 0 0\nFID C 7 0\n");
    struct Row
    {
        char const * layer;
        char const * features; ///< null: no file
        char const * tools;
    };
    for (Row const & row : {Row{"top", "$0 r1\nP 0 0 0 P 0 0\n", ""},
                            {"top", "$0 r1\nP 0 0 9 P 0 0\n", "TOOLS {\nNUM=x\n}\n"},
                            {"top", "", "TOOLS {\n"},
                            {"top", nullptr, "TOOLS {\nNUM=1\n}\n"},
                            {"inner", "", ""}}) {
        ASSERT_TRUE(QDir(folder).removeRecursively() && QDir().mkpath(folder));
        write(folder + "/tools", row.tools);
        if (row.features != nullptr) {
            write(folder + "/features", row.features);
        }
        ASSERT_TRUE(open());
        int const features = Embedded::featureCount("board", "pcb", row.layer);
        std::string const error = Embedded::lastError();
        Embedded::tools("board", "pcb", row.layer);
        std::string const toolsError = Embedded::lastError();

        ASSERT_TRUE(open());
        Reading const reading = Reading::ofLayer("board", "pcb", row.layer);
        EXPECT_EQ(outcome(reading), error);
        EXPECT_EQ(reading.toolsError(), toolsError);
        if (row.features != nullptr) { // not read again, whether that succeeded or not
            write(folder + "/features", pad + pad);
        }
        EXPECT_EQ(Embedded::featureCount("board", "pcb", row.layer), features);
        EXPECT_EQ(Embedded::lastError(), error);
    }
    writeFeatures(pad);
    ASSERT_TRUE(open());
    Embedded::featureNet("board", "pcb", "top", 0);
    std::string const error = Embedded::lastError();
    EXPECT_NE(error.find("eda/data:4: unknown layer 7"), std::string::npos);
    EXPECT_EQ(outcome(Reading::ofNets("board", "PCB")), error);
    EXPECT_EQ(errorOf(Reading::ofLayer("nowhere", "pcb", "top")), "nowhere: the job is not open");
}

TEST_F(ReadingTest, WhatIsStoppedLeavesTheJobAsItWas)
{
    constexpr int pads = 700'000;
    QByteArray const large = "$0 r10\n" + QByteArray("P 1 2 0 P 0 0\n").repeated(pads);
    writeFeatures(large);
    Embedded::JobLimits limits;
    limits.bytes = QFileInfo("jobs/board/matrix/matrix").size() + large.size(); // once only
    Embedded::setJobLimits(limits);
    ASSERT_TRUE(open());
    auto const begin = std::chrono::steady_clock::now();
    runApart(layerReading()); // not adopted, so the next ones read the file again
    auto const whole =
        std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - begin);
    for (int const milliseconds : {0, static_cast<int>(whole.count() / 4)}) {
        EXPECT_EQ(outcome(layerReading(), milliseconds), "reading was stopped");
    }
    EXPECT_EQ(count(), pads) << Embedded::lastError();

    EXPECT_EQ(outcome(Reading::ofJob("jobs", "board"), 0), "reading was stopped");
    writeFeatures("X\n");
    EXPECT_EQ(count(), pads) << "the job that was open still is";
}

TEST_F(ReadingTest, CountsOnceAgainstTheLimits)
{
    write("jobs/board/steps/pcb/layers/bottom/features", pad);
    Embedded::JobLimits limits;
    limits.points = 1;
    Embedded::setJobLimits(limits);
    ASSERT_TRUE(open());
    Reading first = layerReading();
    Reading second = layerReading();
    Reading other = Reading::ofLayer("board", "pcb", "bottom");
    for (Reading const & each : {first, second, other}) { // each fits alone
        runApart(each);
    }
    EXPECT_EQ(errorOf(first), "");
    ASSERT_TRUE(Embedded::deleteFeatures("board", "pcb", "top", {0}));
    EXPECT_EQ(errorOf(second), "");
    EXPECT_EQ(count(), 0) << "what is known, with its changes, is not replaced";
    std::string const exceeded = "jobs/board/steps/pcb/layers/bottom/features: the job holds more than 1 "
                                 "features and sides of contours, its limit";
    EXPECT_EQ(errorOf(other), exceeded);
    EXPECT_EQ(Embedded::featureCount("board", "pcb", "bottom"), -1);
    EXPECT_EQ(Embedded::lastError(), exceeded);
    EXPECT_EQ(errorOf(first), "what was read has been adopted already");
}

TEST_F(ReadingTest, IsDroppedWhenItsJobIsGone)
{
    ASSERT_TRUE(open());
    Reading reading = layerReading();
    runApart(reading);
    ASSERT_TRUE(Embedded::closeJob("board"));
    EXPECT_EQ(errorOf(reading), "board: the job is not open");

    ASSERT_TRUE(open());
    reading = layerReading();
    runApart(reading);
    writeFeatures("\n");
    ASSERT_TRUE(open()); // under the same name
    EXPECT_EQ(errorOf(reading), "board: the job was opened anew while it was read");
    EXPECT_EQ(count(), 0);
}

TEST_F(ReadingTest, AStoppedArchiveLeavesNoFolder)
{
    ASSERT_TRUE(QDir().mkdir("tmp"));
    for (char const * const variable : {"TMPDIR", "TEMP", "TMP"}) {
        qputenv(variable, QDir("tmp").absolutePath().toUtf8());
    }
    QList<Packed> const entries = {{"odb/matrix/matrix", step(1, "PCB") + layer(1, "TOP")},
                                   {"odb/steps/pcb/layers/top/features", pad},
                                   {"odb/steps/pcb/layers/top/tools", QByteArray(40'000'000, '#')}};
    for (int const milliseconds : {0, 5, -1}) {
        // Those that are stopped never reach the end, where the mark is missing.
        write("board.tar", milliseconds < 0 ? tar(entries) : tarEntries(entries));
        std::string const error = outcome(Reading::ofArchive("board.tar"), milliseconds);
        if (error.find("this build reads no archives") != std::string::npos) {
            GTEST_SKIP() << "this build has no libarchive";
        }
        EXPECT_EQ(error, milliseconds < 0 ? "" : "reading was stopped");
        EXPECT_EQ(QDir("tmp").entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(),
                  milliseconds < 0 ? 1 : 0);
    }
    EXPECT_EQ(count(), 1);
}

} // namespace
