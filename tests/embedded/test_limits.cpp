#include "embedded/EmbeddedTest.h"

using namespace KVCAM;
using namespace KVCAM::Testing;

namespace {

class LimitsTest : public EmbeddedTest
{};

TEST_F(LimitsTest, EachIsMetWithItsErrorAndCanBeRaised)
{
    makeBoard();
    write("jobs/board/matrix/matrix", step(1, "PCB") + step(2, "TWO") + layer(1, "TOP") + layer(2, "BOTTOM"));
    ASSERT_TRUE(QDir().mkpath("jobs/board/steps/two/layers/top"));
    ASSERT_TRUE(QDir().mkpath("jobs/board/symbols/own"));
    QByteArray const profile = "S P 0\nOB 1 0 I\nOC 1 0 0 0 Y\nOE\nSE\n"; // 72 points and the first again
    write("jobs/board/steps/pcb/profile", profile);
    // Two tables of one symbol. Two pads, a surface of one contour with two sides: six, in each layer.
    QByteArray const text =
        "$0 r1\nP 0 0 0 P 0 0\nP 1 0 0 P 0 0\nS P 0\nOB 0 0 I\nOS 1 0\nOC 0 1 0 0 Y\nOE\nSE\n";
    write("jobs/board/steps/pcb/layers/top/features", text);
    write("jobs/board/steps/pcb/layers/bottom/features", text);
    long long const matrix = QFileInfo("jobs/board/matrix/matrix").size();
    using Limits = Embedded::JobLimits;
    struct Row
    {
        long long Limits::*limit;
        long long enough;
        std::string error;
    };
    std::string const top = "jobs/board/steps/pcb/layers/top/features";
    std::string const bottom = "jobs/board/steps/pcb/layers/bottom/features";
    for (Row const & row : {
             Row{&Limits::steps, 2,
                 "jobs/board/matrix/matrix:6: COL=2 is one more than the job's limit of 1"},
             Row{&Limits::layers, 2,
                 "jobs/board/matrix/matrix:18: ROW=2 is one more than the job's limit of 1"},
             Row{&Limits::symbols, 3, bottom + ":1: the job holds more than 2 symbols, its limit"},
             Row{&Limits::points, 12,
                 bottom + ":7: the job holds more than 11 features and sides of contours, its limit"},
             Row{&Limits::profilePoints, 73,
                 "jobs/board/steps/pcb/profile: the outlines take more than 72 points"},
             Row{&Limits::fileBytes, matrix,
                 "jobs/board/matrix/matrix: the file is larger than " + std::to_string(matrix - 1) +
                     " bytes"},
             Row{&Limits::bytes, matrix + profile.size() + 2 * text.size(),
                 bottom + ": with this file more than " +
                     std::to_string(matrix + profile.size() + 2 * text.size() - 1) +
                     " bytes of the job are read, its limit"},
         }) {
        Limits limits;
        auto const error = [&row, &limits](long long value) {
            limits.*row.limit = value;
            Embedded::setJobLimits(limits);
            Embedded::closeJob("board");
            std::string first;
            if (open()) {
                // Failed and repeated readings do not count.
                for (int i = 0; i < 3; ++i) {
                    Embedded::jobSymbols("board");
                    first = Embedded::lastError();
                }
                return first;
            }
            return Embedded::lastError();
        };
        EXPECT_EQ(error(row.enough), "") << row.error;
        EXPECT_EQ(error(row.enough - 1), row.error);
    }
    Limits limits;
    limits.seconds = 0;
    Embedded::setJobLimits(limits);
    Embedded::closeJob("board");
    EXPECT_FALSE(open());
    EXPECT_EQ(Embedded::lastError(),
              "jobs/board/matrix/matrix:1: reading the job takes more than 0 seconds, its limit");
}

} // namespace
