#include "embedded/EmbeddedTest.h"

#include <sys/stat.h>
#include <unistd.h>

using namespace KVCAM;
using namespace KVCAM::Testing;

namespace {

class InputTest : public EmbeddedTest
{};

// Whatever is there and cannot be read is an error; only what is not there is absent.
TEST_F(InputTest, WhatIsNoRegularFileIsNotTakenForAbsentAndNeverWaitedFor)
{
    makeBoard();
    ASSERT_TRUE(QDir().mkpath("jobs/board/steps/pcb/layers/top"));
    auto const error = []() {
        if (open()) {
            Embedded::features("board", "pcb", "top");
            std::string const features = Embedded::lastError();
            Embedded::tools("board", "pcb", "top");
            return features.empty() ? Embedded::lastError() : features;
        }
        return Embedded::lastError();
    };
    ASSERT_EQ(error(), "");
    write("real", "");
    for (std::string const file :
         {"stephdr", "profile", "layers/top/features", "layers/top/FEATURES", "layers/top/features.Z",
          "layers/top/features.tables", "layers/top/tools"}) {
        std::string const path = "jobs/board/steps/pcb/" + file;
        ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
        EXPECT_EQ(error(), path + ": not a regular file");
        ::unlink(path.c_str());
        for (char const * const target : {"nowhere", file.c_str() + file.rfind('/') + 1}) { // or to itself
            ASSERT_EQ(::symlink(target, path.c_str()), 0);
            EXPECT_EQ(error(), path + ": a link that leads nowhere");
            ::unlink(path.c_str());
        }
        ASSERT_EQ(::symlink("/dev/zero", path.c_str()), 0);
        EXPECT_EQ(error(), path + ": not a regular file");
        ::unlink(path.c_str());
        ASSERT_EQ(::mkdir(path.c_str(), 0700), 0);
        EXPECT_EQ(error(), path + ": a folder, where a file belongs");
        ::rmdir(path.c_str());
        if (file.find(".Z") == std::string::npos) {
            ASSERT_EQ(::symlink(QFileInfo("real").absoluteFilePath().toUtf8().constData(), path.c_str()), 0);
            EXPECT_EQ(error(), "") << "a link to a file";
            ::unlink(path.c_str());
        }
    }
    ::rmdir("jobs/board/steps/pcb/layers/top");
    for (std::string const folder : {"jobs/board/steps/pcb/layers/top", "jobs/board/symbols"}) {
        write(QString::fromStdString(folder), "");
        EXPECT_EQ(error(), folder + ": not a folder");
    }
}

} // namespace
